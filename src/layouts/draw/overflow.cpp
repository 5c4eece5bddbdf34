// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/overflow.h"

#include "layouts/draw/box_text.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zeph {

namespace {

double sizeOf(const CharFormat &format, const CharFormat &plain)
{
    return format.pointSize > 0 ? format.pointSize : plain.pointSize;
}

double largestSize(const RichText &text, const CharFormat &plain)
{
    double largest = 0;
    for (const CharRun &run : text.characters) {
        largest = std::max(largest, sizeOf(run.format, plain));
    }
    return largest;
}

RichText cappedAt(RichText text, double points, const CharFormat &plain)
{
    for (CharRun &run : text.characters) {
        run.format.pointSize = std::min(sizeOf(run.format, plain), points);
    }
    text.normalise();
    return text;
}

bool holds(const LayoutTextBox &box, const RichText &text, const CharFormat &plain)
{
    return BoxText(text, plain, box.Width).fits(box.Height);
}

/// The largest size at which a box holds a text, or the least one when none is small enough; none
/// for a text that fits as it is.
std::optional<double> fittingPoints(const LayoutTextBox &box, const RichText &text,
                                    const CharFormat &plain)
{
    if (text.text.isEmpty() || holds(box, text, plain)) {
        return std::nullopt;
    }
    if (!holds(box, cappedAt(text, leastFitPoints, plain), plain)) {
        return leastFitPoints;
    }
    // From the next half point below the largest character down.
    double points = std::ceil(largestSize(text, plain) / fitStepPoints - 1) * fitStepPoints;
    while (points > leastFitPoints && !holds(box, cappedAt(text, points, plain), plain)) {
        points -= fitStepPoints;
    }
    return std::max(points, leastFitPoints);
}

} // namespace

std::vector<int> overflowingBoxes(const Sheet &sheet, const CharFormat &plain)
{
    std::vector<int> boxes;
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        const LayoutTextBox &box = sheet.boxes[i];
        if (box.Visible && !box.text.text.isEmpty() && !holds(box, box.text, plain)) {
            boxes.push_back(int(i));
        }
    }
    return boxes;
}

RichText fittedText(const LayoutTextBox &box, const CharFormat &plain)
{
    return fittedText(box, box.text, plain);
}

RichText fittedText(const LayoutTextBox &box, const RichText &shown, const CharFormat &plain)
{
    const auto points = fittingPoints(box, shown, plain);
    return points ? cappedAt(box.text, *points, plain) : box.text;
}

void fitAllTexts(Sheet &sheet, const CharFormat &plain)
{
    for (LayoutTextBox &box : sheet.boxes) {
        if (box.Visible) {
            box.text = fittedText(box, plain);
        }
    }
}

} // namespace zeph
