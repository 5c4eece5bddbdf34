// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The rules of the modes, apart from the tools: pictures, sentences, and what a click changes.

#include "platform/core/base.h"

namespace zeph {

/// The picture of panel 2.
enum class ModePicture { SelectorOff = 1, Windows = 2, Programmed = 3, Unknown = 4 };

/// The picture of the buttons' last reported mode. The axes do not count.
ModePicture pictureOf(qint16 buttons);

/// The last report as a sentence: first the axes, then the buttons.
QString reportInWords(qint16 axes, qint16 buttons);
/// The sentence in its place when no controller answers. The number is 0-based, in the text it is
/// 1-based.
QString noJoystickInWords(int joyIdNumber);

/// What a left click on the picture changes.
enum class ModeChange { None, ToWindows, ToProgrammed };

/// The change that a left click makes. With the selector off there is none, unless the last change
/// of the buttons was reported as failed.
ModeChange changeAtClick(ModePicture picture, qint16 buttons);

/// The detector's interval in milliseconds. None from 33 seconds on, which 16 bits cannot hold. A
/// setting below 1 second gives the default, since the detector must neither stop nor race.
std::optional<qint16> detectorInterval(int seconds);

} // namespace zeph
