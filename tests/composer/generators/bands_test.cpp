// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/bands.h"

#include <gtest/gtest.h>

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace bands_test {

namespace {

using Side = Bands::Side;

Bands applied(int type, QStringView count)
{
    Bands bands(type);
    EXPECT_FALSE(bands.apply(count)) << count.toUtf8().toStdString();
    return bands;
}

QList<int> shown(const Bands &bands)
{
    QList<int> borders;
    for (int border = 0; border <= bands.count(); ++border)
        borders.append(bands.shownBorder(border));
    return borders;
}

} // namespace

TEST(Bands, FiftyAreAcceptedAndFiftyOneRefused)
{
    EXPECT_EQ(applied(5, u"50").count(), 50);
    EXPECT_EQ(applied(6, u"50").count(), 50);
    Bands bands(5);
    const std::optional<Refusal> refusal = bands.apply(u"51");
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->title, u"Zeph"_s);
    EXPECT_EQ(refusal->text, u"The number of bands is invalid"_s);
    EXPECT_FALSE(bands.isApplied());
}

TEST(Bands, ACountIsTheRoundedNumberAtTheTextsStart)
{
    EXPECT_EQ(applied(5, u"50.5").count(), 50);
    EXPECT_EQ(applied(5, u"1").count(), 1);
    EXPECT_EQ(applied(5, u"0.51").count(), 1);
    EXPECT_EQ(applied(5, u"7 bands").count(), 7);
    for (const QStringView text :
         { u"0", u"", u"many", u"-1", u"-40000", u"0.5", u"50.6", u"99999" }) {
        Bands bands(6);
        EXPECT_TRUE(bands.apply(text)) << text.toUtf8().toStdString();
        EXPECT_EQ(bands, Bands(6));
    }
}

TEST(Bands, ARefusedCountLeavesTheBandsAsTheyWere)
{
    Bands bands = applied(5, u"3");
    bands.setMacro(1, u"Fire"_s);
    const Bands before = bands;
    EXPECT_TRUE(bands.apply(u"51"));
    EXPECT_EQ(bands, before);
}

TEST(Bands, TheAxisIsDividedEvenly)
{
    EXPECT_EQ(shown(applied(5, u"1")), (QList<int>{ 0, 100 }));
    EXPECT_EQ(shown(applied(5, u"2")), (QList<int>{ 0, 50, 100 }));
    EXPECT_EQ(shown(applied(6, u"3")), (QList<int>{ 0, 33, 67, 100 }));
    EXPECT_EQ(shown(applied(5, u"7")), (QList<int>{ 0, 14, 29, 43, 57, 71, 86, 100 }));
    // 12.5 and 37.5 round to the even neighbour.
    EXPECT_EQ(shown(applied(5, u"8")), (QList<int>{ 0, 12, 25, 38, 50, 62, 75, 88, 100 }));
    EXPECT_FLOAT_EQ(applied(5, u"7").border(1), 14.285714F);
    EXPECT_FLOAT_EQ(applied(5, u"3").border(2), 66.666667F);
}

TEST(Bands, BordersRiseForEveryCount)
{
    for (int count = 1; count <= 50; ++count) {
        const Bands bands = applied(5, QString::number(count));
        ASSERT_EQ(bands.count(), count);
        EXPECT_EQ(bands.border(0), 0);
        EXPECT_EQ(bands.border(count), 100);
        for (int border = 0; border < count; ++border)
            EXPECT_LT(bands.shownBorder(border), bands.shownBorder(border + 1)) << count;
    }
}

TEST(Bands, OneBandHasOnlyItsOwnNeighbourToKeepAwayFrom)
{
    Bands bands = applied(5, u"1");
    EXPECT_EQ(shown(bands), (QList<int>{ 0, 100 }));
    EXPECT_EQ(bands.moveBorder(0, Side::Low, 40), 40);
    EXPECT_EQ(bands.moveBorder(0, Side::High, 10), 41);
    EXPECT_EQ(bands.moveBorder(0, Side::Low, 100), 40);
    EXPECT_EQ(bands.moveBorder(0, Side::Low, 0), 0);
    EXPECT_EQ(bands.moveBorder(0, Side::High, 100), 100);
}

TEST(Bands, NeighboursOnePercentApartCannotComeCloser)
{
    Bands bands = applied(5, u"4");
    EXPECT_EQ(bands.moveBorder(1, Side::High, 26), 26);
    EXPECT_EQ(bands.moveBorder(1, Side::Low, 30), 25);
    EXPECT_EQ(bands.moveBorder(1, Side::High, 0), 26);
    EXPECT_EQ(shown(bands), (QList<int>{ 0, 25, 26, 75, 100 }));
}

TEST(Bands, ABorderStopsOnePercentFromItsNeighbourWithItsFraction)
{
    Bands bands = applied(5, u"3");
    EXPECT_FLOAT_EQ(bands.moveBorder(0, Side::High, 90), 65.666667F);
    EXPECT_EQ(bands.shownBorder(1), 66);
    bands = applied(5, u"3");
    EXPECT_FLOAT_EQ(bands.moveBorder(2, Side::Low, 0), 34.333333F);
    EXPECT_EQ(bands.shownBorder(2), 34);
}

TEST(Bands, TheEndsCanBeMovedIn)
{
    Bands bands = applied(6, u"2");
    bands.moveBorder(0, Side::Low, 20);
    bands.moveBorder(1, Side::High, 80);
    EXPECT_EQ(shown(bands), (QList<int>{ 20, 50, 80 }));
    EXPECT_EQ(bands.moveBorder(0, Side::Low, 80), 49);
    EXPECT_EQ(bands.moveBorder(1, Side::High, 0), 51);
}

TEST(Bands, ANeighbourMovesWithTheSharedBorder)
{
    Bands bands = applied(5, u"3");
    bands.moveBorder(0, Side::High, 40);
    EXPECT_EQ(bands.border(Bands::borderOf(1, Side::Low)), 40);
    EXPECT_EQ(bands.barOf(1, 100, 0).left, 40);
}

TEST(Bands, NoRunOfMovesLetsBordersMeet)
{
    Bands bands = applied(5, u"6");
    // Every place in turn, from both sides and in an order that is all over the axis.
    for (int step = 0; step < 5000; ++step) {
        const int band = step * 7 % 6;
        const Side side = step % 3 == 0 ? Side::Low : Side::High;
        bands.moveBorder(band, side, step * 37 % 101);
        for (int border = 0; border < bands.count(); ++border)
            ASSERT_GT(bands.border(border + 1) - bands.border(border), 0.999F) << step;
        ASSERT_GE(bands.border(0), 0);
        ASSERT_LE(bands.border(6), 100);
    }
}

TEST(Bands, ATypedBorderIsHeldLikeOneThatIsMoved)
{
    Bands bands = applied(5, u"4");
    bands.typeBorder(0, Side::High, u"30.5");
    EXPECT_EQ(bands.border(1), 30);
    bands.typeBorder(0, Side::High, u"400");
    EXPECT_EQ(bands.border(1), 49);
    bands.typeBorder(0, Side::Low, u"-5");
    EXPECT_EQ(bands.border(0), 0);
    bands.typeBorder(3, Side::High, u"999");
    EXPECT_EQ(bands.border(4), 100);
    bands.typeBorder(1, Side::High, u"none");
    EXPECT_EQ(bands.border(2), 50);
}

TEST(Bands, LeavingABoxWithoutTypingMovesNothing)
{
    Bands bands = applied(5, u"3");
    const Bands before = bands;
    bands.typeBorder(0, Side::High, u"33");
    EXPECT_EQ(bands, before);
}

TEST(Bands, EachBandOfTypeFiveHasAMacroAndTypeSixHasThree)
{
    Bands five = applied(5, u"4");
    EXPECT_EQ(five.macros(), 4);
    five.setMacro(3, u"Fire"_s);
    EXPECT_EQ(five.macro(3), u"Fire"_s);
    EXPECT_EQ(applied(6, u"4").macros(), 3);
}

TEST(Bands, OnlyAnOddCountOfTypeSixTakesACentre)
{
    EXPECT_TRUE(applied(6, u"1").takesCentre());
    EXPECT_TRUE(applied(6, u"49").takesCentre());
    EXPECT_FALSE(applied(6, u"2").takesCentre());
    EXPECT_FALSE(applied(5, u"3").takesCentre());
    EXPECT_FALSE(Bands(6).takesCentre());
    Bands even = applied(6, u"4");
    even.setMacro(Bands::centre, u"Centre"_s);
    EXPECT_EQ(even.macro(Bands::centre), QString());
}

TEST(Bands, AResetForgetsBordersAndMacros)
{
    Bands bands = applied(6, u"3");
    bands.setMacro(Bands::centre, u"Centre"_s);
    bands.reset();
    EXPECT_EQ(bands, Bands(6));
    EXPECT_FALSE(bands.apply(u"3"));
    EXPECT_EQ(bands.macro(Bands::centre), QString());
}

TEST(Bands, ABarIsAsWideAsItsBand)
{
    const Bands bands = applied(5, u"4");
    EXPECT_EQ(bands.barOf(0, 400, 10), (Bands::Span{ 10, 100 }));
    EXPECT_EQ(bands.barOf(2, 400, 10), (Bands::Span{ 210, 100 }));
}

TEST(Bands, APointOfTheBarTellsThePercentAndItsBand)
{
    EXPECT_EQ(Bands::percentAt(0, 200), 0);
    EXPECT_EQ(Bands::percentAt(100, 200), 50);
    EXPECT_EQ(Bands::percentAt(1, 200), 0);
    EXPECT_EQ(Bands::percentAt(3, 200), 2);
    EXPECT_EQ(Bands::percentAt(200, 200), 100);
    EXPECT_EQ(Bands::percentAt(5, 0), 0);
    const Bands bands = applied(5, u"3");
    EXPECT_EQ(bands.bandAt(0), 0);
    EXPECT_EQ(bands.bandAt(33), 0);
    EXPECT_EQ(bands.bandAt(34), 1);
    EXPECT_EQ(bands.bandAt(67), 2);
    EXPECT_EQ(bands.bandAt(99), 2);
    EXPECT_EQ(bands.bandAt(100), std::nullopt);
    EXPECT_EQ(bands.bandAt(-1), std::nullopt);
    EXPECT_EQ(Bands(5).bandAt(0), std::nullopt);
}

TEST(Bands, DeadZonesAtTheEndsAreNoBand)
{
    Bands bands = applied(5, u"2");
    bands.moveBorder(0, Side::Low, 10);
    bands.moveBorder(1, Side::High, 90);
    EXPECT_EQ(bands.bandAt(9), std::nullopt);
    EXPECT_EQ(bands.bandAt(10), 0);
    EXPECT_EQ(bands.bandAt(50), 1);
    EXPECT_EQ(bands.bandAt(90), std::nullopt);
}

TEST(Bands, TwoDividersMarkTheMiddleOfAnOddCountOfTypeSix)
{
    const auto marked = [](const Bands &bands) {
        QList<int> dividers;
        for (int divider = -1; divider <= bands.count(); ++divider) {
            if (bands.isMiddleDivider(divider))
                dividers.append(divider);
        }
        return dividers;
    };
    EXPECT_EQ(marked(applied(6, u"3")), (QList<int>{ 0, 1 }));
    EXPECT_EQ(marked(applied(6, u"7")), (QList<int>{ 2, 3 }));
    EXPECT_TRUE(marked(applied(6, u"1")).isEmpty());
    EXPECT_TRUE(marked(applied(6, u"4")).isEmpty());
    EXPECT_TRUE(marked(applied(5, u"3")).isEmpty());
    EXPECT_EQ(Bands::borderOfDivider(0), 1);
}

TEST(Bands, BordersOfAFileHaveToRise)
{
    ASSERT_TRUE(Bands::withBorders(5, { 0, 20, 100 }));
    EXPECT_EQ(shown(*Bands::withBorders(5, { 10, 20, 90 })), (QList<int>{ 10, 20, 90 }));
    EXPECT_EQ(Bands::withBorders(5, { 0, 20, 100 })->macros(), 2);
    for (const QList<int> &borders : QList<QList<int>>{ {},
                                                        { 0 },
                                                        { 0, 0 },
                                                        { 100, 100 },
                                                        { 20, 10 },
                                                        { -1, 50 },
                                                        { 50, 101 },
                                                        { 0, 13, 13, 100 },
                                                        { 0, 12, 12, 12, 100 } })
        EXPECT_FALSE(Bands::withBorders(5, borders)) << borders.size();
    QList<int> many;
    for (int border = 0; border <= 50; ++border)
        many.append(border);
    EXPECT_TRUE(Bands::withBorders(5, many));
    EXPECT_FALSE(Bands::withBorders(5, many + QList<int>{ 51 }));
}

TEST(Bands, TwoBordersThatRoundToOneNumberComeBack)
{
    // In eight bands border 1 is at 12.5; its neighbour can be pushed to 11.5, and both print 12.
    Bands bands = applied(5, u"8");
    EXPECT_EQ(bands.moveBorder(0, Side::Low, 100), 11.5F);
    EXPECT_EQ(shown(bands).first(2), (QList<int>{ 12, 12 }));
    const std::optional<Bands> read = Bands::withBorders(5, shown(bands));
    ASSERT_TRUE(read);
    EXPECT_EQ(shown(*read), shown(bands));
    EXPECT_EQ(read->border(0), 11.5F);
    EXPECT_EQ(read->border(1), 12.5F);
}

} // namespace bands_test
