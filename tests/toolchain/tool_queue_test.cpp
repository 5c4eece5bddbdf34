// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_queue.h"

#include "platform/status_line.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <stdexcept>

using namespace zeph;

namespace {

/// Commands that note when they run.
struct ToolQueueTest : testing::Test {
    std::function<void()> noting(const QString &name)
    {
        return [this, name] {
            ran.append(name);
        };
    }
    /// Runs a command in whose wait the user does something.
    void runWhile(const QString &name, const std::function<void()> &duringTheWait)
    {
        run(name, [&] {
            duringTheWait();
            ran.append(name);
        });
        // A command that was kept may keep another one.
        for (int command = 0; command < 3; ++command) {
            QCoreApplication::processEvents();
        }
    }
    /// Gives a command that does something in its turn.
    void run(const QString &name, const std::function<void()> &operation)
    {
        const ToolQueue::Turn turn =
            queue->turn(name, [this, name, operation] { run(name, operation); });
        if (turn) {
            operation();
        }
    }

    StatusLine status;
    std::unique_ptr<ToolQueue> queue = std::make_unique<ToolQueue>(status);
    QStringList ran;
};

} // namespace

TEST_F(ToolQueueTest, ACommandRunsAtOnceWhenNoOtherDoes)
{
    run(u"the compile"_s, noting(u"a"_s));
    run(u"the compile"_s, noting(u"b"_s));
    EXPECT_EQ(ran, (QStringList{ u"a"_s, u"b"_s }));
    EXPECT_EQ(status.text(), u"");
}

TEST_F(ToolQueueTest, TheSameCommandIsDroppedWhileItWaitsAndTheLineSaysSo)
{
    runWhile(u"the download"_s, [this] {
        for (int i = 0; i < 25; ++i) {
            run(u"the download"_s, noting(u"again"_s));
        }
        EXPECT_EQ(status.text(), u" I'm still busy with the download: once is enough");
    });
    EXPECT_EQ(ran, QStringList{ u"the download"_s });
}

TEST_F(ToolQueueTest, OneOtherCommandFollowsWhenTheFirstHasEnded)
{
    runWhile(u"the download"_s, [this] {
        run(u"the compile"_s, noting(u"the compile"_s));
        EXPECT_EQ(status.text(), u" OK: the compile comes right after the download");
        EXPECT_TRUE(ran.isEmpty());
    });
    EXPECT_EQ(ran, (QStringList{ u"the download"_s, u"the compile"_s }));
}

TEST_F(ToolQueueTest, AThirdCommandAndTheWaitingOneOnceMoreAreDropped)
{
    runWhile(u"the download"_s, [this] {
        run(u"the compile"_s, noting(u"the compile"_s));
        run(u"the profile Default"_s, noting(u"profile"_s));
        EXPECT_EQ(status.text(),
                  u" I'm busy with the download, and the compile comes next: ask me again for the "
                  u"profile Default then");
        run(u"the compile"_s, noting(u"compile again"_s));
        EXPECT_EQ(status.text(),
                  u" the compile is waiting for the download already: once is enough");
    });
    EXPECT_EQ(ran, (QStringList{ u"the download"_s, u"the compile"_s }));
}

TEST_F(ToolQueueTest, WhatFollowedMayBeFollowedItself)
{
    runWhile(u"a"_s, [this] {
        run(u"b"_s, [this] {
            run(u"a"_s, noting(u"a once more"_s));
            ran.append(u"b"_s);
        });
    });
    EXPECT_EQ(ran, (QStringList{ u"a"_s, u"b"_s, u"a once more"_s }));
}

TEST_F(ToolQueueTest, AFailureReachesTheCallerAndTheNextCommandRuns)
{
    const auto fail = [this] {
        run(u"b"_s, noting(u"b"_s));
        throw std::runtime_error("no good");
    };
    EXPECT_THROW(run(u"a"_s, fail), std::runtime_error);
    QCoreApplication::processEvents();
    run(u"a"_s, noting(u"a"_s));
    EXPECT_EQ(ran, QStringList{ u"a"_s });
}

TEST_F(ToolQueueTest, AtTheProgramsEndNothingFollows)
{
    runWhile(u"a"_s, [this] {
        run(u"b"_s, noting(u"b"_s));
        queue->close();
    });
    EXPECT_EQ(ran, QStringList{ u"a"_s });
}

TEST_F(ToolQueueTest, ItMayGoWhileACommandWaits)
{
    runWhile(u"a"_s, [this] {
        run(u"b"_s, noting(u"b"_s));
        queue.reset();
    });
    EXPECT_EQ(ran, QStringList{ u"a"_s });
}
