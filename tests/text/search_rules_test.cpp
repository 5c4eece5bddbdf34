// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/search_rules.h"

#include "platform/core/text_search.h"

#include <gtest/gtest.h>

#include <random>

using namespace zeph;

namespace {

constexpr bool first = true;
constexpr bool next = false;

SearchResult hit(qsizetype start)
{
    return { SearchVerdict::Hit, start };
}

/// Replaces as a person would, in the text itself.
QString replacedByHand(QString text, const QString &word, const QString &replacement, int options)
{
    qsizetype caret = 0;
    while (true) {
        const qsizetype at = findText(text, word, caret, options);
        if (at < 0) {
            return text;
        }
        text.replace(at, word.size(), replacement);
        caret = at + replacement.size();
    }
}

QString replacedAtOnce(const QString &text, const QString &word, const QString &replacement,
                       int options)
{
    QString result = text;
    const auto hits = hitsToReplace(text, word, replacement, options);
    for (auto at = hits.rbegin(); at != hits.rend(); ++at) {
        result.replace(*at, word.size(), replacement);
    }
    return result;
}

} // namespace

TEST(SearchRules, FindFirstLooksFromTheStartAndFindNextFromTheCaret)
{
    EXPECT_EQ(search(u"Fire fire", { u"fire"_s, 0, first, 5 }), hit(0));
    EXPECT_EQ(search(u"Fire fire", { u"fire"_s, 0, next, 4 }), hit(5));
    EXPECT_EQ(search(u"Fire fire", { u"fire"_s, 0, next, 9 }).verdict, SearchVerdict::NoFurther);
}

TEST(SearchRules, TheTicksNarrowTheSearch)
{
    EXPECT_EQ(search(u"Fires fire", { u"fire"_s, SearchWholeWord, first, 0 }), hit(6));
    EXPECT_EQ(search(u"Fire fire", { u"fire"_s, SearchMatchCase, first, 0 }), hit(5));
}

TEST(SearchRules, NothingToSearchIsToldApart)
{
    EXPECT_EQ(search(u"abc", { u""_s }).verdict, SearchVerdict::NoWord);
    EXPECT_EQ(search(u"", { u""_s }).verdict, SearchVerdict::NoWord);
    EXPECT_EQ(search(u"", { u"a"_s }).verdict, SearchVerdict::NoText);
    EXPECT_EQ(search(u"abc", { u"x"_s }).verdict, SearchVerdict::NotFound);
}

TEST(SearchRules, AReplacementThatHoldsTheWordIsNotSearchedAgain)
{
    EXPECT_EQ(replacedAtOnce(u"a a"_s, u"a"_s, u"aa"_s, 0), u"aa aa");
}

TEST(SearchRules, AReplacementCanBeTheNeighbourOfTheNextHit)
{
    // After "y" the second "x-" is no word of its own any more.
    EXPECT_EQ(replacedAtOnce(u"x-x-"_s, u"x-"_s, u"y"_s, SearchWholeWord), u"yx-");
    EXPECT_EQ(replacedAtOnce(u"x-x-"_s, u"x-"_s, u"y "_s, SearchWholeWord), u"y y ");
    EXPECT_EQ(replacedAtOnce(u"bx-x-"_s, u"x-"_s, u""_s, 0), u"b");
}

TEST(SearchRules, AllAtOnceIsOneAfterTheOther)
{
    std::mt19937 random(11);
    const auto word = [&random](int most) {
        QString text;
        for (auto i = random() % unsigned(most); i > 0; --i) {
            text += u"ab-A "[random() % 5];
        }
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const QString text = word(20);
        const QString sought = word(3) + u"ab-"[random() % 3];
        const QString replacement = word(3);
        const int options = int(random() % 4) * 2;
        ASSERT_EQ(replacedAtOnce(text, sought, replacement, options),
                  replacedByHand(text, sought, replacement, options))
            << text.toStdString() << '|' << sought.toStdString() << '|' << replacement.toStdString()
            << '|' << options;
    }
}

TEST(SearchRules, AnEarlierTextIsKeptOnce)
{
    EXPECT_EQ(withEarlier({ u"b"_s, u"a"_s }, u"c"_s), (QStringList{ u"c"_s, u"b"_s, u"a"_s }));
    EXPECT_EQ(withEarlier({ u"b"_s, u"a"_s }, u"a"_s), (QStringList{ u"b"_s, u"a"_s }));
}

TEST(SearchRules, ASelectionIsWhatIsSoughtByTheTicks)
{
    EXPECT_TRUE(isSought(u"FIRE", u"fire", 0));
    EXPECT_FALSE(isSought(u"FIRE", u"fire", SearchMatchCase));
    EXPECT_FALSE(isSought(u"fires", u"fire", 0));
}

TEST(SearchRules, TheHitBeforeAPlaceWrapsToTheLast)
{
    const auto hits = allHits(u"fire Fire fire", u"fire", 0);
    EXPECT_EQ(hits, (std::vector<qsizetype>{ 0, 5, 10 }));
    EXPECT_EQ(hitBefore(hits, 10), 5);
    EXPECT_EQ(hitBefore(hits, 9), 5);
    EXPECT_EQ(hitBefore(hits, 5), 0);
    EXPECT_EQ(hitBefore(hits, 0), 10);
    EXPECT_EQ(hitBefore({}, 3), -1);
}

TEST(SearchRules, HitsDoNotOverlapAndFollowTheTicks)
{
    EXPECT_EQ(allHits(u"aaaaa", u"aa", 0), (std::vector<qsizetype>{ 0, 2 }));
    EXPECT_EQ(allHits(u"Fires fire", u"fire", SearchWholeWord), (std::vector<qsizetype>{ 6 }));
    EXPECT_TRUE(allHits(u"abc", u"", 0).empty());
}

TEST(SearchRules, AHitIsCounted)
{
    EXPECT_EQ(hitCount({ 0, 5, 10 }, 5), u"Hit 2 of 3");
    EXPECT_EQ(hitCount({ 0, 5, 10 }, 6), u"3 hits");
    EXPECT_EQ(hitCount({ 4 }, 0), u"1 hit");
    EXPECT_EQ(hitCount({}, 0), u"0 hits");
}

TEST(SearchRules, ALineNumberIsPlainDigits)
{
    EXPECT_EQ(plainLineNumber(u"12"), 12);
    EXPECT_EQ(plainLineNumber(u" 12 "), 12);
    EXPECT_EQ(plainLineNumber(u"007"), 7);
    EXPECT_EQ(plainLineNumber(u"0"), 0);
    for (const QString &typed :
         { u""_s, u" "_s, u"-1"_s, u"+1"_s, u"1e1"_s, u"1.5"_s, u"1,000"_s, u"12a"_s, u"x"_s,
           u"0x10"_s, u"1 2"_s, u"\u0661"_s, u"99999999999"_s }) {
        EXPECT_EQ(plainLineNumber(typed), std::nullopt) << typed.toStdString();
    }
}
