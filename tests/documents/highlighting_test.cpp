// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_settings.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_document.h"
#include "settings/colour_settings.h"
#include "tests/support/painting_fixture.h"

#include <QAction>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

using namespace zeph;

namespace {

class HighlightingTest : public test::PaintingTest
{
protected:
    void showWindow()
    {
        editor->resize(700, 300);
        editor->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
    }
};

} // namespace

TEST_F(HighlightingTest, AFullPassColoursTheJoystickFileAndSaysWhatItDoes)
{
    set(J, u"BTN S1 /U a\nUSE MDEF x Rem BTN"_s);
    const QStringList texts = said([this] { highlighting().ApplyColourHighlighting(); });
    EXPECT_EQ(colours(J), u"bbbbbb.ss...mmm.mmmm...ccccccc");
    const QStringList expected = {
        u"Removing colour highlighting from Untitled.tmj. Please wait ..."_s,
        u"Done"_s,
        u"Applying colour highlighting to Untitled.tmj. Please wait ..."_s,
        u"Applying colour to BTN statements ..."_s,
        u"Applying colour to USE,ANT,MDEF etc. commands ..."_s,
        u"Applying colour to logical programming statements ..."_s,
        u"Applying colour to Rem comments ..."_s,
        u"Done"_s,
    };
    EXPECT_EQ(texts, expected);
}

TEST_F(HighlightingTest, AFullPassShowsEachStepBeforeItGoesOn)
{
    set(J, u"BTN S1 /U a"_s);
    QStringList shown;
    QObject::connect(&status, &StatusLine::repaintWanted, editor.get(),
                     [&] { shown.append(status.text() + u' ' + colours(J)); });
    look(J, 0, 6, [](CharFormat &format) { format.colour = 0x123456; });
    highlighting().ApplyColourHighlighting();
    const QString before = u" ??????....."_s;
    const QStringList expected = {
        u"Removing colour highlighting from Untitled.tmj. Please wait ..."_s + before,
        u"Applying colour highlighting to Untitled.tmj. Please wait ..."_s + before,
        u"Applying colour to BTN statements ..."_s + before,
        u"Applying colour to USE,ANT,MDEF etc. commands ..."_s + before,
        u"Applying colour to logical programming statements ..."_s + before,
        u"Applying colour to Rem comments ..."_s + before,
    };
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(status.text(), u"Done");
}

TEST_F(HighlightingTest, AFullPassColoursTheMacroFileWithItsOwnList)
{
    editor->documents().select(M);
    set(M, u"BTN = /U USB (D04) rem x"_s);
    const QStringList texts = said([this] { highlighting().ApplyMacroColourHighlighting(); });
    EXPECT_EQ(colours(M), u"......ss.rrr.r...r.ccccc");
    const QStringList expected = {
        u"Removing colour highlighting from Untitled.tmm. Please wait ..."_s,
        u"Done"_s,
        u"Applying colour highlighting to Untitled.tmm. Please wait ..."_s,
        u"Applying colour to / modifiers ..."_s,
        u"Applying colour to Rem comments ..."_s,
        u"Done"_s,
    };
    EXPECT_EQ(texts, expected);
}

TEST_F(HighlightingTest, AnEmptyDocumentIsToldAndNothingIsDone)
{
    const QStringList texts = said([this] { highlighting().ApplyMacroColourHighlighting(); });
    EXPECT_EQ(texts, QStringList(u"Untitled.tmm has no text to highlight."_s));
    EXPECT_EQ(&editor->selected(), &editor->joystick());
    EXPECT_FALSE(QFile::exists(folder.file(u"Rtf/Untitled.tmm"_s)));
}

TEST_F(HighlightingTest, APassSelectsTheTabOfItsDocument)
{
    set(M, u"x = /U"_s);
    highlighting().ApplyMacroColourHighlighting();
    EXPECT_EQ(&editor->selected(), &editor->macro());
}

TEST_F(HighlightingTest, APassNeverChangesTheSavedState)
{
    for (const auto state : { Document::Empty, Document::Saved, Document::Modified }) {
        set(J, u"BTN S1"_s);
        editor->joystick().setState(state);
        highlighting().ApplyColourHighlighting();
        EXPECT_EQ(editor->joystick().state(), state);
    }
}

TEST_F(HighlightingTest, APassKeepsCaretAndScrollAndDropsTheSelection)
{
    showWindow();
    set(J, u"BTN S1 /U a and quite a lot more of it\n"_s.repeated(300));
    joystick()->shown().select(8000, 20);
    joystick()->verticalScrollBar()->setValue(100);
    joystick()->horizontalScrollBar()->setValue(7);
    highlighting().ApplyColourHighlighting();
    EXPECT_EQ(joystick()->shown().selStart(), 8000);
    EXPECT_EQ(joystick()->shown().selLength(), 0);
    EXPECT_EQ(joystick()->verticalScrollBar()->value(), 100);
}

TEST_F(HighlightingTest, APassStripsBoldItalicUnderlineAndForeignFonts)
{
    settings.of<ColourSettings>().TextFontBold = true;
    set(J, u"BTN S1 a"_s);
    look(J, 2, 4, [](CharFormat &format) {
        format.family = u"Courier"_s;
        format.pointSize = 20;
        format.bold = false;
        format.italic = format.underline = true;
    });
    highlighting().ApplyColourHighlighting();
    for (const CharRun &run : joystick()->shown().richText().characters) {
        EXPECT_EQ(run.format.family, u"Arial");
        EXPECT_EQ(run.format.pointSize, 8);
        EXPECT_TRUE(run.format.bold);
        EXPECT_FALSE(run.format.italic || run.format.underline);
    }
}

TEST_F(HighlightingTest, APassWritesTheColouredCopyOfAnUnsavedFileAtOnce)
{
    set(J, u"BTN S1 a"_s);
    highlighting().ApplyColourHighlighting();
    const auto copy = readRtf(folder.read(u"Rtf/Untitled.tmj"_s));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->text, u"BTN S1 a");
    EXPECT_EQ(copy->formatAt(0).colour, settings.of<ColourSettings>().BTNColour);
    EXPECT_EQ(copy->formatAt(7).colour.value_or(0),
              settings.of<ColourSettings>().JoystickTextDefaultColour);
}

TEST_F(HighlightingTest, ACopyThatCannotBeWrittenIsTold)
{
    set(J, u"BTN S1 a"_s);
    ASSERT_TRUE(QDir(folder.file(u"Rtf"_s)).removeRecursively());
    folder.write(u"Rtf"_s, "in the way");
    highlighting().ApplyColourHighlighting();
    EXPECT_TRUE(status.text().startsWith(u"The coloured copy couldn't be written: "_s));
    EXPECT_EQ(colours(J), u"bbbbbb..");
}

TEST_F(HighlightingTest, APassGoesIntoTheTopUndoSlot)
{
    set(J, u"BTN S1"_s);
    highlighting().ApplyColourHighlighting();
    joystick()->shown().select(6, 0);
    type(J, u" a"_s);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->joystickText(), u"BTN S1");
    EXPECT_EQ(colours(J), u"bbbbbb");
}

TEST_F(HighlightingTest, APassIsNoUndoStep)
{
    set(J, u"BTN S1"_s);
    highlighting().ApplyColourHighlighting();
    EXPECT_FALSE(editor->action(u"mnuEditUndo")->isEnabled());
}

TEST_F(HighlightingTest, BothFilesAreColouredJoystickFirst)
{
    set(J, u"BTN S1"_s);
    set(M, u"a = /U"_s);
    editor->actions().action(u"mnuViewApplyColourBothFiles")->trigger();
    EXPECT_EQ(colours(J), u"bbbbbb");
    EXPECT_EQ(colours(M), u"....ss");
}

TEST_F(HighlightingTest, ColouringBothLeavesTabSelectionCaretAndFocusWhereTheyWere)
{
    set(J, u"BTN S1"_s);
    set(M, u"a = /U"_s);
    editor->joystick().setCaret(5, 1);
    editor->macro().setCaret(2, 4);
    editor->show();
    for (const DocumentKind kind : { J, M }) {
        editor->documents().select(kind);
        QWidget *list = editor->findChild<QWidget *>(u"List1"_s);
        list->setFocus();
        ASSERT_EQ(editor->window()->focusWidget(), list);
        editor->action(u"mnuViewApplyColourBothFiles")->trigger();
        EXPECT_EQ(editor->selected().kind(), kind);
        EXPECT_EQ(editor->window()->focusWidget(), list);
        EXPECT_EQ(editor->joystick().cursor().anchor(), 5);
        EXPECT_EQ(editor->joystick().cursor().position(), 1);
        EXPECT_EQ(editor->macro().cursor().anchor(), 2);
        EXPECT_EQ(editor->macro().cursor().position(), 4);
        EXPECT_EQ(status.text(), u"Done");
    }
}

TEST_F(HighlightingTest, AProtectedMacroFileIsLeftOutOfBothAndRefusedAlone)
{
    set(J, u"BTN S1"_s);
    set(M, u"a = /U"_s);
    protectMacro();
    editor->actions().action(u"mnuViewApplyColourBothFiles")->trigger();
    EXPECT_EQ(colours(J), u"bbbbbb");
    EXPECT_EQ(colours(M), u"......");
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    editor->actions().action(u"mnuViewColourMacro")->trigger();
    EXPECT_EQ(colours(M), u"......");
    EXPECT_EQ(dialogs.boxes().size(), 1);
}

TEST_F(HighlightingTest, RemovingColourLeavesTheFontAndTheCaret)
{
    set(J, u"BTN S1 a"_s);
    look(J, 0, 5, [this](CharFormat &format) {
        format.family = u"Courier"_s;
        format.colour = settings.of<ColourSettings>().RAWColour;
        format.bold = format.italic = format.underline = true;
    });
    joystick()->shown().select(3, 2);
    const QStringList texts =
        said([this] { editor->actions().action(u"mnuRemoveColourJoystick")->trigger(); });
    EXPECT_EQ(colours(J), u"........");
    EXPECT_EQ(flagged(J, &CharFormat::bold), u"........");
    EXPECT_EQ(flagged(J, &CharFormat::italic), u"........");
    EXPECT_EQ(flagged(J, &CharFormat::underline), u"........");
    EXPECT_EQ(joystick()->shown().richText().formatAt(0).family, u"Courier");
    EXPECT_EQ(joystick()->shown().selStart(), 3);
    // The user's bold, italic and underline are gone with the colours.
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(texts,
              QStringList({ u"Removing colour highlighting from Untitled.tmj. Please wait ..."_s,
                            u"Done"_s }));
}

TEST_F(HighlightingTest, RemovingTheHighlightersColoursIsNothingToSave)
{
    set(J, u"BTN S1 a"_s);
    highlighting().ApplyColourHighlighting();
    editor->action(u"mnuRemoveColourJoystick")->trigger();
    EXPECT_EQ(colours(J), u"........");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(HighlightingTest, AStylesColourIsWorthSavingUntilItIsGoneAgain)
{
    set(J, u"BTN S1 a"_s);
    editor->saving().SaveText(editor->joystick());
    joystick()->shown().select(0, 3);
    editor->action(u"mnuStyleArray_6")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    editor->action(u"mnuEditRedo")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    editor->saving().SaveText(editor->joystick());
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    editor->action(u"mnuEditUndo")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(HighlightingTest, AFullPassOverSavedBoldKeepsTheStateSinceTheCopyFollows)
{
    set(J, u"BTN S1 a"_s);
    look(J, 0, 3, [](CharFormat &format) { format.bold = true; });
    highlighting().ApplyColourHighlighting();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(HighlightingTest, RemovingColourFromTheMacroFileLeavesTheJoystickFile)
{
    set(J, u"BTN S1"_s);
    set(M, u"a = /U"_s);
    editor->actions().action(u"mnuViewApplyColourBothFiles")->trigger();
    editor->actions().action(u"mnuRemoveColourMacro")->trigger();
    EXPECT_EQ(colours(J), u"bbbbbb");
    EXPECT_EQ(colours(M), u"......");
}

TEST_F(HighlightingTest, RemovingColourFromTheSelectionLeavesTheRest)
{
    set(J, u"BTN S1 /U /M"_s);
    highlighting().ApplyColourHighlighting();
    joystick()->shown().select(4, 5);
    editor->actions().action(u"mnuRemoveColourSelectedText")->trigger();
    EXPECT_EQ(colours(J), u"bbbb......ss");
}

TEST_F(HighlightingTest, RemovingColourFromAProtectedSelectionIsRefused)
{
    set(M, u"a = /U"_s);
    highlighting().ApplyMacroColourHighlighting();
    protectMacro();
    macro()->shown().select(0, 6);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    highlighting().mnuRemoveColourSelectedText_Click();
    EXPECT_EQ(colours(M), u"....ss");
}

TEST_F(HighlightingTest, RemovingColourFromTheSelectionNeedsOne)
{
    set(J, u"BTN S1"_s);
    EXPECT_FALSE(editor->action(u"mnuRemoveColourSelectedText")->isEnabled());
    joystick()->shown().select(0, 2);
    EXPECT_TRUE(editor->action(u"mnuRemoveColourSelectedText")->isEnabled());
}

TEST_F(HighlightingTest, ABlockIsTheLinesThatTheSelectionTouches)
{
    set(J, u"/U a\n/M a\n/D a\n/I a"_s);
    joystick()->shown().select(7, 4);
    highlighting().BlockColour();
    EXPECT_EQ(colours(J), u".....ss...ss.......");
    EXPECT_EQ(joystick()->shown().selStart(), 7);
    EXPECT_EQ(joystick()->shown().selLength(), 4);
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(HighlightingTest, ABlockEndingAtALinesStartTakesThatLineIn)
{
    set(J, u"/U a\n/M a\n/D a"_s);
    joystick()->shown().select(0, 5);
    highlighting().BlockColour();
    EXPECT_EQ(colours(J), u"ss...ss.......");
}

TEST_F(HighlightingTest, ABlockWithoutASelectionIsTheCaretsLine)
{
    set(J, u"/U\n/M\n/D"_s);
    joystick()->shown().select(4, 0);
    highlighting().BlockColour();
    EXPECT_EQ(colours(J), u"...ss...");
    joystick()->shown().select(8, 0);
    highlighting().BlockColour();
    EXPECT_EQ(colours(J), u"...ss.ss");
}

TEST_F(HighlightingTest, ABlockSetsFontAndPlainColourAndNoLook)
{
    set(J, u"abc"_s);
    look(J, 0, 3, [](CharFormat &format) {
        format.family = u"Courier"_s;
        format.italic = true;
        format.colour = 0x123456;
    });
    highlighting().BlockColour();
    EXPECT_EQ(joystick()->shown().richText().formatAt(1), editor->documents().plainFormat(J));
}

TEST_F(HighlightingTest, UseAtALinesVeryEndIsPlainInTheFullPassAndColouredInABlock)
{
    set(J, u"a USE\nb"_s);
    highlighting().ApplyColourHighlighting();
    EXPECT_EQ(colours(J), u".......");
    joystick()->shown().select(0, 0);
    highlighting().BlockColour();
    EXPECT_EQ(colours(J), u"..mmm..");
}

TEST_F(HighlightingTest, MacroTextGetsTheJoystickListWhileTyping)
{
    editor->documents().select(M);
    set(M, u"BTN S1"_s);
    highlighting().BlockColour();
    EXPECT_EQ(colours(M), u"bbbbbb");
}

TEST_F(HighlightingTest, ColouringALineIsAStepToUndoButNothingToSave)
{
    set(J, u"/U\n/M"_s);
    joystick()->shown().select(4, 0);
    editor->actions().action(u"mnuViewHighlightLine")->trigger();
    EXPECT_EQ(colours(J), u"...ss");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_TRUE(editor->action(u"mnuEditUndo")->isEnabled());
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(colours(J), u".....");
}

TEST_F(HighlightingTest, ColouringALineWithoutTheFlagIsNoStep)
{
    set(J, u"/U\n/M"_s);
    highlighting().TestColour(0);
    EXPECT_EQ(colours(J), u"ss...");
    EXPECT_FALSE(editor->action(u"mnuEditUndo")->isEnabled());
}

TEST_F(HighlightingTest, ColouringALineOfAProtectedMacroFileIsRefused)
{
    editor->documents().select(M);
    set(M, u"a = /U"_s);
    protectMacro();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    editor->actions().action(u"mnuViewHighlightLine")->trigger();
    EXPECT_EQ(colours(M), u"......");
}

TEST_F(HighlightingTest, AStatementsTextIsPaintedInTheSelectedDocumentsPlainFormat)
{
    const RichText joystickText = highlighting().ColourType(u"BTN S1 a"_s);
    EXPECT_EQ(joystickText.formatAt(0).colour, settings.of<ColourSettings>().BTNColour);
    EXPECT_EQ(joystickText.formatAt(7), editor->documents().plainFormat(J));
    editor->documents().select(M);
    EXPECT_EQ(highlighting().ColourType(u"a"_s).formatAt(0), editor->documents().plainFormat(M));
}

TEST_F(HighlightingTest, JustRemPaintsCommentsAlone)
{
    const RichText text = highlighting().JustREMtocolour(u"BTN S1 Rem x"_s);
    ASSERT_EQ(text.characters.size(), 2U);
    EXPECT_EQ(text.characters[0].length, 7);
    EXPECT_EQ(text.characters[1].format.colour, settings.of<ColourSettings>().RemStatements);
}

TEST_F(HighlightingTest, RefreshingTheLayoutStripsLooksAndSetsTheMargin)
{
    set(J, u"BTN S1\na"_s);
    highlighting().ApplyColourHighlighting();
    look(J, 0, 8, [](CharFormat &format) {
        format.bold = format.italic = format.underline = true;
        format.family = u"Courier"_s;
        format.pointSize = 30;
    });
    {
        const Document::Quiet quiet(editor->joystick());
        setParagraphFormat(*joystick()->document(), { .leftIndentTwips = 300, .bullet = true });
    }
    joystick()->shown().select(5, 0);
    const QStringList texts =
        said([this] { editor->actions().action(u"mnuViewReformat")->trigger(); });
    RichText expected = RichText::plain(u"BTN S1\na"_s, editor->documents().plainFormat(J));
    expected.paragraphs = { { 2, { .leftIndentTwips = 20 } } };
    EXPECT_EQ(joystick()->shown().richText(), expected);
    EXPECT_EQ(joystick()->shown().selStart(), 5);
    // Looks that the user gave are gone, which the file beside the text still has.
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(texts,
              QStringList({ u"Reformatting layout. Please wait ..."_s,
                            u"Layout refreshed ... (I wish I was!)"_s }));
}

TEST_F(HighlightingTest, RefreshingTheLayoutGoesIntoTheTopUndoSlot)
{
    set(J, u"BTN S1"_s);
    highlighting().ApplyColourHighlighting();
    editor->actions().action(u"mnuViewReformat")->trigger();
    type(J, u"x"_s);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->joystickText(), u"BTN S1");
    EXPECT_EQ(colours(J), u"......");
}

TEST_F(HighlightingTest, RefreshingTheLayoutOfAProtectedOrEmptyDocumentDoesNothing)
{
    EXPECT_EQ(said([this] { editor->actions().action(u"mnuViewReformat")->trigger(); }),
              QStringList());
    editor->documents().select(M);
    set(M, u"a = /U"_s);
    highlighting().ApplyMacroColourHighlighting();
    protectMacro();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    editor->actions().action(u"mnuViewReformat")->trigger();
    EXPECT_EQ(colours(M), u"....ss");
}

TEST_F(HighlightingTest, AFileOpenedWithoutAColouredCopyIsColouredAndGetsOne)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 /U a\r\nRem x\r\n"));
    EXPECT_EQ(colours(J), u"bbbbbb.ss...ccccc.");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_TRUE(QFile::exists(folder.file(u"Rtf/a.tmj"_s)));
    EXPECT_FALSE(editor->action(u"mnuEditUndo")->isEnabled());
}

TEST_F(HighlightingTest, AProtectedMacroFileIsColouredWhenItIsOpened)
{
    protectMacro();
    editor->opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "a = /U\r\n"));
    EXPECT_EQ(colours(M), u"....ss.");
}

namespace {

class TypingColourTest : public HighlightingTest
{
protected:
    void SetUp() override
    {
        settings.of<DocumentSettings>().ColourWithTyping = true;
        showWindow();
    }
};

} // namespace

TEST_F(TypingColourTest, BlankAndEnterColourTheLineBeforeThem)
{
    QTest::keyClicks(joystick(), u"/U"_s);
    EXPECT_EQ(colours(J), u"..");
    QTest::keyClick(joystick(), Qt::Key_Space);
    EXPECT_EQ(colours(J).left(2), u"ss");
    QTest::keyClicks(joystick(), u"/M"_s);
    QTest::keyClick(joystick(), Qt::Key_Return);
    EXPECT_EQ(colours(J).left(2) + colours(J).mid(3, 2), u"ssss");
    EXPECT_EQ(editor->joystickText(), u"/U /M\n");
}

TEST_F(TypingColourTest, BackspaceAndRightColourTheLineAfterThem)
{
    set(J, u"/UX"_s);
    joystick()->shown().select(3, 0);
    QTest::keyClick(joystick(), Qt::Key_Backspace);
    EXPECT_EQ(colours(J), u"ss");
    set(J, u"/U"_s);
    joystick()->shown().select(0, 0);
    QTest::keyClick(joystick(), Qt::Key_Right);
    EXPECT_EQ(colours(J), u"ss");
}

TEST_F(TypingColourTest, TheMouseColoursWhatItHasSelected)
{
    set(J, u"/U\n/M"_s);
    joystick()->shown().select(0, 1);
    QTest::mouseRelease(joystick()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    EXPECT_EQ(colours(J), u"ss...");
    joystick()->shown().select(4, 0);
    QTest::mouseRelease(joystick()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    EXPECT_EQ(colours(J), u"ss...");
}

TEST_F(TypingColourTest, NothingIsColouredWhileTheSettingIsOff)
{
    settings.of<DocumentSettings>().ColourWithTyping = false;
    QTest::keyClicks(joystick(), u"/U /M"_s);
    QTest::keyClick(joystick(), Qt::Key_Return);
    EXPECT_EQ(colours(J), u"......");
}

TEST_F(TypingColourTest, AProtectedMacroTextStaysAsItIs)
{
    editor->documents().select(M);
    set(M, u"/U"_s);
    protectMacro();
    QTest::keyClick(macro(), Qt::Key_Right);
    EXPECT_EQ(colours(M), u"..");
}

TEST_F(TypingColourTest, TypingWithColoursIsAsOneUndoStepAWord)
{
    QTest::keyClicks(joystick(), u"/U /M"_s);
    const QString text = editor->joystickText();
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->joystickText(), u"/U");
    editor->undos().mnuEditRedo_Click();
    EXPECT_EQ(editor->joystickText(), text);
}
