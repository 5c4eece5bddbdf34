// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/alignment_operations.h"

#include "documents/undo_histories.h"
#include "editor/editor_settings.h"
#include "platform/richtext/rich_text_document.h"
#include "settings/colour_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QTest>

using namespace zeph;
using zeph::test::blue;
using zeph::test::EditorTest;

namespace {

class AlignmentOperationsTest : public EditorTest
{
protected:
    AlignmentOperationsTest()
    {
        settings.of<ColourSettings>().SlashColour = blue;
        settings.of<ColourSettings>().JoystickTextDefaultColour = 0;
    }
    void load(DocumentKind kind, const QString &text)
    {
        editor->documents().of(kind).setText(text);
        editor->undos().startOver(kind);
        editor->documents().of(kind).setState(Document::Saved);
    }
    void protectAndSelectMacro()
    {
        editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
        editor->documents().select(DocumentKind::Macro);
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
    }
    /// As text from elsewhere may stand.
    void moveLinesIn()
    {
        const Document::Quiet quiet(editor->joystick());
        setParagraphFormat(*joystick().document(), { .leftIndentTwips = 300 });
    }
    TextControl &joystick() { return editor->view().control(DocumentKind::Joystick); }
    int steps() { return editor->undos().of(DocumentKind::Joystick).slots() - 1; }
};

} // namespace

TEST_F(AlignmentOperationsTest, AligningIsOneStepThatModifiesAndColours)
{
    load(DocumentKind::Joystick, u"BTN S1 /I a\n/O b"_s);
    editor->documents().select(DocumentKind::Macro);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 /I a\n       /O b\n");
    EXPECT_EQ(status.text(), u" OK - done!");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(joystick().shown().richText().formatAt(19).colour, blue);
    editor->documents().select(DocumentKind::Joystick);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 /I a\n/O b");
    editor->action(u"mnuEditRedo")->trigger();
    EXPECT_EQ(joystick().shown().richText().formatAt(19).colour, blue);
}

TEST_F(AlignmentOperationsTest, AnAlignedFileIsColouredAndStaysSaved)
{
    load(DocumentKind::Joystick, u"BTN S1 /I a\n"_s);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(steps(), 0);
    EXPECT_EQ(joystick().shown().richText().formatAt(7).colour, blue);
    EXPECT_EQ(status.text(), u" OK - done!");
}

TEST_F(AlignmentOperationsTest, TheCaretStaysInItsLine)
{
    load(DocumentKind::Joystick, u"  BTN S1 /I a\n/O b\nBTN S2"_s);
    joystick().shown().select(20, 0);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(joystick().shown().caretLine(), 3);
    EXPECT_EQ(status.lineText(), u"Line no: 3");
}

TEST_F(AlignmentOperationsTest, TabSelectionCaretAndFocusAreWhereTheyWere)
{
    editor->resize(700, 500);
    editor->show();
    load(DocumentKind::Joystick, u"BTN  S1 /I a\n/O  bcd\n"_s);
    load(DocumentKind::Macro, u"Fire = a"_s);
    editor->macro().select(2, 3);
    // Backwards: the caret is before the letters that are selected.
    editor->joystick().setCaret(20, 17);
    editor->documents().select(DocumentKind::Macro);
    QWidget *list = editor->findChild<QWidget *>(u"List1"_s);
    list->setFocus();
    ASSERT_EQ(editor->window()->focusWidget(), list);
    editor->action(u"mnuAlignSlash")->trigger();
    ASSERT_EQ(editor->joystickText(), u"BTN S1 /I a\n       /O bcd\n");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(editor->window()->focusWidget(), list);
    EXPECT_EQ(editor->macro().selStart(), 2);
    EXPECT_EQ(editor->macro().selLength(), 3);
    EXPECT_EQ(editor->joystick().cursor().anchor(), 25);
    EXPECT_EQ(editor->joystick().cursor().position(), 22);
    EXPECT_EQ(status.text(), u" OK - done!");
}

TEST_F(AlignmentOperationsTest, TheTickIsTheSettingAndMovesStatementsIn)
{
    settings.of<EditorSettings>().IndentSpaces = 3;
    settings.of<EditorSettings>().IndentAsWell = true;
    editor->applySettings();
    EXPECT_TRUE(editor->action(u"mnuIndentSlashes")->isChecked());
    load(DocumentKind::Joystick, u"BTN S1 a\n"_s);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystickText(), u"   BTN S1 a\n");
    editor->action(u"mnuIndentSlashes")->trigger();
    EXPECT_EQ(settings.of<EditorSettings>().IndentAsWell, 0);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n");
}

TEST_F(AlignmentOperationsTest, AnEmptyFileIsLeftAlone)
{
    status.setText(u"before"_s);
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystickText(), QString());
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(AlignmentOperationsTest, AProtectedMacroFileRefusesAligning)
{
    load(DocumentKind::Joystick, u"  BTN S1 a"_s);
    protectAndSelectMacro();
    editor->action(u"mnuAlignSlash")->trigger();
    EXPECT_EQ(editor->joystickText(), u"  BTN S1 a");
    EXPECT_EQ(dialogs.boxes().size(), 1);
}

TEST_F(AlignmentOperationsTest, RefreshingTheIndentKeepsColoursCaretAndState)
{
    load(DocumentKind::Joystick, u"BTN S1 /I a\n/O b"_s);
    moveLinesIn();
    joystick().shown().changeLooks(0, 3, [](CharFormat &format) { format.colour = blue; });
    editor->joystick().setState(Document::Saved);
    const std::vector<CharRun> looks = joystick().shown().richText().characters;
    joystick().shown().select(5, 2);
    editor->action(u"mnuViewrefreshIndent")->trigger();
    EXPECT_EQ(joystick().shown().richText().characters, looks);
    const RichText after = joystick().shown().richText();
    ASSERT_EQ(after.paragraphs.size(), 1U);
    EXPECT_EQ(after.paragraphs.front().format.leftIndentTwips, 20);
    EXPECT_EQ(joystick().shown().selStart(), 5);
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(status.text(), u"Layout refreshed ... (I wish I was!)");
}

TEST_F(AlignmentOperationsTest, RefreshingTheLayoutTakesColoursAway)
{
    load(DocumentKind::Joystick, u"BTN S1"_s);
    moveLinesIn();
    joystick().shown().changeLooks(0, 3, [](CharFormat &format) {
        format.colour = blue;
        format.italic = true;
    });
    editor->action(u"mnuViewReformat")->trigger();
    const RichText after = joystick().shown().richText();
    ASSERT_EQ(after.characters.size(), 1U);
    EXPECT_EQ(after.characters.front().format,
              editor->documents().plainFormat(DocumentKind::Joystick));
    EXPECT_EQ(after.paragraphs.front().format.leftIndentTwips, 20);
    EXPECT_EQ(status.text(), u"Layout refreshed ... (I wish I was!)");
}

TEST_F(AlignmentOperationsTest, AProtectedMacroFileRefusesBothRefreshes)
{
    load(DocumentKind::Macro, u"a = b"_s);
    protectAndSelectMacro();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    const RichText before = editor->macro().richText();
    editor->action(u"mnuViewReformat")->trigger();
    editor->action(u"mnuViewrefreshIndent")->trigger();
    EXPECT_EQ(editor->macro().richText(), before);
    EXPECT_EQ(dialogs.boxes().size(), 2);
}
