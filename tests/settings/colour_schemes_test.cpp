// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/colour_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace zeph;

namespace {

using S = ColourSettings;

double linear(int value)
{
    const double part = value / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(ColorRef colour)
{
    return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour))
        + 0.0722 * linear(blueOf(colour));
}

/// The contrast ratio that the accessibility guidelines define.
double ratio(ColorRef one, ColorRef other)
{
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05);
}

struct Ink {
    const char *name;
    ColorRef S::*ink;
    ColorRef S::*ground;
};

const Ink inks[] = {
    { "buttons", &S::BTNColour, &S::BackgroundColour },
    { "slashes", &S::SlashColour, &S::BackgroundColour },
    { "slashes in macros", &S::SlashColour, &S::MacroBackgroundColour },
    { "delays", &S::RAWColour, &S::BackgroundColour },
    { "delays in macros", &S::RAWColour, &S::MacroBackgroundColour },
    { "configuration", &S::MiscellaneousColour, &S::BackgroundColour },
    { "configuration in macros", &S::MiscellaneousColour, &S::MacroBackgroundColour },
    { "comments", &S::RemStatements, &S::BackgroundColour },
    { "comments in macros", &S::RemStatements, &S::MacroBackgroundColour },
    { "joystick text", &S::JoystickTextDefaultColour, &S::BackgroundColour },
    { "macro text", &S::MacroTextDefaultColour, &S::MacroBackgroundColour },
    { "macro list", &S::MacroListText, &S::MacroListBackground },
    { "macro headings", &S::MacroHeadingsText, &S::MacroHeadingsBackground },
};

void expectReadable(const ColourSettings &scheme)
{
    for (const Ink &each : inks) {
        EXPECT_GE(ratio(scheme.*each.ink, scheme.*each.ground), 4.5) << each.name;
    }
}

} // namespace

TEST(ColourSchemes, TheRatioOfBlackAndWhiteIs21AndOfTheSameColour1)
{
    EXPECT_NEAR(ratio(0, colorRef(255, 255, 255)), 21, 0.001);
    EXPECT_NEAR(ratio(colorRef(9, 90, 200), colorRef(9, 90, 200)), 1, 0.001);
    EXPECT_NEAR(ratio(colorRef(119, 119, 119), colorRef(255, 255, 255)), 4.48, 0.01);
}

TEST(ColourSchemes, EveryClassOfTheFirstRunsColoursCanBeRead)
{
    ColourSettings scheme;
    setFirstRunColours(scheme);
    expectReadable(scheme);
}

TEST(ColourSchemes, EveryClassOfTheDarkColoursCanBeReadOnDarkGround)
{
    ColourSettings scheme;
    setDarkColours(scheme);
    expectReadable(scheme);
    EXPECT_LT(luminance(scheme.BackgroundColour), 0.05);
    EXPECT_LT(luminance(scheme.MacroBackgroundColour), 0.05);
    EXPECT_LT(luminance(scheme.MacroListBackground), 0.05);
}

TEST(ColourSchemes, DarkColoursLeaveTheFont)
{
    ColourSettings scheme;
    scheme.TextFontName = u"Mono"_s;
    scheme.TextFontSize = 14;
    setDarkColours(scheme);
    EXPECT_EQ(scheme.TextFontName, u"Mono");
    EXPECT_EQ(scheme.TextFontSize, 14);
}
