// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace zeph;

namespace {

QString changed(QStringView lines, LineChange (*change)(QStringView line))
{
    QString text;
    for (const LineChange &line : changeLines(lines, change)) {
        text += line.text;
    }
    return text;
}

QString touched(QStringView text, qsizetype start, qsizetype length)
{
    const LineRange range = touchedLines(text, start, length);
    return text.sliced(range.start, range.length).toString();
}

} // namespace

TEST(BlockComments, ABlankLineStaysBlank)
{
    EXPECT_EQ(changed(u"BTN S1 a\n\nBTN S2 b", commentedOut), u"Rem BTN S1 a\n\nRem BTN S2 b");
}

TEST(BlockComments, ALineOfBlanksIsNoBlankLine)
{
    EXPECT_EQ(changed(u"  \n", commentedOut), u"Rem   \n");
}

TEST(BlockComments, OutAndInAgainGivesTheTextBack)
{
    for (const QString &text : { u"BTN S1 a\n\n  /U b\n"_s, u"REM a\nrem b\nRem"_s, u"\n\n"_s }) {
        EXPECT_EQ(changed(changed(text, commentedOut), commentedIn), text);
    }
}

TEST(BlockComments, InTakesRemAwayInAnyCase)
{
    EXPECT_EQ(changed(u"REM a\nrem b\nrEm  c\n", commentedIn), u"a\nb\n c\n");
}

TEST(BlockComments, InLeavesOtherLines)
{
    for (const QString &text : { u" Rem a\n"_s, u"Rem\n"_s, u"Remark\n"_s, u"a Rem b"_s }) {
        EXPECT_EQ(changed(text, commentedIn), text);
        EXPECT_FALSE(commentedIn(text).changed);
    }
}

TEST(BlockComments, ASelectionTakesItsLinesWhole)
{
    const QString text = u"one\ntwo\nthree"_s;
    EXPECT_EQ(touched(text, 1, 0), u"one");
    EXPECT_EQ(touched(text, 1, 4), u"one\ntwo");
    EXPECT_EQ(touched(text, 3, 0), u"one");
    EXPECT_EQ(touched(text, 8, 100), u"three");
}

TEST(BlockComments, ASelectionThatEndsAtALinesStartTakesThatLine)
{
    EXPECT_EQ(touched(u"one\ntwo\nthree", 0, 4), u"one\ntwo");
}

TEST(BlockComments, AnEmptyTextHasOneBlankLine)
{
    EXPECT_EQ(touched(u"", 0, 0), QString());
    EXPECT_TRUE(changeLines(u"", commentedOut).empty());
}
