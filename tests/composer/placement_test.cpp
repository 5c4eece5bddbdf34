// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/placement.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr ColorRef red = 0x0000FF;
const QChar nothing;

Statement within(const QString &text)
{
    return { { { text } }, false };
}

Statement ofLine(const QString &text)
{
    return { { { text } }, true };
}

Surroundings around(const Document &document)
{
    return surroundingsOf(document);
}

} // namespace

TEST(Surroundings, AreTheCharactersAroundTheSelection)
{
    Document document;
    document.setText(u"abc def\nghi"_s);
    document.select(4, 3);
    EXPECT_EQ(around(document).before, u' ');
    EXPECT_EQ(around(document).after, u'\n');
}

TEST(Surroundings, AreNullAtTheEndsOfTheText)
{
    Document document;
    EXPECT_TRUE(around(document).before.isNull());
    EXPECT_TRUE(around(document).after.isNull());
    document.setText(u"ab"_s);
    document.select(0, 2);
    EXPECT_TRUE(around(document).before.isNull());
    EXPECT_TRUE(around(document).after.isNull());
}

TEST(ComposedPlacement, ABlankGoesBeforeWhatWouldTouchAWord)
{
    EXPECT_EQ(composedAt(within(u"DLY(60) "_s), { u'x', nothing }, false).text(), u" DLY(60) "_s);
    EXPECT_EQ(composedAt(within(u"DLY(60) "_s), { u'\t', nothing }, false).text(), u" DLY(60) "_s);
    EXPECT_EQ(composedAt(within(u"DLY(60) "_s), { u' ', nothing }, false).text(), u"DLY(60) "_s);
    EXPECT_EQ(composedAt(within(u"DLY(60) "_s), { u'\n', nothing }, false).text(), u"DLY(60) "_s);
    EXPECT_EQ(composedAt(within(u"DLY(60) "_s), { nothing, u'x' }, false).text(), u"DLY(60) "_s);
    EXPECT_EQ(composedAt(within(u" /O 3 a "_s), { u'x', nothing }, false).text(), u" /O 3 a "_s);
}

TEST(ComposedPlacement, AStatementThatStartsALineNeedsNoBlank)
{
    const Statement placed = composedAt(ofLine(u"USE RATE (50) "_s), { u'x', nothing }, false);
    EXPECT_EQ(placed.text(), u"USE RATE (50) "_s);
    EXPECT_TRUE(placed.startsLine);
}

TEST(ComposedPlacement, TheLineEndIsAsked)
{
    EXPECT_EQ(composedAt(ofLine(u"USE RATE (50) "_s), { nothing, nothing }, true).text(),
              u"USE RATE (50) \n"_s);
}

TEST(FragmentPlacement, ABlankFollowsUnlessOneIsThereOrTheTextEnds)
{
    EXPECT_EQ(fragmentAt(u"/U "_s, red, { u' ', nothing }).text(), u"/U "_s);
    EXPECT_EQ(fragmentAt(u"/U "_s, red, { u' ', u' ' }).text(), u"/U "_s);
    EXPECT_EQ(fragmentAt(u"/U "_s, red, { u' ', u'a' }).text(), u"/U  "_s);
    // A line end is no blank.
    EXPECT_EQ(fragmentAt(u"/U "_s, red, { u' ', u'\n' }).text(), u"/U  "_s);
}

TEST(FragmentPlacement, OnlyAControlStartsALine)
{
    EXPECT_TRUE(fragmentAt(u"BTN S1 "_s, red, {}).startsLine);
    EXPECT_FALSE(fragmentAt(u"/U "_s, red, {}).startsLine);
    EXPECT_FALSE(fragmentAt(u"Rem x "_s, red, {}).startsLine);
}

TEST(FragmentPlacement, IsOneColour)
{
    const Statement placed = fragmentAt(u"BTN S1 "_s, red, { nothing, u'x' });
    ASSERT_EQ(placed.pieces.size(), 1);
    EXPECT_EQ(placed.pieces[0].colour, red);
}

TEST(FragmentPlacement, ARemarkDoesNotTouchTheWordBefore)
{
    EXPECT_EQ(fragmentAt(u"Rem gear "_s, red, { u'x', nothing }).text(), u" Rem gear "_s);
    EXPECT_EQ(fragmentAt(u"Rem gear "_s, red, { u' ', nothing }).text(), u"Rem gear "_s);
    EXPECT_EQ(fragmentAt(u"/U "_s, red, { u'x', nothing }).text(), u"/U "_s);
}

TEST(Landing, AStatementGoesToTheLineAfterTheCaretsUnlessThatIsAtItsStart)
{
    const Landing after = landingOf(u"BTN S1 a"_s, 8, 0, ofLine(u"BTN S2 b "_s));
    EXPECT_EQ(after.text, u"BTN S1 a\nBTN S2 b "_s);
    EXPECT_EQ(after.line, 2);
    EXPECT_EQ(after.start, 9);
    EXPECT_EQ(after.length, 8);
    const Landing at = landingOf(u"BTN S1 a\n"_s, 9, 0, ofLine(u"BTN S2 b \n"_s));
    EXPECT_EQ(at.text, u"BTN S1 a\nBTN S2 b \n"_s);
    EXPECT_EQ(at.line, 2);
    EXPECT_EQ(at.start, 9);
}

TEST(Landing, InAnEmptyTextItIsTheFirstLine)
{
    const Landing landing = landingOf(QString(), 0, 0, ofLine(u"USE RATE (50) \n"_s));
    EXPECT_EQ(landing.text, u"USE RATE (50) \n"_s);
    EXPECT_EQ(landing.line, 1);
    EXPECT_EQ(landing.start, 0);
    EXPECT_EQ(landing.length, 13);
}

TEST(Landing, ASelectionIsReplaced)
{
    EXPECT_EQ(landingOf(u"BTN S1 abc d"_s, 7, 3, within(u"x"_s)).text, u"BTN S1 x d"_s);
}
