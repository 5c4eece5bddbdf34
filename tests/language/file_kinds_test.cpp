// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/file_kinds.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(FileKinds, EachJoystickExtensionHasItsMacroExtension)
{
    EXPECT_EQ(macroExtensionFor(u"a.tmj"), u"tmm");
    EXPECT_EQ(macroExtensionFor(u"a.F22"), u"m22");
    EXPECT_EQ(macroExtensionFor(u"a.b50"), u"m50");
    EXPECT_EQ(macroExtensionFor(u"a.adv"), u"mdf");
    EXPECT_EQ(macroExtensionFor(u"a.xyz"), u"tmm");
    EXPECT_EQ(joystickExtensionFor(u"a.m22"), u"f22");
}

TEST(FileKinds, TheLastThreeCharactersDecideWithOrWithoutADot)
{
    EXPECT_EQ(kindOfName(u"falcon.TMM"), DocumentKind::Macro);
    EXPECT_EQ(kindOfName(u"xtmm"), DocumentKind::Macro);
    EXPECT_EQ(kindOfName(u"m22"), DocumentKind::Macro);
    EXPECT_EQ(kindOfName(u"falcon.tmj"), DocumentKind::Joystick);
    EXPECT_EQ(kindOfName(u"readme.txt"), DocumentKind::Joystick);
    EXPECT_EQ(kindOfName(u""), DocumentKind::Joystick);
}

TEST(FileKinds, ATabShowsACapitalExtensionInLowerCase)
{
    EXPECT_EQ(tabCaption(u"FALCON.TMJ"_s), u"FALCON.tmj");
    EXPECT_EQ(tabCaption(u"AB"_s), u"ab");
}

TEST(FileKinds, ANameThatBeginsUntitledCountsAsNeverSaved)
{
    EXPECT_TRUE(isUntitled(u"Untitled.tmj"));
    EXPECT_TRUE(isUntitled(u"Untitled flight.tmj"));
    EXPECT_FALSE(isUntitled(u"untitled.tmj"));
    EXPECT_FALSE(isUntitled(u"My Untitled.tmj"));
}
