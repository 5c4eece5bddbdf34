// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mouse_programs.h"

#include "composer/mouse/coordinates.h"
#include "tests/composer/generators/generator_rows.h"

using namespace zeph;

namespace mouse_programs_tests {

namespace {

/// What the compiler says of a statement on a button, in a file that tells the resolution.
QStringList findingsOnButton(const QString &statement)
{
    return findingsIn(u"USE SCREEN_RESOLUTION (1024,768) \n\nBTN S1 "_s + statement + u'\n');
}

} // namespace

TEST(MousePrograms, TheScreenResolutionEndsWithTwoLineEnds)
{
    const Generated made = screenResolution(u"1024,768"_s);
    EXPECT_EQ(toldBy(made), u"USE SCREEN_RESOLUTION (1024,768) \n\n");
    EXPECT_TRUE(made->startsLine);
}

TEST(MousePrograms, ThePlaceTheWayAndTheRotation)
{
    EXPECT_EQ(toldBy(mouseXY(u"UL"_s, u"200, 140"_s)), u"MOUSEXY (UL, 200, 140) ");
    EXPECT_EQ(toldBy(mouseXY(u"CENTRE"_s, u"-12.5%, 0%"_s)), u"MOUSEXY (CENTRE, -12.5%, 0%) ");
    EXPECT_EQ(toldBy(mouseMove(u"10, -20"_s)), u"MOUSEMOVE (10, -20) ");
    EXPECT_EQ(toldBy(mouseMove(u"1.5%, 0%"_s)), u"MOUSEMOVE (1.5%, 0%) ");
    const RotateTexts values{ u"UL"_s,       u"320, 240"_s, u"50"_s,  u"90"_s,
                              u"MOUSE_LB"_s, u"CW"_s,       u"180"_s, u"2"_s };
    EXPECT_EQ(toldBy(mouseRotate(values)),
              u"MOUSEROTATE (UL, 320, 240, 50, 90, [MOUSE_LB], CW, 180, 2)");
    EXPECT_FALSE(mouseXY(u"UL"_s, u"1, 2"_s)->startsLine);
    EXPECT_FALSE(mouseMove(u"1, 2"_s)->startsLine);
    EXPECT_FALSE(mouseRotate(values)->startsLine);
}

TEST(MousePrograms, WhatIsTypedGoesInUnchecked)
{
    EXPECT_EQ(toldBy(mouseXY(u"UL"_s, u""_s)), u"MOUSEXY (UL, ) ");
    EXPECT_EQ(toldBy(mouseMove(u"%1 nonsense"_s)), u"MOUSEMOVE (%1 nonsense) ");
    EXPECT_EQ(toldBy(mouseRotate(
                  { u"%2"_s, u"%1"_s, u"a"_s, u"%3"_s, u"%4 b"_s, u"CCW"_s, u"%8"_s, u"0"_s })),
              u"MOUSEROTATE (%2, %1, a, %3, [%4 b], CCW, %8, 0)");
    EXPECT_EQ(toldBy(screenResolution(u"any"_s)), u"USE SCREEN_RESOLUTION (any) \n\n");
}

TEST(MousePrograms, TheCompilerTakesEachStatementFromEachOrigin)
{
    for (const QStringView resolution : screenResolutions) {
        EXPECT_EQ(findingsIn(screenResolution(resolution.toString())->text()), QStringList());
    }
    for (const QStringView origin : mouseOrigins) {
        const QString name = origin.toString();
        for (const QString &place :
             { u"0, 0"_s, u"200, 140"_s, u"-200, -140.5"_s, u"0.5%, 100%"_s, u"-33.3%, 12.5%"_s }) {
            EXPECT_EQ(findingsOnButton(mouseXY(name, place)->text()), QStringList());
            EXPECT_EQ(findingsOnButton(mouseMove(place)->text()), QStringList());
            for (const bool isClockwise : { true, false }) {
                for (const QString &radius : { u"50"_s, u"4.9%"_s }) {
                    for (int steps = 1; steps <= mostSteps; ++steps) {
                        const Generated made = mouseRotate(
                            { name, place, radius, u"0"_s, u"MOUSE_LB"_s,
                              directionWord(isClockwise), u"359.9"_s, QString::number(steps) });
                        EXPECT_EQ(findingsOnButton(made->text()), QStringList())
                            << made->text().toStdString();
                    }
                }
            }
        }
    }
}

TEST(MousePrograms, InPixelsTheCompilerAsksForTheResolution)
{
    EXPECT_NE(findingsIn(u"BTN S1 "_s + mouseXY(u"UL"_s, u"200, 140"_s)->text()), QStringList());
    EXPECT_EQ(findingsIn(u"BTN S1 "_s + mouseXY(u"UL"_s, u"20%, 14%"_s)->text()), QStringList());
}

TEST(MousePrograms, APictureGivesItsSize)
{
    EXPECT_EQ(resolutionText({ 1920, 1080 }), u"1920,1080");
    EXPECT_EQ(resolutionText({}), u"");
    EXPECT_EQ(resolutionText({ 0, 5 }), u"");
}

} // namespace mouse_programs_tests
