// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Text with its looks as a value: what hidden buffers and coloured copies hold.

#include "platform/core/base.h"
#include "platform/core/units.h"

#include <QHash>

#include <algorithm>
#include <functional>
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
    bool strike = false;
    QString link = {}; ///< where a hyperlink leads; empty for all other characters

    friend bool operator==(const CharFormat &, const CharFormat &) = default;
    friend size_t qHash(const CharFormat &format, size_t seed = 0)
    {
        return qHashMulti(seed, format.family, format.pointSize, format.bold, format.italic,
                          format.underline, format.colour.has_value(), format.colour.value_or(0),
                          format.strike, format.link);
    }
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

/// A stretch of characters in one of a few looks.
struct LookRun {
    quint32 length = 0;
    quint32 format = 0; ///< index of the look
};

/// Characters' looks for texts with many runs and few looks.
struct LookRuns {
    LookRuns() = default;
    /// Costs a look-up a run. A length below 0 counts as 0.
    explicit LookRuns(const std::vector<CharRun> &characters);

    std::vector<CharFormat> looks;
    std::vector<LookRun> runs;
};

/// Gives looks numbers from 0 on, equal ones the same.
class LookNumbers
{
public:
    quint32 numberOf(const CharFormat &look);
    const CharFormat &look(quint32 number) const { return m_looks[number]; }
    /// All looks in the order of their numbers; the object is empty afterwards.
    std::vector<CharFormat> take();

private:
    std::vector<CharFormat> m_looks;
    QHash<CharFormat, quint32> m_numbers;
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
    /// The format of a character; beyond the end of the text, that of the last one.
    CharFormat formatAt(qsizetype position) const;
    /// The stretch [from, from + length), clamped to the text.
    RichText mid(qsizetype from, qsizetype length) const;
    /// Adds a text at the end, at the cost of the other's length. Where two paragraphs become
    /// one, this one's format stays, unless it has no characters yet. Both values are normal.
    void append(const RichText &other);
    /// Changes the formats of a stretch through a function. A call costs the number of runs: a
    /// thousand changes and more go through RichTextChanges.
    template <class Change> void change(qsizetype from, qsizetype length, Change change);
    /// Merges equal neighbours, drops empty runs, covers what is uncovered with default formats.
    void normalise();

    friend bool operator==(const RichText &, const RichText &) = default;

private:
    /// Makes run borders at a stretch's ends and gives the indices of the runs between them.
    std::pair<size_t, size_t> split(qsizetype from, qsizetype length);
    /// Merges equal neighbours among the runs [first, last) and the ones beside them.
    void mergeAround(size_t first, size_t last);
};

template <class Change> void RichText::change(qsizetype from, qsizetype length, Change change)
{
    const auto [first, last] = split(from, length);
    for (size_t i = first; i < last; ++i) {
        change(characters[i].format);
    }
    mergeAround(first, last);
}

/// A RichText whose looks are numbered, each look once: a text with many runs in this form takes a
/// tenth of the memory, and what a look means is worked out once a look, not once a run.
struct NumberedRichText {
    NumberedRichText() = default;
    /// Implicit, so that whoever takes this form takes a RichText too.
    NumberedRichText(const RichText &rich)
        : text(rich.text), characters(rich.characters), paragraphs(rich.paragraphs)
    {
    }

    QString text;
    LookRuns characters;
    std::vector<ParagraphRun> paragraphs;

    RichText rich() const;
};

/// Calls a function with one piece of a text after the other, each of so many characters, until it
/// gives false. Where a paragraph is cut, both parts have its format. Costs the text's length.
void forEachPiece(const RichText &text, qsizetype size,
                  const std::function<bool(const RichText &)> &function);

/// Any number of format changes on one text, each at the cost of the characters that it touches,
/// however many runs there are.
class RichTextChanges
{
public:
    explicit RichTextChanges(RichText text);

    template <class Change> void change(qsizetype from, qsizetype length, Change change);
    /// The text with its new formats; the object is empty afterwards.
    RichText take();

private:
    RichText m_text;
    LookNumbers m_looks;
    std::vector<quint32> m_lookOf; ///< of each character
};

template <class Change>
void RichTextChanges::change(qsizetype from, qsizetype length, Change change)
{
    const qsizetype size = qsizetype(m_lookOf.size());
    from = std::clamp(from, qsizetype(0), size);
    const qsizetype end = from + std::clamp(length, qsizetype(0), size - from);
    std::optional<quint32> before;
    quint32 after = 0;
    for (qsizetype i = from; i < end; ++i) {
        quint32 &number = m_lookOf[size_t(i)];
        if (before != number) {
            before = number;
            CharFormat format = m_looks.look(number);
            change(format);
            after = m_looks.numberOf(format);
        }
        number = after;
    }
}

} // namespace zeph
