// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Numbers as the files write them: twips, colours, rounding, numbers at the start of a text.

#include "platform/core/base.h"

namespace zeph {

/// A colour in the order 0x00BBGGRR, the form in which every file stores colours.
using ColorRef = quint32;

constexpr int twipsPerPoint = 20;

/// Twips to device-independent pixels at 96 per inch (15 twips a pixel), halves to even.
int pixelsFromTwips(double twips);
/// Device-independent pixels at 96 per inch to twips.
int twipsFromPixels(int pixels);

/// The nearest whole number, halves to even: 0.5 gives 0, 1.5 gives 2, -0.5 gives 0.
double roundHalfEven(double value);

/// The number at the start of a text, blanks and tabs skipped: sign, digits, point, exponent with E
/// or D. What follows is ignored; no number at all gives 0.
double leadingNumber(QStringView text);

/// Red, green and blue (0 to 255) as a stored colour.
constexpr ColorRef colorRef(quint32 red, quint32 green, quint32 blue)
{
    return red | green << 8 | blue << 16;
}
constexpr int redOf(ColorRef colour)
{
    return int(colour & 0xFF);
}
constexpr int greenOf(ColorRef colour)
{
    return int(colour >> 8 & 0xFF);
}
constexpr int blueOf(ColorRef colour)
{
    return int(colour >> 16 & 0xFF);
}

/// A colour as a settings file holds it: the decimal number, cut at the first NUL, 24 bits kept.
/// No value when the text is no whole number of 32 bits.
std::optional<ColorRef> colorRefFromText(QStringView text);
QString textFromColorRef(ColorRef colour);

} // namespace zeph
