// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/mode_rules.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct PictureCase {
    qint16 buttons;
    ModePicture picture;
};

constexpr PictureCase pictures[] = {
    { 0, ModePicture::Windows },      { 1, ModePicture::Programmed },
    { -1, ModePicture::Unknown },     { 2, ModePicture::Unknown },
    { -2, ModePicture::Unknown },     { 32767, ModePicture::Unknown },
    { -32768, ModePicture::Unknown },
};

struct HalfCase {
    qint16 value;
    QStringView axes;
    QStringView buttons;
};

constexpr HalfCase halves[] = {
    { -1, u"Last mode change reported: Error changing axis mode, ",
      u"error changing buttons mode." },
    { 0, u"Last mode change reported: Windows axes, ", u"Windows buttons." },
    { 1, u"Last mode change reported: User defined axes, ", u"Programmed buttons." },
    { 2, u"Last mode change reported: Unknown axis mode, ", u"unknown buttons mode." },
    { -2, u"Last mode change reported: Unknown axis mode, ", u"unknown buttons mode." },
};

struct ClickCase {
    ModePicture picture;
    qint16 buttons;
    ModeChange change;
};

constexpr ClickCase clicks[] = {
    { ModePicture::SelectorOff, 0, ModeChange::None },
    { ModePicture::SelectorOff, 1, ModeChange::None },
    { ModePicture::SelectorOff, 5, ModeChange::None },
    { ModePicture::SelectorOff, -1, ModeChange::ToWindows },
    { ModePicture::Windows, 0, ModeChange::ToProgrammed },
    { ModePicture::Windows, -1, ModeChange::ToProgrammed },
    { ModePicture::Programmed, 1, ModeChange::ToWindows },
    { ModePicture::Unknown, -1, ModeChange::ToWindows },
    { ModePicture::Unknown, 0, ModeChange::ToWindows },
    { ModePicture::Unknown, 7, ModeChange::ToWindows },
};

} // namespace

TEST(ModeRules, ThePictureFollowsTheButtonsValue)
{
    for (const PictureCase &row : pictures) {
        EXPECT_EQ(pictureOf(row.buttons), row.picture) << row.buttons;
    }
}

TEST(ModeRules, TheReportIsTwoHalves)
{
    for (const HalfCase &axes : halves) {
        for (const HalfCase &buttons : halves) {
            EXPECT_EQ(reportInWords(axes.value, buttons.value),
                      axes.axes.toString() + buttons.buttons.toString());
        }
    }
}

TEST(ModeRules, AMissingJoystickIsToldWithItsNumberCountedFromOne)
{
    EXPECT_EQ(noJoystickInWords(0), u"No joystick detected on ID1");
    EXPECT_EQ(noJoystickInWords(15), u"No joystick detected on ID16");
}

TEST(ModeRules, WhatAClickAsksForDependsOnThePicture)
{
    for (const ClickCase &row : clicks) {
        EXPECT_EQ(changeAtClick(row.picture, row.buttons), row.change)
            << int(row.picture) << ' ' << row.buttons;
    }
}

TEST(ModeRules, TheIntervalIsCountedInSixteenBits)
{
    EXPECT_EQ(detectorInterval(1), qint16(1000));
    EXPECT_EQ(detectorInterval(3), qint16(3000));
    EXPECT_EQ(detectorInterval(32), qint16(32000));
    EXPECT_EQ(detectorInterval(33), std::nullopt);
    EXPECT_EQ(detectorInterval(60), std::nullopt);
    EXPECT_EQ(detectorInterval(32767), std::nullopt);
}

TEST(ModeRules, AnIntervalOfNothingIsTheDefault)
{
    EXPECT_EQ(detectorInterval(0), qint16(3000));
    EXPECT_EQ(detectorInterval(-1), qint16(3000));
    EXPECT_EQ(detectorInterval(-32768), qint16(3000));
}
