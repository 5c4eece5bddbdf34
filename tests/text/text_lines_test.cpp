// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(TextLines, ALineIsFoundByItsNumber)
{
    const QString text = u"one\ntwo\n\nfour"_s;
    EXPECT_EQ(lineRange(text, 1)->start, 0);
    EXPECT_EQ(lineRange(text, 2)->start, 4);
    EXPECT_EQ(lineRange(text, 2)->length, 3);
    EXPECT_EQ(lineRange(text, 3)->length, 0);
    EXPECT_EQ(lineRange(text, 4)->start, 9);
    EXPECT_EQ(lineRange(text, 4)->length, 4);
}

TEST(TextLines, ALineThatDoesNotExistIsNone)
{
    EXPECT_FALSE(lineRange(u"one", 2));
    EXPECT_FALSE(lineRange(u"one", 0));
    EXPECT_FALSE(lineRange(u"one", -3));
    EXPECT_TRUE(lineRange(u"one\n", 2));
}

TEST(NormalisedLine, HasNoBlanksAtItsStartAndNoTwoSideBySide)
{
    EXPECT_EQ(normalisedLine(u" \t USE\tMDEF \t x"), u"USE MDEF x");
    EXPECT_EQ(normalisedLine(u"a  "), u"a ");
    EXPECT_EQ(normalisedLine(u" \t"), u"");
    EXPECT_EQ(normalisedLine(u""), u"");
}

TEST(BeforeRem, EndsAtRemAndABlankInAnyCase)
{
    EXPECT_EQ(beforeRem(u"BTN S1 a REM shoots"), u"BTN S1 a ");
    EXPECT_EQ(beforeRem(u"rem x"), u"");
    EXPECT_EQ(beforeRem(u"a Rem"), u"a Rem");
    // The tools have never asked for a whole word here.
    EXPECT_EQ(beforeRem(u"Harem of keys"), u"Ha");
    EXPECT_EQ(remAt(u"a\tRem b"), 2);
    EXPECT_EQ(remAt(u"a"), -1);
}

TEST(WithoutBlanksAtEnd, LeavesTabs)
{
    EXPECT_EQ(withoutBlanksAtEnd(u"a \t  "), u"a \t");
    EXPECT_EQ(withoutBlanksAtEnd(u"   "), u"");
}
