// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/pasted_text.h"

#include "platform/richtext/rich_text_mime.h"

namespace zeph {

RichText pastedSimpleText(const QMimeData &data, const CharFormat &plain)
{
    return RichText::plain(plainTextOf(data), plain);
}

RichText pastedText(const QMimeData &data, const CharFormat &plain)
{
    std::optional<RichText> rich = richTextOf(data);
    if (!rich || rich->text.isEmpty()) {
        return pastedSimpleText(data, plain);
    }
    for (CharRun &run : rich->characters) {
        run.format.family = plain.family;
        run.format.pointSize = plain.pointSize;
        run.format.bold = plain.bold;
        if (!run.format.colour) {
            run.format.colour = plain.colour;
        }
    }
    // Margins, bullets and alignments of other programs have no place in a file of lines.
    rich->paragraphs.clear();
    rich->normalise();
    return *rich;
}

} // namespace zeph
