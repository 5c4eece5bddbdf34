// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/scan.h"
#include "language/words.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::language;

TEST(DecimalNumber, IsAWholeNumberWithOrWithoutAFraction)
{
    EXPECT_DOUBLE_EQ(*decimalNumber(u"90.5%"), 90.5);
    EXPECT_DOUBLE_EQ(*decimalNumber(u"-0.25"), -0.25);
    EXPECT_DOUBLE_EQ(*decimalNumber(u"+7"), 7);
    EXPECT_DOUBLE_EQ(*decimalNumber(u"7."), 7);
    for (const QStringView text : { u"", u".", u".5", u"5.x", u"5%.1", u"1.2.3", u"a" })
        EXPECT_FALSE(decimalNumber(text)) << text.toString().toStdString();
}

TEST(CommentStart, RemInTheMiddleCommentsTheRestOfTheLine)
{
    EXPECT_EQ(commentStart(u"BTN S1 a Rem fire"), 9);
    EXPECT_EQ(commentStart(u"rem"), 0);
    EXPECT_EQ(commentStart(u"a REM"), 2);
    EXPECT_EQ(commentStart(u"a Rem'x'"), 2);
}

TEST(CommentStart, ALongerWordBeginningWithItDoesNot)
{
    EXPECT_EQ(commentStart(u"BTN S1 Remember"), -1);
    EXPECT_EQ(commentStart(u"BTN S1 Remote rem1 rem_2"), -1);
    EXPECT_EQ(commentStart(u"BTN S1 Theorem"), -1);
    EXPECT_EQ(commentStart(u"re"), -1);
    EXPECT_EQ(commentStart(u"Theorem Remix rem x"), 14);
}

TEST(CommentStart, LettersOfTheWholeCodePageLengthenAWord)
{
    EXPECT_EQ(commentStart(u"\u00E9rem"), -1);
    EXPECT_EQ(commentStart(u"rem\u00FC"), -1);
}

TEST(SlashAt, TakesTwoCharactersThatEndThere)
{
    EXPECT_EQ(slashAt(u"/U", 0), 0);
    EXPECT_EQ(slashAt(u"/u ", 0), 0);
    EXPECT_EQ(slashAt(u"/U(", 0), 0);
    EXPECT_EQ(slashAt(u"/I/U", 0), 3);
    EXPECT_EQ(slashAt(u"/I/U", 2), 0);
    EXPECT_EQ(slashAt(u"/Up", 0), -1);
    EXPECT_EQ(slashAt(u"/I2", 0), -1);
    EXPECT_EQ(slashAt(u"/X", 0), -1);
    EXPECT_EQ(slashAt(u"/", 0), -1);
}

TEST(WholeNumber, IsDigitsWithASignAndAPercentAtMost)
{
    EXPECT_EQ(wholeNumber(u"33"), 33);
    EXPECT_EQ(wholeNumber(u"-32"), -32);
    EXPECT_EQ(wholeNumber(u"+4"), 4);
    EXPECT_EQ(wholeNumber(u"90%"), 90);
    EXPECT_FALSE(wholeNumber(u""));
    EXPECT_FALSE(wholeNumber(u"-"));
    EXPECT_FALSE(wholeNumber(u"%"));
    EXPECT_FALSE(wholeNumber(u"3a"));
    EXPECT_FALSE(wholeNumber(u"2+"));
    EXPECT_FALSE(wholeNumber(u"99999999999999999999a"));
}

TEST(WholeNumber, StaysALargeOneHoweverManyDigits)
{
    EXPECT_EQ(wholeNumber(u"999999999"), 999'999'999);
    EXPECT_EQ(wholeNumber(u"99999999999999999999"), 999'999'999);
    EXPECT_EQ(wholeNumber(u"-99999999999999999999%"), -999'999'999);
    EXPECT_EQ(wholeNumber(u"00000000000000000032"), 32);
}

TEST(LineReader, GivesWhatCountsOfEachLine)
{
    const QString text = u"  a b  Rem c \n\nd\n"_s;
    LineReader reader(text);
    Line line;
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ(line.first, 2);
    EXPECT_EQ(line.codeEnd, 5);
    EXPECT_EQ(line.end, 12);
    EXPECT_EQ(line.number, 1);
    ASSERT_TRUE(reader.next(line));
    EXPECT_TRUE(line.isEmpty());
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ(line.number, 3);
    EXPECT_EQ(line.first, 15);
    ASSERT_TRUE(reader.next(line));
    EXPECT_TRUE(line.isEmpty());
    EXPECT_FALSE(reader.next(line));
}
