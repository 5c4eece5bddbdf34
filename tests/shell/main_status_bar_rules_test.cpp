// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_status_bar.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr StatusPanelEdges edges{ 9000, 9300 };

QString hover(int x, bool selectorOn = false)
{
    return statusBarHover(x, edges, selectorOn, u"Maverick"_s).text;
}

} // namespace

TEST(StatusBarHover, OffersABeerFrom6000To6200Twips)
{
    const QString beer =
        u"Hey Maverick, what say you and I give up on this and go and grab a beer?"_s;
    EXPECT_EQ(hover(6000), beer);
    EXPECT_EQ(hover(6200), beer);
    EXPECT_EQ(hover(5999), u"Hi there Maverick, I'm the status bar");
    EXPECT_EQ(hover(6201), u"Hi there Maverick, I'm the status bar");
}

TEST(StatusBarHover, TellsThatTheSelectorIsOffBetweenPanels2And3)
{
    const QString off =
        u" Cougar mode selector is off. Left click to activate and change buttons mode"_s;
    EXPECT_EQ(hover(9000), off);
    EXPECT_EQ(hover(9299), off);
    EXPECT_EQ(hover(9300), u"Hi there Maverick, I'm the status bar");
    EXPECT_EQ(hover(8999), u"Hi there Maverick, I'm the status bar");
}

TEST(StatusBarHover, AsksForTheModeTooltipWithTheSelectorOn)
{
    EXPECT_TRUE(statusBarHover(9100, edges, true, u"Maverick"_s).wantsModeTooltip);
    EXPECT_FALSE(statusBarHover(9100, edges, false, u"Maverick"_s).wantsModeTooltip);
    EXPECT_FALSE(statusBarHover(100, edges, true, u"Maverick"_s).wantsModeTooltip);
}

TEST(StatusBarHover, TheBeerComesBeforeThePanels)
{
    EXPECT_TRUE(statusBarHover(6100, { 6000, 6400 }, true, u"M"_s).text.startsWith(u"Hey M,"));
}

TEST(StatusBarPress, MeansSomethingLeftOf320Twips)
{
    EXPECT_EQ(statusBarPress(319, false), StatusPress::ColourAndSave);
    EXPECT_EQ(statusBarPress(319, true), StatusPress::Compile);
    EXPECT_EQ(statusBarPress(0, true), StatusPress::Compile);
    EXPECT_EQ(statusBarPress(320, false), StatusPress::None);
    EXPECT_EQ(statusBarPress(320, true), StatusPress::None);
}
