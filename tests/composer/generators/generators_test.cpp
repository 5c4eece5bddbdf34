// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/generators.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(Generators, ANumberIsReadFromTheTextsStartAndHalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(wholeOf(u"6"), 6);
    EXPECT_EQ(wholeOf(u"2.5"), 2);
    EXPECT_EQ(wholeOf(u"3.5"), 4);
    EXPECT_EQ(wholeOf(u"50.5"), 50);
    EXPECT_EQ(wholeOf(u"12 bands"), 12);
    EXPECT_EQ(wholeOf(u"-3"), -3);
    EXPECT_EQ(wholeOf(u"many"), 0);
    EXPECT_EQ(wholeOf(u""), 0);
    EXPECT_EQ(wholeOf(u"99999999999"), 2147483647);
}
