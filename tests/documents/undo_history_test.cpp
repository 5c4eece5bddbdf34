// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/undo_histories.h"

#include "documents/document.h"

#include "documents/coloured_insert.h"
#include "documents/document_settings.h"
#include "documents/line_blink.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "tests/support/editor_fixture.h"
#include "tests/support/rich_texts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

using namespace zeph;

namespace {

class UndoTest : public test::EditorTest
{
protected:
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    TextControl *macro() { return &editor->view().control(DocumentKind::Macro); }
    UndoHistory &history() { return editor->undos().of(DocumentKind::Joystick); }
    QAction *undoEntry() { return editor->action(u"mnuEditUndo"); }
    QAction *redoEntry() { return editor->action(u"mnuEditRedo"); }
    void undo() { undoEntry()->trigger(); }
    void redo() { redoEntry()->trigger(); }
    void keys(const QString &text) { QTest::keyClicks(joystick(), text); }
    void key(int which, Qt::KeyboardModifiers held = {})
    {
        QTest::keyClick(joystick(), Qt::Key(which), held);
    }
    QString text() { return editor->joystickText(); }

    /// The texts that undoing shows one after the other, down to the oldest.
    QStringList undoAll()
    {
        QStringList texts;
        while (undoEntry()->isEnabled()) {
            undo();
            texts.append(text());
        }
        return texts;
    }
    /// A tool writes into the joystick file, framed as every tool frames it.
    void insertAsTool(const QString &piece)
    {
        Change change(editor->joystick());
        joystick()->insertPlainText(u" "_s);
        joystick()->insertPlainText(piece);
        change.commit();
    }
    void colour(int from, int length, ColorRef colour)
    {
        RichText looks = joystick()->shown().richText();
        looks.change(from, length, [&](CharFormat &format) { format.colour = colour; });
        const int caret = joystick()->shown().selStart();
        joystick()->shown().setRichText(looks);
        joystick()->shown().select(caret, 0);
    }
};

} // namespace

TEST_F(UndoTest, NothingCanBeUndoneAtStart)
{
    EXPECT_EQ(undoEntry()->text(), u"&Undo");
    EXPECT_EQ(redoEntry()->text(), u"&Redo");
    EXPECT_EQ(undoEntry()->toolTip(), u"Undo");
    EXPECT_EQ(redoEntry()->toolTip(), u"Redo");
    EXPECT_FALSE(undoEntry()->isEnabled());
    EXPECT_FALSE(redoEntry()->isEnabled());
    EXPECT_EQ(history().slots(), 1);
    EXPECT_EQ(history().UndoIndex(), 1);
    EXPECT_EQ(history().UndoStepNext, 1);
}

TEST_F(UndoTest, UndoMaxOfTenHoldsElevenStates)
{
    settings.of<DocumentSettings>().UndoMax = 10;
    for (int word = 0; word < 30; ++word) {
        insertAsTool(QString::number(word));
    }
    EXPECT_EQ(history().slots(), 11);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (10)");
    EXPECT_EQ(undoAll().size(), 10);
}

TEST_F(UndoTest, AFullHistoryDropsTheOldestState)
{
    settings.of<DocumentSettings>().UndoMax = 10;
    for (int word = 0; word <= 10; ++word) {
        insertAsTool(QString::number(word));
    }
    EXPECT_EQ(undoAll().last(), u" 0");
}

TEST_F(UndoTest, ALoweredUndoMaxKeepsWhatIsHeld)
{
    for (int word = 0; word < 15; ++word) {
        insertAsTool(QString::number(word));
    }
    settings.of<DocumentSettings>().UndoMax = 10;
    insertAsTool(u"more"_s);
    EXPECT_EQ(history().slots(), 16);
}

TEST_F(UndoTest, TwoWordsAreTwoSteps)
{
    keys(u"BTN S1"_s);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (2)");
    EXPECT_EQ(undoAll(), (QStringList{ u"BTN"_s, QString() }));
}

TEST_F(UndoTest, TwoBlanksInARowAreOneStep)
{
    keys(u"a  b"_s);
    EXPECT_EQ(undoAll(), (QStringList{ u"a"_s, QString() }));
}

TEST_F(UndoTest, TwoLineEndsInARowAreOneStep)
{
    keys(u"a"_s);
    key(Qt::Key_Return);
    key(Qt::Key_Enter);
    keys(u"b"_s);
    EXPECT_EQ(text(), u"a\n\nb");
    EXPECT_EQ(undoAll(), (QStringList{ u"a"_s, QString() }));
}

TEST_F(UndoTest, ABlankAfterALineEndIsAStep)
{
    keys(u"a"_s);
    key(Qt::Key_Return);
    keys(u" "_s);
    key(Qt::Key_Return);
    EXPECT_EQ(undoAll(), (QStringList{ u"a\n "_s, u"a\n"_s, u"a"_s, QString() }));
}

TEST_F(UndoTest, EachBackspaceIsAStep)
{
    keys(u"abc"_s);
    key(Qt::Key_Backspace);
    key(Qt::Key_Backspace);
    EXPECT_EQ(undoAll(), (QStringList{ u"ab"_s, u"abc"_s, QString() }));
}

TEST_F(UndoTest, EachDeleteIsAStep)
{
    keys(u"abc"_s);
    joystick()->shown().select(0, 0);
    key(Qt::Key_Delete);
    key(Qt::Key_Delete);
    EXPECT_EQ(undoAll(), (QStringList{ u"bc"_s, u"abc"_s, QString() }));
}

TEST_F(UndoTest, AFirstBlankInAnEmptyTextMakesNoStep)
{
    keys(u" "_s);
    EXPECT_EQ(text(), u" ");
    EXPECT_FALSE(undoEntry()->isEnabled());
    EXPECT_EQ(history().slots(), 1);
}

TEST_F(UndoTest, KeysThatChangeNothingLeaveTheNextStepAlone)
{
    keys(u"a b"_s);
    for (const int which : { Qt::Key_Left, Qt::Key_Shift, Qt::Key_Home, Qt::Key_F24 }) {
        key(which);
        EXPECT_EQ(history().UndoStepNext, 1) << which;
    }
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(history().UndoStepNext, 1);
}

TEST_F(UndoTest, ComposedCharactersAreTypingToo)
{
    keys(u"a"_s);
    for (const QString &letter : { u"\u00e9"_s, u"\u00fc"_s, u" "_s, u"\u00e0"_s }) {
        QInputMethodEvent composed;
        composed.setCommitString(letter);
        QCoreApplication::sendEvent(joystick(), &composed);
    }
    EXPECT_EQ(text(), u"a\u00e9\u00fc \u00e0");
    EXPECT_EQ(undoAll(), (QStringList{ u"a\u00e9\u00fc"_s, QString() }));
}

TEST_F(UndoTest, PasteAndCutAreStepsOfTheirOwn)
{
    keys(u"ab"_s);
    QGuiApplication::clipboard()->setText(u"cd"_s);
    editor->action(u"mnuEditPaste")->trigger();
    keys(u"e"_s);
    joystick()->shown().select(0, 1);
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(text(), u"bcde");
    EXPECT_EQ(undoAll(), (QStringList{ u"abcde"_s, u"ab"_s, QString() }));
}

TEST_F(UndoTest, AToolsInsertIsOneStep)
{
    keys(u"BTN"_s);
    insertAsTool(u"S1"_s);
    EXPECT_EQ(text(), u"BTN S1");
    EXPECT_TRUE(editor->joystick().isModified());
    undo();
    EXPECT_EQ(text(), u"BTN");
    redo();
    EXPECT_EQ(text(), u"BTN S1");
}

TEST_F(UndoTest, ColoursComeBackWithTheText)
{
    keys(u"BTN S1"_s);
    colour(0, 3, 0x0000FF);
    history().storeShown();
    const RichText red = joystick()->shown().richText();
    keys(u" x"_s);
    colour(0, 3, 0x00FF00);
    undo();
    EXPECT_EQ(joystick()->shown().richText(), red);
}

TEST_F(UndoTest, ColouringAloneIsNoStep)
{
    keys(u"BTN"_s);
    const QString caption = undoEntry()->text();
    colour(0, 3, 0x0000FF);
    history().storeShown();
    EXPECT_EQ(undoEntry()->text(), caption);
}

TEST_F(UndoTest, TheCaretComesBackToWhereItWas)
{
    keys(u"one two"_s);
    joystick()->shown().select(0, 0);
    key(Qt::Key_Delete);
    undo();
    EXPECT_EQ(text(), u"one two");
    EXPECT_EQ(joystick()->shown().selStart(), 7);
    EXPECT_EQ(joystick()->shown().selLength(), 0);
    EXPECT_EQ(editor->joystick().selStart(), 7);
    redo();
    EXPECT_EQ(joystick()->shown().selStart(), 0);
    EXPECT_EQ(editor->joystick().selStart(), 0);
}

TEST_F(UndoTest, TheLinePanelFollows)
{
    keys(u"a"_s);
    key(Qt::Key_Return);
    keys(u"b c"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(status.lineText(), u"Line no: 3");
    undo();
    EXPECT_EQ(status.lineText(), u"Line no: 2");
}

TEST_F(UndoTest, TheCaptionsCountWhatIsLeft)
{
    keys(u"a b c"_s);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (3)");
    EXPECT_EQ(undoEntry()->toolTip(), u"Undo (3)");
    undo();
    EXPECT_EQ(undoEntry()->text(), u"&Undo (2)");
    EXPECT_EQ(redoEntry()->text(), u"&Redo (1)");
    EXPECT_EQ(redoEntry()->toolTip(), u"Redo (1)");
    undo();
    undo();
    EXPECT_EQ(undoEntry()->text(), u"&Undo");
    EXPECT_FALSE(undoEntry()->isEnabled());
    EXPECT_EQ(redoEntry()->text(), u"&Redo (3)");
    redo();
    redo();
    redo();
    EXPECT_EQ(redoEntry()->text(), u"&Redo");
    EXPECT_FALSE(redoEntry()->isEnabled());
    EXPECT_EQ(text(), u"a b c");
}

TEST_F(UndoTest, TypingAfterUndoKeepsTheLaterSlots)
{
    keys(u"a b c"_s);
    undo();
    undo();
    ASSERT_EQ(text(), u"a");
    key(Qt::Key_Backspace);
    // A push over slot 1: all four states before are reachable still.
    EXPECT_EQ(history().UndoIndex(), 1);
    EXPECT_EQ(redoEntry()->text(), u"&Redo");
    EXPECT_EQ(undoAll(), (QStringList{ u"a b c"_s, u"a b"_s, u"a"_s, QString() }));
}

TEST_F(UndoTest, ALetterAfterUndoLeavesTheNewestStateWithinReach)
{
    keys(u"a b c"_s);
    undo();
    keys(u"x"_s);
    EXPECT_EQ(text(), u"a bx");
    EXPECT_EQ(history().UndoIndex(), 1);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (4)");
    EXPECT_FALSE(redoEntry()->isEnabled());
    EXPECT_EQ(undoAll(), (QStringList{ u"a b c"_s, u"a b"_s, u"a"_s, QString() }));
}

TEST_F(UndoTest, ToolsOverAnUndoneStateLeaveTheNewestOne)
{
    const QString before = u"BTN S1 a /U b"_s;
    const auto colourLine = [this] {
        joystick()->shown().select(0, 0);
        editor->action(u"mnuViewHighlightLine")->trigger();
    };
    const std::function<void()> tools[] = {
        [this] { editor->action(u"mnuViewColourJoystick")->trigger(); },
        [this] { editor->action(u"mnuViewReformat")->trigger(); },
        [this] { editor->action(u"mnuViewrefreshIndent")->trigger(); },
        [this] { editor->action(u"mnuAlignSlash")->trigger(); },
        colourLine,
        [this] { editor->action(u"mnuEditPaste")->trigger(); },
        [this] { editor->action(u"mnuPasteSimple")->trigger(); },
        [this] {
            editor->insert().BeginColInsert();
            editor->insert().EndColInsert();
        },
    };
    QGuiApplication::clipboard()->setText(u"pasted"_s);
    for (const auto &tool : tools) {
        editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a /U b"));
        joystick()->shown().select(0, 0);
        keys(u"newest"_s);
        undo();
        ASSERT_EQ(text(), before);
        tool();
        // Either nothing was a step, and redo leads there, or it was one, and undo does.
        QStringList reached = undoAll();
        while (redoEntry()->isEnabled()) {
            redo();
            reached.append(text());
        }
        EXPECT_TRUE(reached.contains(u"newest"_s + before)) << reached.join(u'|').toStdString();
        editor->joystick().setState(Document::Saved);
    }
}

TEST_F(UndoTest, TypingOverASelectionIsAStep)
{
    keys(u"one two"_s);
    joystick()->shown().select(4, 3);
    keys(u"x"_s);
    EXPECT_EQ(text(), u"one x");
    undo();
    EXPECT_EQ(text(), u"one two");
}

TEST_F(UndoTest, TheFirstKeyAfterTheCaretWasMovedIsAStep)
{
    keys(u"onetwo"_s);
    key(Qt::Key_Home);
    keys(u"x"_s);
    key(Qt::Key_End);
    key(Qt::Key_Left);
    key(Qt::Key_Right);
    keys(u"y"_s);
    EXPECT_EQ(undoAll(), (QStringList{ u"xonetwo"_s, u"onetwo"_s, QString() }));
}

TEST_F(UndoTest, APasteOfWhatIsThereIsNoStep)
{
    keys(u"one"_s);
    const QString caption = undoEntry()->text();
    joystick()->shown().select(0, 3);
    joystick()->insertPlainText(u"one"_s);
    EXPECT_EQ(undoEntry()->text(), caption);
}

TEST_F(UndoTest, AnUndoneSaveIsModifiedAndARedoneOneIsSaved)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    keys(u"x y"_s);
    editor->saving().mnuFileSave_Click();
    undo();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    redo();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    undo();
    undo();
    EXPECT_EQ(text(), u"BTN");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(UndoTest, TheStampOfASaveIsPartOfTheNewestState)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "Rem Last modified: never"));
    key(Qt::Key_End);
    key(Qt::Key_Return);
    keys(u"a b"_s);
    editor->saving().mnuFileSave_Click();
    const QString saved = text();
    ASSERT_TRUE(saved.contains(u"05 March 2024"_s));
    undo();
    ASSERT_NE(text(), saved);
    redo();
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(UndoTest, PlainTextHasTodaysFontWhateverIsUndoneAndAStyleKeepsItsOwn)
{
    keys(u"one two"_s);
    {
        Change change(editor->joystick());
        editor->joystick().changeLooks(0, 3, [](CharFormat &look) {
            look = { .family = u"Courier"_s, .pointSize = 20, .colour = ColorRef(255) };
        });
        change.commit();
    }
    keys(u" three"_s);
    settings.of<ColourSettings>().TextFontName = u"Times"_s;
    settings.of<ColourSettings>().TextFontSize = 12;
    editor->applySettings();
    const auto expectFonts = [this] {
        const RichText shown = joystick()->shown().richText();
        EXPECT_EQ(shown.formatAt(0).family, u"Courier");
        EXPECT_EQ(shown.formatAt(0).pointSize, 20);
        EXPECT_EQ(shown.formatAt(5).family, u"Times");
        EXPECT_EQ(shown.formatAt(5).pointSize, 12);
    };
    expectFonts();
    undo();
    ASSERT_EQ(text(), u"one two");
    expectFonts();
    redo();
    expectFonts();
}

TEST_F(UndoTest, CtrlZAndCtrlYRunTheEntries)
{
    keys(u"a b"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"a");
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text(), u"a b");
}

TEST_F(UndoTest, UndoingMakesNoStep)
{
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    keys(u"x y"_s);
    editor->saving().mnuFileSave_Click();
    undo();
    EXPECT_EQ(history().slots(), 3);
}

TEST_F(UndoTest, EachDocumentHasItsOwnHistoryAndTheCaptionsFollowTheTab)
{
    keys(u"a b"_s);
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(undoEntry()->text(), u"&Undo");
    QTest::keyClicks(macro(), u"c"_s);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (1)");
    undo();
    EXPECT_EQ(editor->macroText(), QString());
    EXPECT_EQ(text(), u"a b");
    EXPECT_EQ(redoEntry()->text(), u"&Redo (1)");
    editor->documents().select(DocumentKind::Joystick);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (2)");
    EXPECT_EQ(redoEntry()->text(), u"&Redo");
}

TEST_F(UndoTest, AProtectedMacroFileIsNotUndone)
{
    editor->documents().select(DocumentKind::Macro);
    QTest::keyClicks(macro(), u"a b"_s);
    undo();
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    undo();
    redo();
    EXPECT_EQ(editor->macroText(), u"a");
    EXPECT_EQ(dialogs.boxes().size(), 2);
    // What is typed at it in vain must not swallow the next step.
    QTest::keyClicks(macro(), u"q"_s);
    EXPECT_EQ(editor->undos().of(DocumentKind::Macro).UndoStepNext, 1);
}

TEST_F(UndoTest, ASaveWithUndoClearOnSaveDisablesUndo)
{
    settings.of<DocumentSettings>().UndoClearOnSave = true;
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    keys(u"x y"_s);
    undo();
    editor->documents().select(DocumentKind::Joystick);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(undoEntry()->text(), u"&Undo");
    EXPECT_FALSE(undoEntry()->isEnabled());
    EXPECT_FALSE(redoEntry()->isEnabled());
    EXPECT_EQ(history().slots(), 1);
    keys(u"z"_s);
    undo();
    EXPECT_EQ(text(), u"xBTN");
    EXPECT_EQ(joystick()->shown().selStart(), 0);
}

TEST_F(UndoTest, ASaveWithoutUndoClearOnSaveKeepsTheHistory)
{
    settings.of<DocumentSettings>().UndoClearOnSave = false;
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    keys(u"x y"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(undoEntry()->text(), u"&Undo (2)");
}

TEST_F(UndoTest, ASaveClearsTheHistoryOfItsDocumentAlone)
{
    settings.of<DocumentSettings>().UndoClearOnSave = true;
    keys(u"a b"_s);
    editor->opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "M = x"));
    QTest::keyClicks(macro(), u"q"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_FALSE(undoEntry()->isEnabled());
    editor->documents().select(DocumentKind::Joystick);
    EXPECT_EQ(undoEntry()->text(), u"&Undo (2)");
}

TEST_F(UndoTest, AFailedSaveKeepsTheHistory)
{
    settings.of<DocumentSettings>().UndoClearOnSave = true;
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    keys(u"x"_s);
    QDir(folder.file(u"Files"_s)).removeRecursively();
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(undoEntry()->text(), u"&Undo (1)");
}

TEST_F(UndoTest, ALoadedFileStartsWithOneSlotHoldingIt)
{
    keys(u"a b"_s);
    editor->joystick().setState(Document::Saved);
    editor->opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 Fire"));
    EXPECT_EQ(history().slots(), 1);
    EXPECT_EQ(undoEntry()->text(), u"&Undo");
    const RichText loaded = joystick()->shown().richText();
    keys(u"x"_s);
    undo();
    EXPECT_EQ(joystick()->shown().richText(), loaded);
    EXPECT_EQ(joystick()->shown().selStart(), 0);
}

TEST_F(UndoTest, NewAndCloseStartTheirHistoryAfresh)
{
    for (const QStringView entry : { u"mnuFileNewJoystick", u"mnuFileClose" }) {
        keys(u"a b"_s);
        undo();
        editor->joystick().setState(Document::Saved);
        editor->action(entry)->trigger();
        EXPECT_EQ(undoEntry()->text(), u"&Undo");
        EXPECT_EQ(redoEntry()->text(), u"&Redo");
        EXPECT_FALSE(undoEntry()->isEnabled());
        EXPECT_EQ(history().slots(), 1);
    }
    keys(u"c"_s);
    undo();
    EXPECT_EQ(text(), QString());
}

TEST_F(UndoTest, TypingIntoAnEmptiedTextHasTheSchemesLooks)
{
    keys(u"a"_s);
    const RichText typed = joystick()->shown().richText();
    undo();
    ASSERT_EQ(text(), QString());
    keys(u"a"_s);
    EXPECT_EQ(joystick()->shown().richText(), typed);
}

TEST_F(UndoTest, AnEmptiedTextHasItsMarginBack)
{
    joystick()->shown().setRichText(RichText::plain(
        u"a\nb"_s, {}, { .leftIndentTwips = 300, .alignment = ParagraphAlignment::Centre }));
    joystick()->selectAll();
    key(Qt::Key_Delete);
    ASSERT_EQ(text(), QString());
    const std::vector<ParagraphRun> margin{ { 1, { .leftIndentTwips = 20 } } };
    EXPECT_EQ(joystick()->shown().richText().paragraphs, margin);
    keys(u"c"_s);
    EXPECT_EQ(joystick()->shown().richText().paragraphs, margin);
}

TEST_F(UndoTest, DeletingTheUndosFromMemoryLeavesThePresentTextInBothDocuments)
{
    keys(u"a b"_s);
    editor->documents().select(DocumentKind::Macro);
    QTest::keyClicks(macro(), u"c d"_s);
    editor->undos().DeleteUndosFromMemory();
    EXPECT_FALSE(undoEntry()->isEnabled());
    EXPECT_EQ(editor->undos().of(DocumentKind::Macro).slots(), 1);
    EXPECT_EQ(history().slots(), 1);
    EXPECT_LT(history().bytesHeld(), 1000);
    EXPECT_EQ(text(), u"a b");
    editor->documents().select(DocumentKind::Joystick);
    keys(u"c"_s);
    undo();
    EXPECT_EQ(text(), u"a b");
}

TEST_F(UndoTest, ThousandStepsInALongFileFitIntoFiftyMegabytes)
{
    settings.of<DocumentSettings>().UndoMax = 1000;
    QString lines;
    for (int line = 0; line < 10000; ++line) {
        lines += u"BTN H1U /U /I Radar_Mode DLY(60) /O Missile_Mode Rem line\n"_s;
    }
    joystick()->shown().setText(lines);
    editor->undos().startOver(DocumentKind::Joystick);
    for (int step = 0; step < 1000; ++step) {
        // Each in another place, so that none shares its chunk with the step before.
        joystick()->shown().select(int(step * 997LL * 631 % (lines.size() - 2000)), 0);
        key(Qt::Key_Delete);
    }
    EXPECT_EQ(history().slots(), 1001);
    EXPECT_LT(history().bytesHeld(), 50'000'000);
    while (history().canUndo()) {
        undo();
    }
    EXPECT_EQ(text(), lines);
}

TEST_F(UndoTest, TheCaretsLineBlinksWhenTheSettingSaysSo)
{
    settings.of<DocumentSettings>().HighlightLineOnUndo = true;
    auto *timer = editor->undos().findChild<QTimer *>(u"TimerBlinkLine"_s);
    ASSERT_TRUE(timer);
    EXPECT_EQ(timer->interval(), 100);
    keys(u"one"_s);
    key(Qt::Key_Return);
    keys(u"two three"_s);
    undo();
    ASSERT_EQ(text(), u"one\ntwo");
    EXPECT_TRUE(timer->isActive());
    const auto tick = [timer] {
        QMetaObject::invokeMethod(timer, "timeout");
    };
    const auto selection = [this] {
        const QTextCursor seen = joystick()->textCursor();
        return std::pair(seen.selectionStart(), seen.selectionEnd() - seen.selectionStart());
    };
    EXPECT_EQ(selection(), std::pair(4, 3));
    EXPECT_EQ(editor->joystick().selStart(), 7);
    tick();
    EXPECT_EQ(selection(), std::pair(7, 0));
    tick();
    EXPECT_EQ(selection(), std::pair(4, 3));
    EXPECT_EQ(editor->joystick().selStart(), 7);
    EXPECT_TRUE(timer->isActive());
    tick();
    EXPECT_EQ(selection(), std::pair(7, 0));
    EXPECT_FALSE(timer->isActive());
}

TEST_F(UndoTest, NothingBlinksWithoutTheSetting)
{
    keys(u"a b"_s);
    undo();
    EXPECT_FALSE(editor->undos().findChild<QTimer *>(u"TimerBlinkLine"_s)->isActive());
    EXPECT_EQ(joystick()->shown().selLength(), 0);
}

TEST_F(UndoTest, WhoTypesIntoABlinkingLineReplacesNothing)
{
    settings.of<DocumentSettings>().HighlightLineOnUndo = true;
    keys(u"one two three"_s);
    undo();
    ASSERT_EQ(joystick()->textCursor().selectedText().size(), 7);
    keys(u"x"_s);
    EXPECT_EQ(text(), u"one twox");
    undo();
    QGuiApplication::clipboard()->setText(u"pasted"_s);
    const QString before = text();
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(), before + u"pasted"_s);
}

TEST_F(UndoTest, AMenuEntryEndsTheBlinkingFirst)
{
    settings.of<DocumentSettings>().HighlightLineOnUndo = true;
    keys(u"one two three"_s);
    undo();
    ASSERT_EQ(joystick()->textCursor().selectedText(), u"one two");
    editor->action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(joystick()->textCursor().selectedText(), QString());
}

TEST_F(UndoTest, ATabChangeEndsTheBlinking)
{
    settings.of<DocumentSettings>().HighlightLineOnUndo = true;
    keys(u"a b"_s);
    undo();
    editor->documents().select(DocumentKind::Macro);
    EXPECT_FALSE(editor->undos().findChild<QTimer *>(u"TimerBlinkLine"_s)->isActive());
    EXPECT_EQ(joystick()->shown().selLength(), 0);
    EXPECT_EQ(joystick()->shown().selStart(), 1);
}

TEST_F(UndoTest, SelectLineTakesTheCaretsLineWithoutItsEnd)
{
    type(DocumentKind::Joystick, u"first\nsecond\n\nlast"_s);
    const auto lineAt = [this](int caret) {
        joystick()->shown().select(caret, 0);
        editor->action(u"mnuEditSelectLine")->trigger();
        return joystick()->textCursor().selectedText();
    };
    EXPECT_EQ(lineAt(0), u"first");
    EXPECT_EQ(lineAt(5), u"first");
    EXPECT_EQ(lineAt(6), u"second");
    EXPECT_EQ(lineAt(13), QString());
    EXPECT_EQ(lineAt(18), u"last");
    EXPECT_EQ(editor->joystick().selStart(), 14);
}
