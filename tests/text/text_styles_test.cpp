// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/temp_folder.h"
#include "text/text_styles.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

class TextStylesTest : public testing::Test
{
protected:
    TextStyles readFrom(const QByteArray &file)
    {
        return readTextStyles(ProfileFile(folder.write(u"Zeph.ini"_s, file)));
    }

    test::TempFolder folder;
};

} // namespace

TEST_F(TextStylesTest, AMissingStoreGivesTheDefaults)
{
    const TextStyles styles = readTextStyles(ProfileFile(folder.file(u"none.ini"_s)));
    EXPECT_EQ(styles, defaultTextStyles());
    EXPECT_EQ(styles[0].name, u"Style 1");
    EXPECT_EQ(styles[5].name, u"Style 6");
    EXPECT_EQ(styles[6].name, u"/U style");
    EXPECT_EQ(styles[7].name, u"/M style");
    EXPECT_EQ(styles[8].name, u"/D style");
    for (const TextStyle &style : styles) {
        EXPECT_EQ(style.format.family, u"Arial");
        EXPECT_EQ(style.format.pointSize, 8);
        EXPECT_TRUE(style.format.colour.has_value());
    }
}

TEST_F(TextStylesTest, StylesAreKeptUnderTheirNumberedKeys)
{
    TextStyles styles = defaultTextStyles();
    styles[8] = { u"Landing"_s, { u"Courier New"_s, 14, true, false, true, ColorRef(0x123456) } };
    const ProfileFile store(folder.file(u"Zeph.ini"_s));
    ASSERT_TRUE(writeTextStyles(store, styles));
    EXPECT_EQ(store.text(u"Colours", u"StyleName9"), u"Landing");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontName9"), u"Courier New");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontSize9"), u"14");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontBold9"), u"1");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontItalic9"), u"0");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontUnderline9"), u"1");
    EXPECT_EQ(store.text(u"Colours", u"StyleFontColour9"), u"1193046");
    EXPECT_EQ(readTextStyles(store), styles);
}

TEST_F(TextStylesTest, WhatIsNoValueOfItsKindIsTheDefault)
{
    const TextStyles styles = readFrom("[Colours]\r\n"
                                       "StyleName1=\r\n"
                                       "StyleFontSize1=big\r\n"
                                       "StyleFontColour1=red\r\n"
                                       "StyleFontBold1=yes\r\n"
                                       "StyleFontSize2=-5\r\n");
    EXPECT_EQ(styles, defaultTextStyles());
}

TEST_F(TextStylesTest, SizesAreWholePointsWithinTheLimits)
{
    const TextStyles styles = readFrom("[Colours]\r\n"
                                       "StyleFontSize1=10.6\r\n"
                                       "StyleFontSize2=100000\r\n"
                                       "StyleFontSize3=1\r\n");
    EXPECT_EQ(styles[0].format.pointSize, 11);
    EXPECT_EQ(styles[1].format.pointSize, largestStyleSize);
    EXPECT_EQ(styles[2].format.pointSize, smallestStyleSize);
}

TEST_F(TextStylesTest, DefaultsAreWithinTheLimitsAndToldApart)
{
    const TextStyles styles = defaultTextStyles();
    for (size_t i = 0; i < styles.size(); ++i) {
        EXPECT_GE(styles[i].format.pointSize, smallestStyleSize);
        EXPECT_LE(styles[i].format.pointSize, largestStyleSize);
        for (size_t j = 0; j < i; ++j) {
            EXPECT_NE(styles[i].name, styles[j].name);
            EXPECT_NE(styles[i].format.colour, styles[j].format.colour);
        }
    }
}
