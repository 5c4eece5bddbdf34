// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/colour_settings.h"
#include "tests/support/painting_fixture.h"

#include <QAction>
#include <QTest>

using namespace zeph;

namespace {

class ColouredInsertTest : public test::PaintingTest
{
protected:
    ColouredInsert &insert() { return editor->insert(); }
    void caretAt(int position) { joystick()->shown().select(position, 0); }
};

} // namespace

TEST_F(ColouredInsertTest, PiecesStandInTheirColoursAndTheCaretAfterThem)
{
    set(J, u"ab"_s);
    caretAt(1);
    insert().BeginColInsert();
    EXPECT_TRUE(insert().InsertColouredString(u"BTN"_s, settings.of<ColourSettings>().BTNColour));
    EXPECT_TRUE(
        insert().InsertColouredStringNoSpace(u" x"_s, settings.of<ColourSettings>().RAWColour));
    insert().EndColInsert();
    EXPECT_EQ(editor->joystickText(), u"aBTN xb");
    EXPECT_EQ(colours(J), u".bbbrr.");
    EXPECT_EQ(joystick()->shown().selStart(), 6);
}

TEST_F(ColouredInsertTest, TypingGoesOnInThePlainColourAndFont)
{
    insert().BeginColInsert();
    insert().InsertColouredString(u"BTN"_s, settings.of<ColourSettings>().BTNColour);
    insert().EndColInsert();
    QTest::keyClicks(joystick(), u"x"_s);
    EXPECT_EQ(editor->joystickText(), u"BTNx");
    EXPECT_EQ(joystick()->shown().richText().formatAt(3), editor->documents().plainFormat(J));
}

TEST_F(ColouredInsertTest, ASelectionIsReplacedByTheFirstPiece)
{
    set(J, u"one two three"_s);
    joystick()->shown().select(4, 3);
    insert().BeginColInsert();
    insert().InsertColouredString(u"2"_s, settings.of<ColourSettings>().RAWColour);
    insert().InsertColouredString(u"!"_s, settings.of<ColourSettings>().RAWColour);
    insert().EndColInsert();
    EXPECT_EQ(editor->joystickText(), u"one 2! three");
}

TEST_F(ColouredInsertTest, TheWholeInsertIsOneUndoStepAndOneRedo)
{
    set(J, u"ab"_s);
    caretAt(2);
    insert().BeginColInsert();
    insert().InsertColouredString(u"BTN"_s, settings.of<ColourSettings>().BTNColour);
    insert().InsertCarriageReturn();
    insert().InsertColouredString(u"/U"_s, settings.of<ColourSettings>().SlashColour);
    insert().EndColInsert();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(editor->undos().of(J).slots(), 2);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->joystickText(), u"ab");
    editor->undos().mnuEditRedo_Click();
    EXPECT_EQ(editor->joystickText(), u"abBTN\n/U");
    EXPECT_EQ(colours(J), u"..bbb.ss");
}

TEST_F(ColouredInsertTest, AnInsertAmidAWordBeingTypedIsStillAStepOfItsOwn)
{
    QTest::keyClicks(joystick(), u"one two"_s);
    QTest::keyClick(joystick(), Qt::Key_Left);
    const int before = editor->undos().of(J).slots();
    insert().BeginColInsert();
    insert().InsertColouredString(u"X"_s, settings.of<ColourSettings>().BTNColour);
    insert().EndColInsert();
    EXPECT_EQ(editor->undos().of(J).slots(), before + 1);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(editor->joystickText(), u"one two");
}

TEST_F(ColouredInsertTest, TheStateBeforeIsStoredWithItsLooks)
{
    set(J, u"/U"_s);
    look(J, 0, 2,
         [this](CharFormat &format) { format.colour = settings.of<ColourSettings>().RAWColour; });
    caretAt(2);
    insert().BeginColInsert();
    insert().InsertColouredString(u"x"_s, settings.of<ColourSettings>().BTNColour);
    insert().EndColInsert();
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(colours(J), u"rr");
}

TEST_F(ColouredInsertTest, BlanksAndLineEndsAreInTheDocumentsPlainColour)
{
    editor->documents().select(M);
    insert().BeginColInsert();
    insert().InsertBlackBlanks();
    insert().InsertCarriageReturn();
    insert().EndColInsert();
    EXPECT_EQ(editor->macroText(), u"     \n");
    EXPECT_EQ(colours(M), u"......");
}

TEST_F(ColouredInsertTest, LineEndsOfFilesAreLineEnds)
{
    insert().BeginColInsert();
    insert().InsertColouredString(u"a\r\nb\rc"_s, settings.of<ColourSettings>().RAWColour);
    insert().EndColInsert();
    EXPECT_EQ(editor->joystickText(), u"a\nb\nc");
    EXPECT_EQ(status.lineText(), u"Line no: 3");
}

TEST_F(ColouredInsertTest, AProtectedMacroFileTakesNothing)
{
    editor->documents().select(M);
    set(M, u"a = b"_s);
    protectMacro();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    insert().BeginColInsert();
    EXPECT_FALSE(insert().InsertColouredString(u"x"_s, settings.of<ColourSettings>().RAWColour));
    insert().EndColInsert();
    EXPECT_EQ(editor->macroText(), u"a = b");
    EXPECT_EQ(editor->macro().state(), Document::Saved);
    EXPECT_FALSE(editor->action(u"mnuEditUndo")->isEnabled());
}

TEST_F(ColouredInsertTest, ABlankIsAddedUnlessOneOrNothingStandsAtTheCaret)
{
    set(J, u"a b\n"_s);
    const auto added = [this](int caret) {
        caretAt(caret);
        insert().TextToInsert = u"x"_s;
        insert().AddSpaceToColouredText();
        return insert().TextToInsert;
    };
    EXPECT_EQ(added(0), u"x ");
    EXPECT_EQ(added(1), u"x");
    EXPECT_EQ(added(3), u"x ");
    EXPECT_EQ(added(4), u"x");
}

TEST_F(ColouredInsertTest, ALineIsStartedOnlyWhereNoneStarts)
{
    set(J, u"ab\ncd"_s);
    caretAt(3);
    insert().BeginColInsert();
    insert().CheckAtLineBeginning();
    EXPECT_EQ(editor->joystickText(), u"ab\ncd");
    caretAt(4);
    insert().CheckAtLineBeginning();
    insert().EndColInsert();
    EXPECT_EQ(editor->joystickText(), u"ab\nc\nd");
    EXPECT_EQ(status.lineText(), u"Line no: 3");
}

TEST_F(ColouredInsertTest, AStatementIsPaintedAsTypingPaintsIt)
{
    insert().BeginColInsert();
    insert().MacroTransferText(u"BTN S1 /U USE"_s);
    insert().EndColInsert();
    EXPECT_EQ(colours(J), u"bbbbbb.ss.mmm");
    EXPECT_EQ(joystick()->shown().selStart(), 13);
}

TEST_F(ColouredInsertTest, AStatementIsKeptApartFromWhatStandsBeforeIt)
{
    const auto inserted = [this](const QString &before) {
        set(J, before);
        caretAt(int(before.size()));
        insert().BeginColInsert();
        insert().MacroTransferText(u"/U"_s);
        insert().EndColInsert();
        return editor->joystickText();
    };
    EXPECT_EQ(inserted(u"a"_s), u"a /U");
    EXPECT_EQ(inserted(u"a "_s), u"a /U");
    EXPECT_EQ(inserted(u"a\n"_s), u"a\n/U");
    EXPECT_EQ(inserted(u""_s), u"/U");
    EXPECT_EQ(inserted(u"a\t"_s), u"a\t /U");
}

TEST_F(ColouredInsertTest, AnEmptyStatementDoesNothing)
{
    set(J, u"abc"_s);
    joystick()->shown().select(0, 3);
    insert().MacroTransferText(QString());
    EXPECT_EQ(editor->joystickText(), u"abc");
}

TEST_F(ColouredInsertTest, AMacroFileTakesStatementsInItsOwnPlainColour)
{
    editor->documents().select(M);
    insert().BeginColInsert();
    insert().MacroTransferText(u"F = a"_s);
    insert().EndColInsert();
    EXPECT_EQ(macro()->shown().richText().formatAt(0), editor->documents().plainFormat(M));
}

TEST_F(ColouredInsertTest, RichTextTakesTheDocumentsMargin)
{
    set(J, u"a\nb"_s);
    editor->highlighting().reformat(editor->joystick());
    caretAt(1);
    CharFormat bold;
    bold.bold = true;
    insert().BeginColInsert();
    insert().insertRich(
        RichText::plain(u"1\n2\n3"_s, bold, { .leftIndentTwips = 720, .bullet = true }));
    insert().EndColInsert();
    EXPECT_EQ(editor->joystickText(), u"a1\n2\n3\nb");
    EXPECT_EQ(flagged(J, &CharFormat::bold), u".xxxxx..");
    const std::vector<ParagraphRun> expected = { { 4, { .leftIndentTwips = 20 } } };
    EXPECT_EQ(joystick()->shown().richText().paragraphs, expected);
}
