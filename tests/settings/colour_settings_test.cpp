// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/colour_settings.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct CustomColoursTest : testing::Test {
    test::TempFolder folder;
    ProfileFile store{ folder.file(u"Zeph.ini"_s) };
};

constexpr ColorRef white = 0xFFFFFF;

} // namespace

TEST_F(CustomColoursTest, AMissingStoreGivesSixteenWhiteOnes)
{
    const CustomColours colours = GetCustomColour(store);
    EXPECT_EQ(colours.size(), 16U);
    for (const ColorRef colour : colours) {
        EXPECT_EQ(colour, white);
    }
}

TEST_F(CustomColoursTest, EachStandsUnderItsNumberedKey)
{
    folder.write(u"Zeph.ini"_s,
                 "[Colours]\r\nCustomColour1=255\r\nCustomColour16=65280\r\n"
                 "CustomColour3=red\r\n");
    const CustomColours colours = GetCustomColour(store);
    EXPECT_EQ(colours[0], 255U);
    EXPECT_EQ(colours[15], 65280U);
    EXPECT_EQ(colours[2], white);
}

TEST_F(CustomColoursTest, WhatIsKeptComesBackAndTheRestOfTheStoreStays)
{
    folder.write(u"Zeph.ini"_s, "[Colours]\r\nBTNColour=7\r\n");
    CustomColours colours = GetCustomColour(store);
    colours[4] = 0x123456;
    ASSERT_TRUE(keepCustomColours(store, colours));
    EXPECT_EQ(GetCustomColour(store), colours);
    EXPECT_EQ(store.integer(u"Colours", u"CustomColour5", 0), 0x123456);
    EXPECT_EQ(store.integer(u"Colours", u"BTNColour", 0), 7);
}
