// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/coordinates.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace mouse_coordinates_tests {

namespace {

using enum MouseUnit;

constexpr QSize screen(800, 600);

struct Row {
    QStringView origin;
    QPointF place;
    QStringView pixels;
    QStringView percent;
};

constexpr Row rows[] = {
    // A place in each quarter of the screen from each origin.
    { u"UL", { 200, 60 }, u"200, 60", u"25%, 10%" },
    { u"UL", { 600, 60 }, u"600, 60", u"75%, 10%" },
    { u"UL", { 200, 540 }, u"200, 540", u"25%, 90%" },
    { u"UL", { 600, 540 }, u"600, 540", u"75%, 90%" },
    { u"UR", { 200, 60 }, u"600, 60", u"75%, 10%" },
    { u"UR", { 600, 60 }, u"200, 60", u"25%, 10%" },
    { u"UR", { 200, 540 }, u"600, 540", u"75%, 90%" },
    { u"UR", { 600, 540 }, u"200, 540", u"25%, 90%" },
    { u"DL", { 200, 60 }, u"200, 540", u"25%, 90%" },
    { u"DL", { 600, 60 }, u"600, 540", u"75%, 90%" },
    { u"DL", { 200, 540 }, u"200, 60", u"25%, 10%" },
    { u"DL", { 600, 540 }, u"600, 60", u"75%, 10%" },
    { u"DR", { 200, 60 }, u"600, 540", u"75%, 90%" },
    { u"DR", { 600, 60 }, u"200, 540", u"25%, 90%" },
    { u"DR", { 200, 540 }, u"600, 60", u"75%, 10%" },
    { u"DR", { 600, 540 }, u"200, 60", u"25%, 10%" },
    { u"CENTRE", { 200, 60 }, u"-200, -240", u"-25%, -40%" },
    { u"CENTRE", { 600, 60 }, u"200, -240", u"25%, -40%" },
    { u"CENTRE", { 200, 540 }, u"-200, 240", u"-25%, 40%" },
    { u"CENTRE", { 600, 540 }, u"200, 240", u"25%, 40%" },
    { u"CENTER", { 600, 60 }, u"200, -240", u"25%, -40%" },
    // The middle, its two axes, and the limits.
    { u"CENTRE", { 400, 300 }, u"0, 0", u"0%, 0%" },
    { u"CENTRE", { 400, 100 }, u"0, -200", u"0%, -33.3%" },
    { u"CENTRE", { 401, 300 }, u"1, 0", u"0.1%, 0%" },
    { u"UL", { 0, 0 }, u"0, 0", u"0%, 0%" },
    { u"UL", { 799, 599 }, u"799, 599", u"99.9%, 99.8%" },
    { u"DR", { 0, 0 }, u"800, 600", u"100%, 100%" },
    { u"DR", { 799, 599 }, u"1, 1", u"0.1%, 0.2%" },
    { u"CENTRE", { 0, 0 }, u"-400, -300", u"-50%, -50%" },
};

} // namespace

TEST(MouseCoordinates, EachRow)
{
    for (const Row &row : rows) {
        const QPointF counted = countedFrom(row.origin, row.place, screen);
        EXPECT_EQ(pairText(Pixels, inUnit(Pixels, counted, screen), u", "), row.pixels);
        EXPECT_EQ(pairText(Percent, inUnit(Percent, counted, screen), u", "), row.percent);
    }
}

TEST(MouseCoordinates, CornersArePositiveInsideThePicture)
{
    for (const QStringView origin : mouseOrigins) {
        if (origin.size() > 2) {
            continue;
        }
        for (int x = 0; x < screen.width(); x += 17) {
            for (int y = 0; y < screen.height(); y += 13) {
                const QPointF counted = countedFrom(origin, { double(x), double(y) }, screen);
                EXPECT_GE(counted.x(), 0);
                EXPECT_GE(counted.y(), 0);
            }
        }
    }
}

TEST(MouseCoordinates, OppositeCornersAddUpToTheWholeScreen)
{
    const QPointF place(123.4, 56.7);
    const QPointF whole = countedFrom(u"UL", place, screen) + countedFrom(u"DR", place, screen);
    EXPECT_EQ(whole, QPointF(800, 600));
    const QPointF other = countedFrom(u"UR", place, screen) + countedFrom(u"DL", place, screen);
    EXPECT_EQ(other, QPointF(800, 600));
}

TEST(MouseCoordinates, AnOddSizeHasItsCentreBetweenPixels)
{
    EXPECT_EQ(countedFrom(u"CENTRE", { 0, 0 }, QSize(3, 5)), QPointF(-1.5, -2.5));
}

TEST(MouseCoordinates, AnEmptyPictureHasNoPercentages)
{
    EXPECT_EQ(inUnit(Percent, { 5, 5 }, QSize()), QPointF());
    EXPECT_EQ(inUnit(Pixels, { 5, 5 }, QSize()), QPointF(5, 5));
}

TEST(MouseCoordinates, BothSpellingsOfTheCentreAreOffered)
{
    const QList<QStringView> offered(std::begin(mouseOrigins), std::end(mouseOrigins));
    const QList<QStringView> expected{ u"UL", u"DL", u"UR", u"DR", u"CENTER", u"CENTRE" };
    EXPECT_EQ(offered, expected);
}

} // namespace mouse_coordinates_tests
