// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/alignment_operations.h"

#include "documents/undo_histories.h"
#include "settings/colour_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>

using namespace zeph;
using zeph::test::blue;
using zeph::test::EditorTest;

namespace {

constexpr ColorRef green = 0x00FF00;
constexpr ColorRef grey = 0x808080;

class BlockOperationsTest : public EditorTest
{
protected:
    BlockOperationsTest()
    {
        settings.of<ColourSettings>().BTNColour = blue;
        settings.of<ColourSettings>().RemStatements = grey;
        settings.of<ColourSettings>().JoystickTextDefaultColour = 0;
        type(DocumentKind::Joystick, u"BTN S1 a\n\nBTN S2 b\nBTN S3 c"_s);
        editor->undos().startOver(DocumentKind::Joystick);
    }
    TextControl &joystick() { return editor->view().control(DocumentKind::Joystick); }
    std::optional<ColorRef> colourAt(qsizetype position)
    {
        return joystick().shown().richText().formatAt(position).colour;
    }
    int steps() { return editor->undos().of(DocumentKind::Joystick).slots() - 1; }
};

} // namespace

TEST_F(BlockOperationsTest, TheLinesOfTheSelectionAreCommentedOutInOneStep)
{
    joystick().shown().select(3, 9);
    editor->action(u"mnuBlockREM")->trigger();
    EXPECT_EQ(editor->joystickText(), u"Rem BTN S1 a\n\nRem BTN S2 b\nBTN S3 c");
    EXPECT_EQ(joystick().shown().selStart(), 0);
    EXPECT_EQ(joystick().shown().selLength(), 0);
    EXPECT_EQ(colourAt(0), grey);
    EXPECT_EQ(colourAt(5), grey);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(steps(), 1);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n\nBTN S2 b\nBTN S3 c");
}

TEST_F(BlockOperationsTest, ASelectionToALinesStartTakesThatLineAndNoFurther)
{
    joystick().shown().select(10, 9);
    editor->action(u"mnuBlockREM")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n\nRem BTN S2 b\nRem BTN S3 c");
    EXPECT_EQ(joystick().shown().selStart(), 10);
}

TEST_F(BlockOperationsTest, ABlankLineAloneChangesNothing)
{
    editor->joystick().setState(Document::Saved);
    joystick().shown().select(9, 0);
    editor->action(u"mnuBlockREM")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n\nBTN S2 b\nBTN S3 c");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(steps(), 0);
}

TEST_F(BlockOperationsTest, TheCaretGoesToTheFirstLinesStartEvenIfNothingChanges)
{
    joystick().shown().select(12, 5);
    editor->action(u"mnuBlockRemoveREM")->trigger();
    EXPECT_EQ(joystick().shown().selStart(), 10);
    EXPECT_EQ(joystick().shown().selLength(), 0);
    type(DocumentKind::Macro, u"a = b\n\n\n"_s);
    editor->documents().select(DocumentKind::Macro);
    editor->macro().select(6, 1);
    editor->action(u"mnuBlockREM")->trigger();
    EXPECT_EQ(editor->macroText(), u"a = b\n\n\n");
    EXPECT_EQ(editor->macro().selStart(), 6);
    EXPECT_EQ(editor->macro().selLength(), 0);
}

TEST_F(BlockOperationsTest, TakenBackLinesAreLiveAgainAndOthersKeepTheirLooks)
{
    joystick().shown().select(0, 0);
    editor->action(u"mnuBlockREM")->trigger();
    joystick().shown().changeLooks(14, 3, [](CharFormat &format) { format.colour = green; });
    joystick().shown().select(0, 20);
    editor->action(u"mnuBlockRemoveREM")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n\nBTN S2 b\nBTN S3 c");
    EXPECT_EQ(colourAt(0), blue);
    EXPECT_EQ(colourAt(7), 0U);
    EXPECT_EQ(colourAt(10), green);
    EXPECT_EQ(joystick().shown().selStart(), 0);
    EXPECT_EQ(joystick().shown().selLength(), 0);
}

TEST_F(BlockOperationsTest, NothingToTakeBackChangesNothing)
{
    editor->joystick().setState(Document::Saved);
    joystick().selectAll();
    editor->action(u"mnuBlockRemoveREM")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(steps(), 0);
}

TEST_F(BlockOperationsTest, AProtectedMacroFileRefusesBoth)
{
    type(DocumentKind::Macro, u"Rem a\nb = c"_s);
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    editor->documents().select(DocumentKind::Macro);
    editor->view().control(DocumentKind::Macro).selectAll();
    for (const QString &entry : { u"mnuBlockREM"_s, u"mnuBlockRemoveREM"_s }) {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        editor->action(entry)->trigger();
    }
    EXPECT_EQ(editor->macroText(), u"Rem a\nb = c");
    EXPECT_EQ(dialogs.boxes().size(), 2);
}
