// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/editor/walk.h"
#include "tests/support/long_run.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::test;

namespace {

const WalkAction &byChance(Walk &walk, const std::vector<WalkAction> &actions)
{
    int total = 0;
    for (const WalkAction &action : actions) {
        total += action.weight;
    }
    int left = walk.upTo(total - 1);
    for (const WalkAction &action : actions) {
        left -= action.weight;
        if (left < 0) {
            return action;
        }
    }
    return actions.front();
}

std::vector<WalkAction> allActions()
{
    std::vector<WalkAction> all;
    for (const auto &some :
         { typingActions(), fileActions(), lookActions(), toolActions(), findActions() }) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

constexpr int longest = 1200; ///< characters

void shorten(Walk &walk)
{
    walk.select(walk.upTo(200), int(walk.document().text().size()));
    walk.typeKey(Qt::Key_Delete);
}

constexpr WalkAction shortening = { "shorten", 1, shorten };

/// Whatever is held comes back in the end.
void undoAll(Walk &walk)
{
    for (const DocumentKind kind : bothKinds) {
        walk.model.select(kind);
        walk.editor->documents().select(kind);
        while (walk.document().history().canStep(true) && !testing::Test::HasFailure()) {
            walk.document().undo(true);
            walk.trigger(u"mnuEditUndo");
            walk.compare();
        }
    }
}

} // namespace

// ZEPH_WALK_SEED repeats a walk.
TEST(RandomWalk, TextStateAndDiskAreWhatTheModelSays)
{
    const quint32 seed = qEnvironmentVariableIsSet("ZEPH_WALK_SEED")
        ? qEnvironmentVariable("ZEPH_WALK_SEED").toUInt()
        : std::random_device()();
    Walk walk(seed);
    walk.showEditor();
    const std::vector<WalkAction> actions = allActions();
    QByteArrayList done;
    for (int step = 0; step < repeats(2000, 20000); ++step) {
        const bool isLong = walk.document().text().size() > longest;
        const WalkAction &action = isLong ? shortening : byChance(walk, actions);
        done.append(action.name);
        action.run(walk);
        walk.comeBack();
        walk.compare();
        if (HasFailure()) {
            FAIL() << "ZEPH_WALK_SEED=" << seed << ", action " << step
                   << ", after: " << done.mid(qMax(0, done.size() - 8)).join(", ").constData();
        }
    }
    undoAll(walk);
    EXPECT_FALSE(HasFailure()) << "ZEPH_WALK_SEED=" << seed << ", undoing all at the end";
}
