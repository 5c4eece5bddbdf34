// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/window_places.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>
#include <QWidget>

using namespace zeph;

namespace {

const QRect left(0, 0, 1024, 768);
const QRect right(1024, 0, 1920, 1080);

} // namespace

TEST(WindowPlaces, APlaceOnAScreenIsKept)
{
    const QRect place(1200, 100, 800, 600);
    EXPECT_EQ(heldToScreens(place, { left, right }), place);
    EXPECT_EQ(heldToScreens(place, {}), place) << "without a screen nothing is known";
}

// Beside a place that is moved there is room for a frame: 16 across and 40 down.
TEST(WindowPlaces, APlaceOnAScreenThatIsGoneIsMovedToTheOneThatIsLeft)
{
    EXPECT_EQ(heldToScreens({ 1200, 100, 800, 600 }, { left }), QRect(208, 100, 800, 600));
    EXPECT_EQ(heldToScreens({ -5000, -5000, 300, 200 }, { left, right }), QRect(0, 0, 300, 200));
    EXPECT_EQ(heldToScreens({ 9000, 9000, 300, 200 }, { left, right }),
              QRect(1024 + 1920 - 300 - 16, 1080 - 200 - 40, 300, 200));
}

TEST(WindowPlaces, APlaceOnTwoScreensGoesToTheOneWithMoreOfIt)
{
    EXPECT_EQ(heldToScreens({ 1000, 50, 400, 300 }, { left, right }), QRect(1024, 50, 400, 300));
    EXPECT_EQ(heldToScreens({ 700, 50, 400, 300 }, { left, right }), QRect(608, 50, 400, 300));
}

TEST(WindowPlaces, APlaceLargerThanTheScreenIsMadeToFitWithRoomForItsFrame)
{
    const QRect held = heldToScreens({ 50, 60, 5000, 4000 }, { left });
    EXPECT_TRUE(left.contains(held));
    EXPECT_LT(held.height(), left.height());
    EXPECT_GT(held.height(), left.height() - 60);
}

TEST(WindowPlaces, ANewWindowStandsAtTheSideWhereThereIsRoom)
{
    const QSize size(300, 400);
    const QRect onLeft(10, 20, 600, 500);
    EXPECT_EQ(placeBeside(size, onLeft, left), QRect(QPoint(610, 20), size));
    const QRect onRight(400, 20, 600, 500);
    const QRect beside = placeBeside(size, onRight, left);
    EXPECT_EQ(beside.size(), size);
    EXPECT_LT(beside.right(), onRight.left());
    EXPECT_GE(beside.left(), left.left());
    // Nowhere room enough: as far to the side as the screen goes.
    EXPECT_EQ(placeBeside(size, { 100, 20, 900, 500 }, left).left(), left.left());
    EXPECT_EQ(placeBeside(size, left, left).size(), size);
}

TEST(WindowPlaces, AMaximisedWindowsPlaceIsTheOneThatItGoesBackTo)
{
    QWidget window;
    restorePlace(window, { 30, 40, 300, 200 });
    EXPECT_EQ(normalPlace(window), QRect(30, 40, 300, 200));
    window.show();
    QTest::qWait(0);
    window.showMaximized();
    QTest::qWait(0);
    ASSERT_NE(window.size(), QSize(300, 200));
    EXPECT_EQ(normalPlace(window).size(), QSize(300, 200));
    window.showNormal();
    QTest::qWait(0);
    EXPECT_EQ(window.size(), QSize(300, 200));
}

TEST(WindowPlaces, AnEmptySizeIsNone)
{
    QWidget window;
    window.resize(250, 150);
    restorePlace(window, { 30, 40, 0, 0 });
    EXPECT_EQ(window.size(), QSize(250, 150));
    EXPECT_EQ(window.pos(), QPoint(30, 40));
}

TEST(WindowPlaces, AStoredPlaceThatNoScreenShowsIsBroughtBack)
{
    QWidget window;
    restorePlace(window, { 40000, 40000, 300, 200 });
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
}
