// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/logic_workbench.h"

#include "compilation.h"
#include "generator_rows.h"

using namespace zeph;

namespace logic_tests {

namespace {

const FlagFields fields{ { u"X7"_s, u"H2"_s, u"T10"_s, u"PULSE"_s, u"X48"_s, u"DL"_s },
                         { u"100"_s, u"200"_s, u"300"_s, u"400"_s, u"60"_s, u"3"_s } };

struct TermRow {
    int index;
    FlagFields fields;
    QString expected;
};

const TermRow termRows[] = {
    { 0, fields, u"X7"_s },
    { 1, fields, u"H2DL"_s },
    { 2, fields, u"T10"_s },
    { 3, fields, u"PULSE(100 200)"_s },
    { 4, fields, u"DELAY(300)"_s },
    { 5, fields, u"PULSE(X48 400)"_s },
    { 6, fields, u"DLY(60)"_s },
    { 7, fields, u"RPT(3)"_s },
    { 8, fields, u""_s },
    { 9, fields, u""_s },
    { -1, fields, u""_s },
    { 5,
      { { u""_s, u""_s, u""_s, u"DELAY"_s, u"X1"_s, u""_s }, { u""_s, u""_s, u""_s, u"25"_s } },
      u"DELAY(X1 25)"_s },
    // The workbench refuses nothing.
    { 0, {}, u""_s },
    { 3, {}, u"PULSE( )"_s },
    { 4, {}, u"DELAY()"_s },
    { 5, {}, u"( )"_s },
    { 6, {}, u"DLY()"_s },
    { 7, {}, u"RPT()"_s },
};

struct WordRow {
    QString line;
    QString word;
    QString expected;
};

const WordRow wordRows[] = {
    { u""_s, u"AND"_s, u"AND"_s },
    { u"AND"_s, u"NOT"_s, u"AND NOT"_s },
    { u"AND "_s, u"NOT"_s, u"AND NOT"_s },
    { u"AND  "_s, u"NOT"_s, u"AND  NOT"_s },
    { u" "_s, u"NOT"_s, u" NOT"_s },
    { u"S1\t"_s, u"OR"_s, u"S1\t OR"_s },
    { u"("_s, u"X1"_s, u"( X1"_s },
    { u"( X1"_s, u")"_s, u"( X1 )"_s },
    { u"DEF"_s, u""_s, u"DEF"_s },
    { u""_s, u""_s, u""_s },
    { u"BTN X1"_s, u"/P"_s, u"BTN X1 /P"_s },
    { u"BTN X1 /P a"_s, u"DLY(60)"_s, u"BTN X1 /P a DLY(60)"_s },
};

struct LineRow {
    QString statement;
    /// No value when it is no statement on a flag.
    std::optional<QString> expected;
};

const LineRow lineRows[] = {
    { u"DEF X1 S1"_s, u"DEF X1 S1"_s },
    { u"  def x1  S1"_s, u"def x1  S1"_s },
    { u"BTN X48 /P a /R b"_s, u"BTN X48 /P a /R b"_s },
    { u"BTN X1 a Rem fire"_s, u"BTN X1 a Rem fire"_s },
    { u"BTN X1 /P a\n       /R b"_s, u"BTN X1 /P a /R b"_s },
    { u"BTN X1 /P a Rem first\n\n  /R b Rem last\n"_s, u"BTN X1 /P a /R b Rem last"_s },
    { u"BTN\nX1 a"_s, u"BTN X1 a"_s },
    { u"BTN X1 a\n\n"_s, u"BTN X1 a"_s },
    { u"BTN X1 a \n\n"_s, u"BTN X1 a "_s },
    { u""_s, {} },
    { u"Rem DEF X1 S1"_s, {} },
    { u"BTN S1 a"_s, {} },
    { u"USE X1 AS DX1"_s, {} },
    { u"NOT S1"_s, {} },
    { u"DEF X1 S1\nBTN X1 a"_s, {} },
};

// The workbench with these lines from the first on.
LogicWorkbench workbenchOf(const QStringList &lines)
{
    LogicWorkbench workbench;
    for (qsizetype at = 0; at < lines.size(); ++at)
        workbench.setLine(int(at), lines[at]);
    return workbench;
}

QStringList linesOf(const LogicWorkbench &workbench)
{
    QStringList lines;
    for (int index = 0; index < LogicWorkbench::lineCount; ++index)
        lines.append(workbench.line(index));
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QString textOf(const std::optional<Statement> &statement)
{
    return statement ? statement->text() : u"nothing"_s;
}

} // namespace

TEST(FlagTerm, EachRowGivesItsText)
{
    for (const TermRow &row : termRows)
        EXPECT_EQ(flagTerm(row.index, row.fields), row.expected) << row.index;
}

TEST(LogicWorkbench, AWordIsOneBlankApart)
{
    for (const WordRow &row : wordRows)
        EXPECT_EQ(withWord(row.line, row.word), row.expected);
}

TEST(LogicWorkbench, AndOnAnEmptyLineGivesAndAndNotAfterItGivesAndNot)
{
    LogicWorkbench workbench;
    workbench.append(compareWords[0]);
    EXPECT_EQ(workbench.line(0), u"AND");
    workbench.append(compareWords[2]);
    EXPECT_EQ(workbench.line(0), u"AND NOT");
}

TEST(LogicWorkbench, WordsGoToTheSelectedLine)
{
    LogicWorkbench workbench;
    EXPECT_EQ(workbench.WhichLogicText(), 0);
    workbench.select(95);
    EXPECT_EQ(workbench.WhichLogicText(), 95);
    workbench.append(u"DEF");
    workbench.append(u"X1");
    EXPECT_EQ(workbench.line(95), u"DEF X1");
    EXPECT_EQ(workbench.line(0), u"");
}

TEST(LogicWorkbench, TheButtonsHaveTheirWords)
{
    const auto joined = [](std::span<const QStringView> words) {
        QStringList list;
        for (const QStringView word : words)
            list.append(word.toString());
        return list.join(u' ');
    };
    EXPECT_EQ(joined(compareWords), u"AND OR NOT ( ) BTN DEF *");
    EXPECT_EQ(joined(slashButtons), u"/U /M /D /I /O /P /R /H /A /T");
    EXPECT_EQ(joined(flagHats), u"H1 H2 H3 H4");
    EXPECT_EQ(joined(flagHatPositions), u"U D L R M UL DL UR DR");
    EXPECT_EQ(joined(flagButtons), u"S1 S2 S3 S4 T1 T2 T3 T4 T5 T6 T7 T8 T9 T10 TG1 TG2");
    EXPECT_EQ(joined(flagTimers), u"PULSE DELAY");
    ASSERT_EQ(flagNames().size(), 48U);
    for (int number = 1; number <= 48; ++number)
        EXPECT_EQ(flagNames()[size_t(number) - 1], u"X%1"_s.arg(number));
}

TEST(LogicWorkbench, EveryHatPositionIsAControl)
{
    for (const QStringView hat : flagHats) {
        for (const QStringView position : flagHatPositions) {
            FlagFields chosen;
            chosen.lists[1] = hat.toString();
            chosen.lists[5] = position.toString();
            EXPECT_EQ(findingsIn(u"BTN "_s + flagTerm(1, chosen) + u" a"_s), QStringList());
        }
    }
}

TEST(LogicWorkbench, AllLinesGoInOrderAndEndInTwoLineEnds)
{
    EXPECT_EQ(textOf(workbenchOf({ u"DEF X1 S1"_s, u""_s, u"BTN X1 a"_s, u" "_s }).allLines()),
              u"DEF X1 S1\nBTN X1 a\n \n\n");
    EXPECT_EQ(textOf(workbenchOf({ u"DEF X1 S1"_s }).allLines()), u"DEF X1 S1\n\n");
    EXPECT_TRUE(workbenchOf({ u"DEF X1 S1"_s }).allLines()->startsLine);
}

TEST(LogicWorkbench, NinetySixEmptyLinesInsertNothing)
{
    EXPECT_FALSE(LogicWorkbench().allLines());
}

TEST(LogicWorkbench, TheLastLineIsInsertedToo)
{
    LogicWorkbench workbench;
    workbench.setLine(LogicWorkbench::lineCount - 1, u"BTN X1 a"_s);
    EXPECT_EQ(textOf(workbench.allLines()), u"BTN X1 a\n\n");
}

TEST(LogicWorkbench, TheSelectedLineAloneIsInserted)
{
    LogicWorkbench workbench = workbenchOf({ u"DEF X1 S1"_s, u""_s, u"BTN X1 a"_s });
    EXPECT_EQ(textOf(workbench.selectedLine()), u"DEF X1 S1\n\n");
    workbench.select(2);
    EXPECT_EQ(textOf(workbench.selectedLine()), u"BTN X1 a\n\n");
    EXPECT_TRUE(workbench.selectedLine()->startsLine);
    workbench.select(1);
    EXPECT_EQ(textOf(workbench.selectedLine()), u"nothing");
}

TEST(ReadBack, TakesTheLinesThatBeginWithAFlag)
{
    LogicWorkbench workbench = workbenchOf({ u"old"_s, u"older"_s, u"oldest"_s });
    workbench.select(17);
    EXPECT_FALSE(workbench.readBack(
        u"USE MDEF a\nDEF X1 S1 Rem one\n DEF X2 S2\nBTN S1 a\nBTN X1 /P a\n  /R b\n"
        "btn X3 a\nBTN x4 a\nDEF  X5 S1\nBTN XYZ\nRem BTN X6 a\nDEF X7 S3"));
    EXPECT_EQ(
        linesOf(workbench),
        QStringList({ u"DEF X1 S1 Rem one"_s, u"BTN X1 /P a"_s, u"BTN XYZ"_s, u"DEF X7 S3"_s }));
    EXPECT_EQ(workbench.WhichLogicText(), 0);
}

TEST(ReadBack, AnEmptyTextDoesNothing)
{
    LogicWorkbench workbench = workbenchOf({ u"old"_s });
    workbench.select(17);
    EXPECT_FALSE(workbench.readBack(u""));
    EXPECT_EQ(linesOf(workbench), QStringList{ u"old"_s });
    EXPECT_EQ(workbench.WhichLogicText(), 17);
}

TEST(ReadBack, ATextWithoutLogicEmptiesTheLinesAndSaysSo)
{
    LogicWorkbench workbench = workbenchOf({ u"old"_s });
    const std::optional<Refusal> box = workbench.readBack(u"BTN S1 a\n");
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, u"What logical statements?");
    EXPECT_EQ(box->text, u"I couldn't find any logical statements in your joystick file");
    EXPECT_EQ(linesOf(workbench), QStringList());
    EXPECT_EQ(workbench.WhichLogicText(), 0);
}

TEST(ReadBack, A97thLineIsDropped)
{
    QString text;
    for (int line = 1; line <= 97; ++line)
        text += u"BTN X%1 a\n"_s.arg(line);
    LogicWorkbench workbench;
    EXPECT_FALSE(workbench.readBack(text));
    EXPECT_EQ(linesOf(workbench).size(), 96);
    EXPECT_EQ(workbench.line(0), u"BTN X1 a");
    EXPECT_EQ(workbench.line(95), u"BTN X96 a");
}

TEST(ReadLogicLine, EachRowGivesItsLine)
{
    for (const LineRow &row : lineRows)
        EXPECT_EQ(readLogicLine(row.statement), row.expected) << row.statement.toStdString();
}

TEST(LogicWorkbench, WhatItsButtonsMakeCompilesAndIsReadBack)
{
    QStringList members;
    for (const QStringView button : flagButtons)
        members.append(button.toString());
    for (const QStringView position : flagHatPositions)
        members.append(u"H3"_s + position.toString());
    for (const int index : { 0, 3, 4, 5 })
        members.append(flagTerm(index, fields));
    test::Compilation compilation;
    const auto tryOne = [&compilation](std::initializer_list<QStringView> words) {
        LogicWorkbench workbench;
        for (const QStringView word : words)
            workbench.append(word);
        const QString text = workbench.selectedLine()->text();
        compilation.add(text);
        EXPECT_EQ(readLogicLine(text), workbench.line(0)) << text.toStdString();
        LogicWorkbench again;
        EXPECT_FALSE(again.readBack(text));
        EXPECT_EQ(textOf(again.allLines()), text);
    };
    for (const QString &left : members) {
        for (const QString &right : members) {
            for (const QStringView join : { compareWords[0], compareWords[1], compareWords[7] }) {
                tryOne({ u"DEF", u"X1", left, join, right });
                tryOne({ u"DEF", u"X48", u"NOT", u"(", left, join, u"NOT", right, u")" });
            }
        }
    }
    for (const QStringView flag : flagNames()) {
        for (const QStringView slash : slashButtons) {
            tryOne({ u"BTN", flag, slash, u"a" });
            tryOne({ u"BTN", flag, slash, u"a", flagTerm(6, fields), flagTerm(7, fields), u"b" });
        }
    }
    EXPECT_EQ(compilation.count(), 29 * 29 * 3 * 2 + 48 * 10 * 2);
    EXPECT_EQ(compilation.verdict(), "");
}

} // namespace logic_tests
