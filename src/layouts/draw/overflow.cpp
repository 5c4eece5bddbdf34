// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/overflow.h"

#include "layouts/draw/box_text.h"

#include <algorithm>
#include <cmath>

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
    if (box.text.text.isEmpty() || holds(box, box.text, plain)) {
        return box.text;
    }
    RichText least = cappedAt(box.text, leastFitPoints, plain);
    if (!holds(box, least, plain)) {
        return least;
    }
    // From the next half point below the largest character down.
    double points = std::ceil(largestSize(box.text, plain) / fitStepPoints - 1) * fitStepPoints;
    for (; points > leastFitPoints; points -= fitStepPoints) {
        RichText smaller = cappedAt(box.text, points, plain);
        if (holds(box, smaller, plain)) {
            return smaller;
        }
    }
    return least;
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
