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
