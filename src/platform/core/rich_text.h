// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Text with its looks as a value: what hidden buffers and coloured copies hold.

#include "platform/core/base.h"
#include "platform/core/units.h"

#include <vector>

namespace zeph {

/// How characters look. An empty family, a size of 0 and no colour mean "as the control has it".
struct CharFormat {
    QString family;
    double pointSize = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::optional<ColorRef> colour;

    friend bool operator==(const CharFormat &, const CharFormat &) = default;
};

enum class ParagraphAlignment { Left, Centre, Right };

struct ParagraphFormat {
    int leftIndentTwips = 0;
    ParagraphAlignment alignment = ParagraphAlignment::Left;
    bool bullet = false;

    friend bool operator==(const ParagraphFormat &, const ParagraphFormat &) = default;
};

/// A stretch of characters (0-based, in UTF-16 units) of one format.
struct CharRun {
    qsizetype length = 0;
    CharFormat format;

    friend bool operator==(const CharRun &, const CharRun &) = default;
};

/// A stretch of paragraphs of one format; a paragraph ends at each '\n'.
struct ParagraphRun {
    qsizetype count = 0;
    ParagraphFormat format;

    friend bool operator==(const ParagraphRun &, const ParagraphRun &) = default;
};

/// A text with its runs. The runs follow each other from the start and, in a normal value, cover
/// the whole text and all its paragraphs, with no two equal neighbours and no empty run. The line
/// end is '\n'.
struct RichText {
    QString text;
    std::vector<CharRun> characters;
    std::vector<ParagraphRun> paragraphs;

    static RichText plain(QString text, const CharFormat &format = {},
                          const ParagraphFormat &paragraph = {});

    qsizetype paragraphCount() const { return text.count(u'\n') + 1; }
    CharFormat formatAt(qsizetype position) const;
    /// The stretch [from, from + length), clamped to the text.
    RichText mid(qsizetype from, qsizetype length) const;
    void append(const RichText &other);
    /// Changes the formats of a stretch through a function.
    template <class Change> void change(qsizetype from, qsizetype length, Change change);
    /// Merges equal neighbours, drops empty runs, covers what is uncovered with default formats.
    void normalise();

    friend bool operator==(const RichText &, const RichText &) = default;

private:
    /// Makes run borders at these positions and gives the indices of the runs between them.
    std::pair<size_t, size_t> split(qsizetype from, qsizetype to);
};

template <class Change> void RichText::change(qsizetype from, qsizetype length, Change change)
{
    const auto [first, last] = split(from, from + length);
    for (size_t i = first; i < last; ++i) {
        change(characters[i].format);
    }
    normalise();
}

} // namespace zeph
