// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/sheet_kinds.h"

#include <array>

namespace zeph {

namespace {

constexpr qint32 mostRecent = 30;

constexpr QStringView joystickBoxes[] = {
    u"Hat 1",     u"Hat 2",  u"Hat 3",    u"Hat 4",    u"BTN S1",   u"BTN S2",
    u"BTN S3",    u"BTN S4", u"Triggers", u"JoyX",     u"JoyY",     u"Sim name",
    u"File name", u"Date",   u"Custom 1", u"Custom 2", u"Custom 3",
};

constexpr QStringView throttleBoxes[] = {
    u"T1",   u"T2",   u"T3",       u"T4",        u"T5",   u"T6",       u"T7",       u"T8",
    u"T9",   u"T10",  u"THR",      u"RDDR",      u"ANT",  u"RNG",      u"MIX",      u"MIY",
    u"LBRK", u"RBRK", u"Sim name", u"File name", u"Date", u"Custom 1", u"Custom 2", u"Custom 3",
};

constexpr QStringView customBoxes[] = {
    u"Text box 1",  u"Text box 2",  u"Text box 3",  u"Text box 4",  u"Text box 5",  u"Text box 6",
    u"Text box 7",  u"Text box 8",  u"Text box 9",  u"Text box 10", u"Text box 11", u"Text box 12",
    u"Text box 13", u"Text box 14", u"Text box 15", u"Text box 16", u"Text box 17", u"Text box 18",
    u"Text box 19", u"Text box 20", u"Text box 21", u"Text box 22", u"Text box 23", u"Text box 24",
    u"Text box 25", u"Text box 26", u"Text box 27", u"Text box 28", u"Text box 29", u"Text box 30",
    u"Text box 31", u"Text box 32", u"Text box 33", u"Text box 34", u"Text box 35", u"Text box 36",
    u"Text box 37", u"Text box 38", u"Text box 39", u"Text box 40",
};

constexpr QStringView joystickPictures[] = { u"" };
constexpr QStringView throttlePictures[] = { u"Throttle.bmp" };
/// The fourth is the pilot's own.
constexpr QStringView customPictures[] = { u"F-16 Block 50.bmp", u"Throttle.bmp", u"Rudders.bmp",
                                           u"" };

constexpr QStringView joystickRecent[] = { u"PreviousJoystickLO" };
constexpr QStringView throttleRecent[] = { u"PreviousThrottleLO" };
constexpr QStringView customRecent[] = { u"PreviousCustomLO" };

/// In the order of SheetKind.
constexpr std::array kinds = {
    SheetKindRow{
        .kind = SheetKind::Joystick,
        .window = u"GraphicsPrint",
        .caption = u"Joystick",
        .boxes = int(std::size(joystickBoxes)),
        .boxNames = joystickBoxes,
        .secondMenuFrom = int(std::size(joystickBoxes)),
        .pictures = joystickPictures,
        .pictureEntry = 17,
        .positions = { u".jfl", u"Joystick layout (*.jfl)|*.jfl" },
        .withText = { u".jft", u"Joystick layout and text (*.jft)|*.jft" },
        .folderFile = u"Joystick layout.jft",
        .folderTexts = u"Cougar Joystick Text",
        .transfer = { u"temp.jft", u"JoystickTemp", u"SingleJoystick" },
        .recent = { u"Joystick layouts", u"NumbPrevJoystickLayouts", joystickRecent, mostRecent },
        .optionsSection = u"Joystick",
        .loadingStatus = u" Loading joystick layout ... please wait ....",
        .coloursStatus = u" Applying colour highlighting ...",
    },
    SheetKindRow{
        .kind = SheetKind::Throttle,
        .window = u"TQSLayout",
        .caption = u"Throttle",
        .boxes = int(std::size(throttleBoxes)),
        .boxNames = throttleBoxes,
        .secondMenuFrom = int(std::size(throttleBoxes)),
        .pictures = throttlePictures,
        .pictureEntry = 24,
        .positions = { u".ttl", u"Throttle layout (*.ttl)|*.ttl" },
        .withText = { u".ttt", u"Throttle Layout with text (*.ttt)|*.ttt" },
        .folderFile = u"Throttle Layout with text.ttt",
        .folderTexts = u"Throttletextbox",
        .transfer = { u"temp.tqt", u"ThrottleTemp", u"SingleThrottle" },
        .recent = { u"Throttle layouts", u"NumbPrevThrottleLayouts", throttleRecent, mostRecent },
        .optionsSection = u"Throttle",
        .loadingStatus = u" Loading throttle layout ... please wait ....",
        .coloursStatus = u" Applying colours ...",
    },
    SheetKindRow{
        .kind = SheetKind::Custom,
        .window = u"CustomLayout",
        .caption = u"Custom",
        .boxes = int(std::size(customBoxes)),
        .boxNames = customBoxes,
        .secondMenuFrom = 20,
        .pictures = customPictures,
        .pictureEntry = noPictureEntry,
        .positions = { u".cll", u"Custom layout (*.cll)|*.cll" },
        .withText = { u".clt", u"Custom layout and text (*.clt)|*.clt" },
        .folderFile = u"Custom layout.clt",
        .folderTexts = u"Custom Text",
        .transfer = {},
        .recent = { u"Custom layouts", u"NumbPrevCustomLayouts", customRecent, mostRecent },
        .optionsSection = u"CLEO",
        .loadingStatus = u" Loading custom layout ... please wait ....",
        .coloursStatus = u" Applying colours ...",
    },
};

} // namespace

const SheetKindRow &sheetKind(SheetKind kind)
{
    return kinds[size_t(kind)];
}

Sheet emptySheet(SheetKind kind)
{
    const SheetKindRow &row = sheetKind(kind);
    Sheet sheet;
    sheet.kind = kind;
    sheet.pictures.resize(row.pictures.size());
    sheet.boxes.resize(size_t(row.boxes), { .text = RichText::plain({}) });
    return sheet;
}

} // namespace zeph
