// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/units.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(RoundHalfEven, HalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(roundHalfEven(0.5), 0);
    EXPECT_EQ(roundHalfEven(1.5), 2);
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(-1.5), -2);
    EXPECT_EQ(roundHalfEven(2.4999), 2);
}

TEST(LeadingNumber, ReadsWhatStandsFirstAndIgnoresTheRest)
{
    EXPECT_EQ(leadingNumber(u"12 bands"), 12);
    EXPECT_EQ(leadingNumber(u"  -3.5x"), -3.5);
    EXPECT_EQ(leadingNumber(u"1D2"), 100);
    EXPECT_EQ(leadingNumber(u"1e"), 1);
    EXPECT_EQ(leadingNumber(u"."), 0);
    EXPECT_EQ(leadingNumber(u"none"), 0);
    EXPECT_EQ(leadingNumber(u""), 0);
}

TEST(Colours, AreDecimalTextWithBlueInTheHighByte)
{
    EXPECT_EQ(colorRef(255, 0, 0), 255U);
    EXPECT_EQ(colorRefFromText(u"16711680"), colorRef(0, 0, 255));
    EXPECT_EQ(textFromColorRef(colorRef(0, 128, 0)), u"32768");
    EXPECT_EQ(colorRefFromText(QString::fromLatin1("12\0x", 4)), 12U);
    EXPECT_FALSE(colorRefFromText(u"red"));
    EXPECT_FALSE(colorRefFromText(u""));
}

TEST(Twips, FifteenMakeAPixel)
{
    EXPECT_EQ(pixelsFromTwips(13320), 888);
    EXPECT_EQ(twipsFromPixels(20), 300);
}
