// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/arrange/stacking.h"

#include <gmock/gmock.h>

using namespace zeph;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Stacking, BoxesThatFitKeepTheirHeights)
{
    EXPECT_THAT(squeezed({ 20, 30, 50 }, 100), ElementsAre(20, 30, 50));
    EXPECT_THAT(squeezed({}, 100), IsEmpty());
}

TEST(Stacking, TheHighestBoxesGiveWay)
{
    // 20 stays, and the others share the 100 that are left.
    EXPECT_THAT(squeezed({ 300, 20, 60 }, 120), ElementsAre(50, 20, 50));
    EXPECT_THAT(squeezed({ 300, 20, 40 }, 120), ElementsAre(60, 20, 40));
    EXPECT_THAT(squeezed({ 300, 300, 300 }, 120), ElementsAre(40, 40, 40));
}

TEST(Stacking, BoxesStandWhereTheyAreWanted)
{
    EXPECT_THAT(stacked({ 20, 40 }, { 50, 200 }, 10, 0, 300), ElementsAre(40, 180));
}

TEST(Stacking, BoxesThatWouldOverlapShareTheWay)
{
    // Both want their middles at 100: the first is as far above it as the second is below.
    EXPECT_THAT(stacked({ 40, 40 }, { 100, 100 }, 10, 0, 300), ElementsAre(55, 105));
    // Wanted in the other order they stay in theirs.
    EXPECT_THAT(stacked({ 40, 40 }, { 150, 50 }, 10, 0, 300), ElementsAre(55, 105));
}

TEST(Stacking, BoxesStayInTheRoom)
{
    EXPECT_THAT(stacked({ 40, 40 }, { 0, 20 }, 10, 20, 300), ElementsAre(20, 70));
    EXPECT_THAT(stacked({ 40, 40 }, { 290, 290 }, 10, 20, 300), ElementsAre(210, 260));
}

TEST(Stacking, TheHeightCountsTheGapsBetween)
{
    EXPECT_EQ(stackHeight({ 10, 20, 30 }, 5), 70);
    EXPECT_EQ(stackHeight({}, 5), 0);
}
