// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/actions.h"

#include "tests/support/editor_fixture.h"

#include <QAction>

using namespace zeph;

namespace {

using ActionTableTest = test::EditorTest;

} // namespace

TEST_F(ActionTableTest, OnlyTheseEntriesRepeatWhileTheirKeyIsHeldDown)
{
    // The keys of finding next and previous are the Find window's own.
    const QStringList repeating = {
        u"mnuEditUndo"_s,      u"mnuEditRedo"_s,   u"mnuEditPaste"_s,
        u"mnuViewOtherFile"_s, u"mnuViewZoomIn"_s, u"mnuViewZoomOut"_s
    };
    int seen = 0;
    for (const ActionRow &row : actionTable()) {
        if (row.kind == ActionKind::Separator || row.kind == ActionKind::Submenu) {
            continue;
        }
        const QString name = QString::fromUtf16(row.name);
        EXPECT_EQ(editor->action(name)->autoRepeat(), repeating.contains(name))
            << name.toStdString();
        seen += repeating.contains(name) ? 1 : 0;
    }
    EXPECT_EQ(seen, repeating.size());
}
