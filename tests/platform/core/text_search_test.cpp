// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/text_search.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

using namespace zeph;

namespace {

constexpr int wholeWord = SearchWholeWord;
constexpr int matchCase = SearchMatchCase;

} // namespace

TEST(FindText, FindsAtOrAfterTheStart)
{
    EXPECT_EQ(findText(u"one two one", u"one", 0, SearchPlain), 0);
    EXPECT_EQ(findText(u"one two one", u"one", 1, SearchPlain), 8);
    EXPECT_EQ(findText(u"one two one", u"one", 8, SearchPlain), 8);
    EXPECT_EQ(findText(u"one two one", u"one", 9, SearchPlain), -1);
}

TEST(FindText, StartsOutsideTheTextAreTolerated)
{
    EXPECT_EQ(findText(u"one", u"one", -5, SearchPlain), 0);
    EXPECT_EQ(findText(u"one", u"one", 99, SearchPlain), -1);
    EXPECT_EQ(findText(u"", u"one", 0, SearchPlain), -1);
}

TEST(FindText, AnEmptyWordIsNeverFound)
{
    EXPECT_EQ(findText(u"one", u"", 0, SearchPlain), -1);
    EXPECT_EQ(findText(u"", u"", 0, wholeWord), -1);
}

TEST(FindText, CaseCountsOnlyWhenAsked)
{
    EXPECT_EQ(findText(u"use USE", u"USE", 0, SearchPlain), 0);
    EXPECT_EQ(findText(u"use USE", u"USE", 0, matchCase), 4);
}

TEST(FindText, LettersOfTheCodePageHaveTwoCasesToo)
{
    EXPECT_EQ(findText(u"xŸŒŠŽÄ", u"ÿœšžä", 0, SearchPlain), 1);
    EXPECT_EQ(findText(u"STRASSE", u"straße", 0, SearchPlain), -1);
    EXPECT_EQ(findText(u"straße", u"STRAßE", 0, SearchPlain), 0);
}

TEST(FindText, AWholeWordHasNoWordCharacterBesideIt)
{
    EXPECT_EQ(findText(u"MY_USE", u"USE", 0, wholeWord), -1);
    EXPECT_EQ(findText(u"USED USE", u"USE", 0, wholeWord), 5);
    EXPECT_EQ(findText(u"USE2 (USE)", u"USE", 0, wholeWord), 6);
    EXPECT_EQ(findText(u"éUSE USEß USE", u"USE", 0, wholeWord), 10);
}

TEST(FindText, ASideOfTheWordThatIsNoWordCharacterIsNotTested)
{
    EXPECT_EQ(findText(u"/I/U", u"/U", 0, wholeWord), 2);
    EXPECT_EQ(findText(u"x(AUTO)y", u"(AUTO)", 0, wholeWord), 1);
    EXPECT_EQ(findText(u"/IN", u"/I", 0, wholeWord), -1);
}

TEST(FindText, TheTextsEndsAreNoNeighbours)
{
    EXPECT_EQ(findText(u"USE", u"USE", 0, wholeWord), 0);
}

TEST(FindText, ARejectedHitMayOverlapTheNextOne)
{
    EXPECT_EQ(findText(u"aa-a-a b", u"a-a", 0, wholeWord), 3);
}

TEST(FindText, AllHitsOfALongTextAreFoundInNoTime)
{
    const QString text = u"BTN S2 KD (a) rem\n"_s.repeated(20000);
    QElapsedTimer timer;
    timer.start();
    int hits = 0;
    for (qsizetype at = 0; (at = findText(text, u"btn", at, wholeWord)) >= 0; ++at) {
        ++hits;
    }
    EXPECT_EQ(hits, 20000);
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST(IsWordCharacter, LettersDigitsAndTheUnderscore)
{
    for (const QChar c : u"azAZ09_éßÿŒžŠƒµ"_s) {
        EXPECT_TRUE(isWordCharacter(c)) << int(c.unicode());
    }
    for (const QChar c : u" /()-.\n\t€²ˆ˜×÷\u0081"_s) {
        EXPECT_FALSE(isWordCharacter(c)) << int(c.unicode());
    }
}
