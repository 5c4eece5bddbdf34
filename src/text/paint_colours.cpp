// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/painter.h"

#include <algorithm>

namespace zeph {

QHash<ColorRef, ColorRef> recolouring(const ColourScheme &before, const ColourScheme &after)
{
    constexpr ColorRef ColourScheme::*classes[] = {
        &ColourScheme::plain, &ColourScheme::btn,           &ColourScheme::slash,
        &ColourScheme::raw,   &ColourScheme::miscellaneous, &ColourScheme::rem,
    };
    QHash<ColorRef, ColorRef> result;
    for (const auto each : classes) {
        const bool isClear = std::ranges::all_of(classes, [&](const auto other) {
            return before.*other != before.*each || after.*other == after.*each;
        });
        if (isClear && before.*each != after.*each) {
            result.insert(before.*each, after.*each);
        }
    }
    return result;
}

LookRuns lookRuns(const std::vector<ColourRun> &runs, const CharFormat &plain)
{
    LookRuns result;
    result.runs.reserve(runs.size());
    for (const ColourRun &run : runs) {
        const auto known =
            std::find_if(result.looks.begin(), result.looks.end(),
                         [&run](const CharFormat &look) { return look.colour == run.colour; });
        const auto number = quint32(known - result.looks.begin());
        if (known == result.looks.end()) {
            result.looks.push_back(plain);
            result.looks.back().colour = run.colour;
        }
        result.runs.push_back({ quint32(run.length), number });
    }
    return result;
}

std::vector<CharRun> characterRuns(const std::vector<ColourRun> &runs, const CharFormat &plain)
{
    std::vector<CharRun> result(runs.size(), { 0, plain });
    for (size_t i = 0; i < runs.size(); ++i) {
        result[i].length = runs[i].length;
        result[i].format.colour = runs[i].colour;
    }
    return result;
}

} // namespace zeph
