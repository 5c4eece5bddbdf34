// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/clipboard_operations.h"

#include "documents/undo_histories.h"
#include "editor/edit/editing_tools.h"
#include "platform/core/rtf.h"
#include "settings/colour_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

using namespace zeph;
using zeph::test::blue;
using zeph::test::EditorTest;

namespace {

constexpr ColorRef red = 0x0000FF;

class ClipboardOperationsTest : public EditorTest
{
protected:
    ClipboardOperationsTest()
    {
        settings.of<ColourSettings>().JoystickTextDefaultColour = blue;
        QGuiApplication::clipboard()->clear();
        editor->applySettings();
        type(DocumentKind::Joystick, u"one two"_s);
        editor->undos().startOver(DocumentKind::Joystick);
    }
    TextControl &joystick() { return editor->view().control(DocumentKind::Joystick); }
    int steps() { return editor->undos().of(DocumentKind::Joystick).slots() - 1; }
    void trigger(const QString &entry) { editor->action(entry)->trigger(); }
    /// Puts red, italic text in another font on the clipboard, as a word processor does.
    void offerRichText()
    {
        const CharFormat format{ u"Courier New"_s, 20, true, true, false, red };
        const RichText text =
            RichText::plain(u"rich\ntext"_s, format, { 0, ParagraphAlignment::Left, true });
        auto *data = new QMimeData;
        data->setText(u"rich\ntext"_s);
        data->setData(u"text/rtf"_s, writeRtf(text));
        QGuiApplication::clipboard()->setMimeData(data);
    }
    const QMimeData &clipboard() { return *QGuiApplication::clipboard()->mimeData(); }
};

} // namespace

TEST_F(ClipboardOperationsTest, CopyOffersPlainAndRichText)
{
    joystick().shown().changeLooks(4, 3, [](CharFormat &format) { format.colour = red; });
    joystick().shown().select(2, 5);
    trigger(u"mnuEditCopy"_s);
    EXPECT_EQ(clipboard().text(), u"e two");
    const auto rich = readRtf(clipboard().data(u"text/rtf"_s));
    ASSERT_TRUE(rich);
    EXPECT_EQ(rich->text, u"e two");
    EXPECT_EQ(rich->formatAt(0).colour, blue);
    EXPECT_EQ(rich->formatAt(2).colour, red);
    EXPECT_EQ(editor->joystickText(), u"one two");
}

TEST_F(ClipboardOperationsTest, CutIsCopyAndOneStep)
{
    joystick().shown().select(3, 4);
    trigger(u"mnuEditCut"_s);
    EXPECT_EQ(editor->joystickText(), u"one");
    EXPECT_EQ(clipboard().text(), u" two");
    EXPECT_EQ(joystick().shown().selStart(), 3);
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    trigger(u"mnuEditUndo"_s);
    EXPECT_EQ(editor->joystickText(), u"one two");
}

TEST_F(ClipboardOperationsTest, PastedRichTextTakesTheFontAndKeepsItsColours)
{
    offerRichText();
    joystick().shown().select(0, 3);
    trigger(u"mnuEditPaste"_s);
    EXPECT_EQ(editor->joystickText(), u"rich\ntext two");
    const CharFormat pasted = joystick().shown().richText().formatAt(0);
    EXPECT_EQ(pasted.family, u"Arial");
    EXPECT_EQ(pasted.pointSize, 8);
    EXPECT_FALSE(pasted.bold);
    EXPECT_TRUE(pasted.italic);
    EXPECT_EQ(pasted.colour, red);
    for (const ParagraphRun &run : joystick().shown().richText().paragraphs) {
        EXPECT_FALSE(run.format.bullet);
    }
    EXPECT_EQ(joystick().shown().selStart(), 9);
    EXPECT_EQ(steps(), 1);
    trigger(u"mnuEditUndo"_s);
    EXPECT_EQ(editor->joystickText(), u"one two");
}

TEST_F(ClipboardOperationsTest, TypingAfterPastedTextIsPlain)
{
    offerRichText();
    trigger(u"mnuEditPaste"_s);
    editor->show();
    QTest::keyClicks(&joystick(), u"x"_s);
    const qsizetype typed = joystick().shown().selStart() - 1;
    EXPECT_EQ(joystick().shown().richText().formatAt(typed).colour, blue);
    EXPECT_FALSE(joystick().shown().richText().formatAt(typed).italic);
}

TEST_F(ClipboardOperationsTest, PastedPlainTextHasThePlainColour)
{
    QGuiApplication::clipboard()->setText(u"a\r\nb"_s);
    joystick().shown().select(7, 0);
    trigger(u"mnuEditPaste"_s);
    EXPECT_EQ(editor->joystickText(), u"one twoa\nb");
    EXPECT_EQ(joystick().shown().richText().formatAt(7),
              editor->documents().plainFormat(DocumentKind::Joystick));
}

TEST_F(ClipboardOperationsTest, PastingAsSimpleTextDropsTheLooks)
{
    offerRichText();
    joystick().shown().select(0, 7);
    trigger(u"mnuPasteSimple"_s);
    EXPECT_EQ(editor->joystickText(), u"rich\ntext");
    EXPECT_EQ(joystick().shown().richText().formatAt(0),
              editor->documents().plainFormat(DocumentKind::Joystick));
    EXPECT_EQ(steps(), 1);
}

TEST_F(ClipboardOperationsTest, BrokenRichTextGivesItsPlainText)
{
    auto *data = new QMimeData;
    data->setText(u"plain"_s);
    data->setData(u"text/rtf"_s, "{\\rtf1 never closed");
    QGuiApplication::clipboard()->setMimeData(data);
    joystick().shown().select(0, 7);
    trigger(u"mnuEditPaste"_s);
    EXPECT_EQ(editor->joystickText(), u"plain");
}

TEST_F(ClipboardOperationsTest, AnEmptyClipboardPastesNothing)
{
    EXPECT_FALSE(editor->action(u"mnuEditPaste")->isEnabled());
    EXPECT_FALSE(editor->action(u"mnuPasteSimple")->isEnabled());
    editor->editing().clipboard().mnuEditPaste_Click();
    EXPECT_EQ(editor->joystickText(), u"one two");
    EXPECT_EQ(steps(), 0);
}

TEST_F(ClipboardOperationsTest, WithoutASelectionNothingIsCutOrDeleted)
{
    joystick().shown().select(3, 0);
    editor->editing().clipboard().mnuEditCut_Click();
    editor->editing().clipboard().mnuEditDelete_Click();
    EXPECT_EQ(editor->joystickText(), u"one two");
    EXPECT_EQ(steps(), 0);
}

TEST_F(ClipboardOperationsTest, DeletingIsOneStepEvenWithinAWord)
{
    editor->show();
    joystick().shown().select(7, 0);
    QTest::keyClicks(&joystick(), u" abc"_s);
    const int before = steps();
    joystick().shown().select(0, 4);
    trigger(u"mnuEditDelete"_s);
    EXPECT_EQ(editor->joystickText(), u"two abc");
    EXPECT_EQ(steps(), before + 1);
}

TEST_F(ClipboardOperationsTest, AProtectedMacroFileRefusesAllThatChangesIt)
{
    type(DocumentKind::Macro, u"a = b"_s);
    editor->action(u"mnuPreferencesProtectMacroFile")->trigger();
    editor->documents().select(DocumentKind::Macro);
    editor->view().control(DocumentKind::Macro).selectAll();
    offerRichText();
    for (const QString &entry :
         { u"mnuEditCut"_s, u"mnuEditDelete"_s, u"mnuEditPaste"_s, u"mnuPasteSimple"_s }) {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        trigger(entry);
    }
    EXPECT_EQ(editor->macroText(), u"a = b");
    EXPECT_EQ(clipboard().text(), u"rich\ntext");
    trigger(u"mnuEditCopy"_s);
    EXPECT_EQ(clipboard().text(), u"a = b");
}

TEST_F(ClipboardOperationsTest, TheOtherKeysOfTheClipboardDoTheSame)
{
    editor->show();
    joystick().shown().select(0, 4);
    QTest::keyClick(&joystick(), Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), u"one ");
    QTest::keyClick(&joystick(), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(editor->joystickText(), u"two");
    EXPECT_EQ(steps(), 1);
    QTest::keyClick(&joystick(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(editor->joystickText(), u"one two");
    EXPECT_EQ(steps(), 2);
}
