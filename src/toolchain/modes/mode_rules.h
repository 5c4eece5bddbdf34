// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the modes mean, as values: pictures, sentences, and what a click asks for.

#include "platform/core/base.h"

namespace zeph {

/// The picture of panel 2.
enum class ModePicture { SelectorOff = 1, Windows = 2, Programmed = 3, Unknown = 4 };

/// The picture of the last reported mode of the buttons. The axes have no say in it.
ModePicture pictureOf(qint16 buttons);

/// The last report in words: one half for the axes, one for the buttons.
QString reportInWords(qint16 axes, qint16 buttons);
/// What stands in its place when no controller answers; the number is 0-based, the text counts
/// from 1.
QString noJoystickInWords(int joyIdNumber);

/// What a left click on the picture asks of the Cougar.
enum class ModeChange { None, ToWindows, ToProgrammed };

/// With the selector off a click only shows the mode, unless the last change of the buttons is
/// reported to have failed.
ModeChange changeAtClick(ModePicture picture, qint16 buttons);

/// The detector's interval in milliseconds, counted in 16 bits as ever: nothing from 33 seconds
/// on. Below a second the default holds, since the detector must neither stop nor race.
std::optional<qint16> detectorInterval(qint16 seconds);

} // namespace zeph
