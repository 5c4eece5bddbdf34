// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/grid.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

LayoutTextBox boxAt(float left, float top, float width, float height)
{
    return { .Left = left, .Top = top, .Width = width, .Height = height, .text = {} };
}

} // namespace

TEST(Grid, SnappingMovesUpAndLeftAndKeepsTheSize)
{
    LayoutTextBox box = boxAt(23, 19, 101, 52);
    snapToGrid(box, 10);
    EXPECT_EQ(box, boxAt(20, 10, 101, 52));
}

TEST(Grid, ABoxOnTheGridStaysOnSnapAndGrowsByACellOnResize)
{
    LayoutTextBox box = boxAt(20, 10, 100, 50);
    snapToGrid(box, 10);
    EXPECT_EQ(box, boxAt(20, 10, 100, 50));
    resizeToGrid(box, 10);
    EXPECT_EQ(box, boxAt(20, 10, 110, 60));
}

TEST(Grid, ResizingRoundsSizesUpAndPlacesDown)
{
    LayoutTextBox box = boxAt(24, 29, 41, 21);
    resizeToGrid(box, 5);
    EXPECT_EQ(box, boxAt(20, 25, 45, 25));
}

TEST(Grid, PlacesLeftOfTheSheetGoFartherLeft)
{
    LayoutTextBox box = boxAt(-3, -1, 40, 20);
    snapToGrid(box, 5);
    EXPECT_EQ(box, boxAt(-5, -5, 40, 20));
}

TEST(Grid, TypedCellSizesAreTruncatedAndHeldToTheLimits)
{
    EXPECT_EQ(gridCellSize(u"7.9"), 7);
    EXPECT_EQ(gridCellSize(u" 12 "), 12);
    EXPECT_EQ(gridCellSize(u"1"), 2);
    EXPECT_EQ(gridCellSize(u"2"), 2);
    EXPECT_EQ(gridCellSize(u"100"), 100);
    EXPECT_EQ(gridCellSize(u"101"), 100);
    EXPECT_EQ(gridCellSize(u"1e300"), 100);
    EXPECT_EQ(gridCellSize(u"-4"), 2);
    EXPECT_EQ(gridCellSize(u""), 2);
    EXPECT_EQ(gridCellSize(u"wide"), 2);
    EXPECT_EQ(gridCellSize(u"nan"), 2);
}
