// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The statements that move the mouse to places of the screen. What goes into them is not checked:
// the window where a pilot types them inserts what was typed.

#include "composer/generators/generators.h"

#include <QSize>

#include <array>

namespace zeph {

/// What ComboScreenRes offers at first.
inline constexpr QStringView screenResolutions[] = {
    u"640,480", u"800,600", u"1024,768", u"1152,864", u"1280,960", u"1280,1024", u"1600,1200",
};
/// A picture's size as ComboScreenRes has it: "1024,768". Empty for an empty size.
QString resolutionText(const QSize &picture);

/// ComboSteps has the numbers from 1 to this: steps in a quarter of a turn.
constexpr int mostSteps = 10;

/// "USE SCREEN_RESOLUTION (1024,768) " and two line ends, so that an empty line follows.
Generated screenResolution(const QString &resolution);
/// "MOUSEXY (UL, 200, 140) ", of an origin and a place counted from it: "200, 140".
Generated mouseXY(const QString &origin, const QString &place);
/// "MOUSEMOVE (10, -20) ", of the way to the right and down: "10, -20".
Generated mouseMove(const QString &way);

/// What a rotation is told by, in the order of its statement and of Text_finalValues.
enum RotateValue {
    RotateOrigin,
    RotateCentre, ///< of the rotary switch, counted from the origin: "320, 240"
    RotateRadius,
    RotateStart, ///< an angle in degrees, counter-clockwise from the right
    RotateMacro, ///< runs during the rotation
    RotateDirection, ///< clockwiseWord or counterClockwiseWord
    RotateFinal, ///< an angle as RotateStart
    RotateSteps, ///< in a quarter of a turn
};
constexpr int rotateValueCount = RotateSteps + 1;
using RotateTexts = std::array<QString, size_t(rotateValueCount)>;

inline constexpr QStringView clockwiseWord = u"CW";
inline constexpr QStringView counterClockwiseWord = u"CCW";
inline QString directionWord(bool isClockwise)
{
    return (isClockwise ? clockwiseWord : counterClockwiseWord).toString();
}

/// "MOUSEROTATE (UL, 320, 240, 50, 90, [MOUSE_LB], CW, 180, 2)".
Generated mouseRotate(const RotateTexts &values);

} // namespace zeph
