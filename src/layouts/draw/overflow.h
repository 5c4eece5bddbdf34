// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Boxes that do not hold their text, and the size at which they would.

#include "layouts/sheet.h"

namespace zeph {

constexpr double leastFitPoints = 5;
constexpr double fitStepPoints = 0.5;

/// The boxes (0-based) that are shown and do not hold their text. Characters without a font have
/// the plain one.
std::vector<int> overflowingBoxes(const Sheet &sheet, const CharFormat &plain);

/// The box's text with no character larger than some size: the largest one, by half points and down
/// to 5, at which the box holds all of it. At 5 points it may still hold too much. A text that fits
/// stays, and so do characters that are smaller than 5 points.
RichText fittedText(const LayoutTextBox &box, const CharFormat &plain);

/// The same for a box that shows another text in place of its own (with the keys of macros, say):
/// its own text, in the size at which the box holds the one that it shows.
RichText fittedText(const LayoutTextBox &box, const RichText &shown, const CharFormat &plain);

/// fittedText() for all boxes that are shown, with their own texts.
void fitAllTexts(Sheet &sheet, const CharFormat &plain);

} // namespace zeph
