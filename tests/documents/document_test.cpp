// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document.h"
#include "documents/documents.h"
#include "documents/editor_texts.h"
#include "platform/richtext/rich_text_box.h"
#include "settings/colour_settings.h"
#include "tests/support/painting_fixture.h"

#include <QSignalSpy>

using namespace zeph;

namespace {

/// A document without a window.
class DocumentTest : public testing::Test
{
protected:
    DocumentTest()
    {
        document.setPlain(plain);
        document.setText(u"one two"_s);
        document.tellReplaced(Document::How::Loaded, "one two");
    }

    CharFormat plain{ .family = u"Arial"_s, .pointSize = 8, .colour = ColorRef(0) };
    int undoMax = 10;
    Document document{ DocumentKind::Joystick, undoMax };
};

class InsertTest : public test::PaintingTest
{
protected:
    Documents &documents() { return editor->documents(); }
    int steps(DocumentKind kind) { return documents().of(kind).history().slots() - 1; }
};

} // namespace

TEST_F(DocumentTest, ACommittedChangeOfManyPiecesIsOneStep)
{
    QSignalSpy edits(&document, &Document::edited);
    {
        Change change(document);
        document.replace(0, 3, u"1"_s);
        document.replace(2, 3, u"2"_s);
        EXPECT_EQ(edits.size(), 0);
        EXPECT_TRUE(change.commit());
    }
    EXPECT_EQ(edits.size(), 1);
    EXPECT_EQ(document.text(), u"1 2");
    EXPECT_EQ(document.state(), Document::Modified);
    document.undo();
    EXPECT_EQ(document.text(), u"one two");
    EXPECT_FALSE(document.history().canUndo());
}

TEST_F(DocumentTest, AChangeThatIsThrownAwayLeavesTextLooksCaretAndStateAsTheyWere)
{
    document.setCharacterRuns({ { 3, { .family = u"Arial"_s, .bold = true, .colour = 255 } } });
    document.setCaret(5, 2);
    const RichText before = document.richText();
    QSignalSpy edits(&document, &Document::edited);
    {
        Change change(document);
        document.replaceWhole(u"all\nnew"_s);
        document.changeLooks(0, 3, [](CharFormat &look) { look.italic = true; });
        document.select(1, 0);
    }
    EXPECT_EQ(document.richText(), before);
    EXPECT_EQ(document.cursor().anchor(), 5);
    EXPECT_EQ(document.cursor().position(), 2);
    EXPECT_EQ(document.state(), Document::Saved);
    EXPECT_EQ(edits.size(), 0);
    EXPECT_FALSE(document.history().canUndo());
}

TEST_F(DocumentTest, AChangeThatChangesNothingIsNoStep)
{
    Change change(document);
    document.replace(0, 3, u"one"_s);
    document.select(2, 0);
    EXPECT_FALSE(change.commit());
    EXPECT_EQ(document.state(), Document::Saved);
    EXPECT_FALSE(document.history().canUndo());
    EXPECT_EQ(document.selStart(), 2);
}

TEST_F(DocumentTest, ColouredTextPutOverItselfIsNoStepAndStaysTheUsers)
{
    document.changeLooks(0, 3, [](CharFormat &look) { look.colour = ColorRef(0xFF); });
    document.updateState();
    ASSERT_EQ(document.state(), Document::Modified);
    document.select(0, 3);
    Change change(document);
    document.insert(document.richText(0, 3));
    EXPECT_FALSE(change.commit());
    EXPECT_FALSE(document.history().canUndo());
    document.updateState();
    EXPECT_EQ(document.state(), Document::Modified);
}

TEST_F(DocumentTest, AfterACommitEditsCountAgain)
{
    Change change(document);
    document.replace(0, 0, u"x"_s);
    change.commit();
    document.setState(Document::Saved);
    QTextCursor(&document.content()).insertText(u"y"_s);
    EXPECT_EQ(document.state(), Document::Modified);
}

TEST_F(DocumentTest, WhatTakesItsPlaceSaysHowAndStartsTheHistoryOver)
{
    struct Row {
        Document::How how;
        qint16 state;
        bool recovered;
    };
    constexpr Row rows[] = {
        { Document::How::Loaded, Document::Saved, false },
        { Document::How::Recovered, Document::Modified, true },
        { Document::How::Fresh, Document::Empty, false },
    };
    for (const Row &row : rows) {
        QTextCursor(&document.content()).insertText(u"typed"_s);
        document.select(3, 1);
        ASSERT_TRUE(document.history().canUndo());
        std::optional<Document::How> told;
        qint16 stateThen = 7;
        const auto listening =
            QObject::connect(&document, &Document::replaced, &document, [&](Document::How how) {
                told = how;
                stateThen = document.state();
            });
        document.tellReplaced(row.how);
        QObject::disconnect(listening);
        EXPECT_EQ(told, row.how);
        EXPECT_EQ(stateThen, row.state);
        EXPECT_EQ(document.isRecovered(), row.recovered);
        EXPECT_FALSE(document.history().canUndo());
        EXPECT_EQ(document.selStart(), 0);
        EXPECT_EQ(document.selLength(), 0);
        EXPECT_EQ(document.onDisk().isNull(), row.how != Document::How::Loaded)
            << "the bytes of an empty file are empty";
    }
}

TEST_F(DocumentTest, ItKnowsWhatTheDiskHoldsOfIt)
{
    EXPECT_EQ(document.onDisk(), "one two");
    document.tellReplaced(Document::How::Recovered);
    QSignalSpy written(&document, &Document::written);
    document.tellWritten("three", Document::Save::Automatic);
    EXPECT_EQ(document.onDisk(), "three");
    EXPECT_EQ(document.state(), Document::Saved);
    EXPECT_FALSE(document.isRecovered());
    EXPECT_EQ(written.size(), 1);
}

TEST_F(InsertTest, AStatementIsOneStepInItsColoursWithTheCaretAtItsEnd)
{
    set(J, u"ab"_s);
    documents().joystick().select(2, 0);
    const Statement statement{
        { { u"BTN S1 "_s }, { u"x"_s, settings.of<ColourSettings>().RAWColour } }, true
    };
    EXPECT_TRUE(documents().insert(statement));
    EXPECT_EQ(editor->joystickText(), u"ab\nBTN S1 x");
    EXPECT_EQ(colours(J), u"...bbbbbb.r");
    EXPECT_EQ(documents().joystick().selStart(), 11);
    EXPECT_EQ(steps(J), 1);
    EXPECT_EQ(documents().joystick().state(), Document::Modified);
}

TEST_F(InsertTest, AStatementThatStartsALineStartsNoneWhereOneStarts)
{
    set(J, u"ab\n"_s);
    documents().joystick().select(3, 0);
    documents().insert({ { { u"USE a\r\n"_s, settings.of<ColourSettings>().RAWColour } }, true });
    EXPECT_EQ(editor->joystickText(), u"ab\nUSE a\n");
}

TEST_F(InsertTest, AProtectedMacroTextTakesNoStatement)
{
    set(M, u"a = b"_s);
    documents().select(M);
    protectMacro();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    EXPECT_FALSE(documents().insert({ { { u"x"_s } } }));
    EXPECT_EQ(editor->macroText(), u"a = b");
    EXPECT_EQ(steps(M), 0);
}

TEST_F(InsertTest, ABoxIsPaintedAsTypingIsPainted)
{
    RichTextBox box;
    box.setRichText(RichText::plain(u"BTN S1 /U x"_s));
    box.select(4, 2);
    const CharFormat plain = documents().plainFormat(J);
    colourBox(box, colourScheme(settings.of<ColourSettings>(), J), plain);
    const RichText shown = box.richText();
    EXPECT_EQ(shown.text, u"BTN S1 /U x");
    EXPECT_EQ(shown.formatAt(0).colour, settings.of<ColourSettings>().BTNColour);
    EXPECT_EQ(shown.formatAt(7).colour, settings.of<ColourSettings>().SlashColour);
    EXPECT_EQ(shown.formatAt(10).colour, plain.colour);
    EXPECT_EQ(box.selStart(), 4);
    EXPECT_EQ(box.selLength(), 2);
}
