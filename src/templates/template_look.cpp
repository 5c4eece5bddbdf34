// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_look.h"

namespace zeph {

namespace {

/// Forgets a value that another one contradicts.
template <class T> void keepIfSame(std::optional<T> &common, const std::optional<T> &other)
{
    if (common != other) {
        common.reset();
    }
}

} // namespace

CommonLook commonLook(const CharFormat &format, const ParagraphFormat &paragraph)
{
    return { .family = format.family,
             .pointSize = format.pointSize,
             .colour = format.colour,
             .bold = format.bold,
             .italic = format.italic,
             .underline = format.underline,
             .bullets = paragraph.bullet,
             .alignment = paragraph.alignment };
}

CommonLook commonLook(const RichText &selection)
{
    const ParagraphFormat paragraph =
        selection.paragraphs.empty() ? ParagraphFormat() : selection.paragraphs.front().format;
    CommonLook common = commonLook(selection.formatAt(0), paragraph);
    for (const CharRun &run : selection.characters) {
        keepIfSame(common.family, std::optional(run.format.family));
        keepIfSame(common.pointSize, std::optional(run.format.pointSize));
        keepIfSame(common.colour, run.format.colour);
        common.bold &= run.format.bold;
        common.italic &= run.format.italic;
        common.underline &= run.format.underline;
    }
    for (const ParagraphRun &run : selection.paragraphs) {
        common.bullets &= run.format.bullet;
        keepIfSame(common.alignment, std::optional(run.format.alignment));
    }
    return common;
}

} // namespace zeph
