// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A long text with its looks, cut into chunks of some dozens of whole lines. Chunks never change:
// an edit makes a new list of chunks, in which only those that it touches are new. So two versions
// of a text share what they have in common, and a version costs what it changed.
//
// The looks of a text are few and repeat often. A LookTable numbers them, and the runs of a chunk,
// which cover its text without a gap, hold the numbers. Positions are 0-based characters.

#include "documents/paragraph_source.h"
#include "platform/core/rich_text.h"

#include <memory>
#include <vector>

namespace zeph {

/// Some whole lines with their looks, never changed once made.
struct TextChunk {
    struct Run {
        quint32 length = 0;
        quint32 look = 0; ///< number in a LookTable

        friend bool operator==(const Run &, const Run &) = default;
    };
    using Runs = std::vector<Run>;

    /// Each line with its line end; only the last line of a text has none.
    QString text;
    Runs runs;
    std::vector<ParagraphRun> paragraphs;

    friend bool operator==(const TextChunk &, const TextChunk &) = default;
};

using TextChunks = std::vector<std::shared_ptr<const TextChunk>>;

/// The characters [from, to).
struct TextStretch {
    qsizetype from = 0;
    qsizetype to = 0;

    friend bool operator==(const TextStretch &, const TextStretch &) = default;
};

/// Replaces a stretch by a text, whose looks the runs give.
struct TextEdit {
    qsizetype from = 0;
    qsizetype length = 0;
    QString text;
    TextChunk::Runs runs;
};

/// Numbers for the few looks that a document has. A look whose font is the plain text's follows
/// that font when it changes, and so does one that is as bold as plain text: a state that was kept
/// under another font comes back in today's.
class LookTable
{
public:
    /// The number of a look as the screen shows it: a colour loses what no screen shows. One and
    /// the same colour has two numbers, since only a colour that the user gave is worth saving.
    quint32 numberOf(const CharFormat &look, bool isColourByHand = false);
    /// The same for runs; neighbours in one look become one.
    TextChunk::Runs runsOf(const LookRuns &looks);
    const CharFormat &look(quint32 number) const { return m_looks[number].shown; }
    bool isColourByHand(quint32 number) const { return m_looks[number].key.isColourByHand; }
    /// Says what of a look the user gave: two looks that differ in nothing else have the same
    /// value.
    quint32 handOf(quint32 number) const { return m_looks[number].hand; }
    /// The font of plain text. True when looks have become others.
    bool setPlain(const CharFormat &plain);

private:
    /// What makes a look one of its own. What follows the plain text's font is empty in the format.
    struct Key {
        CharFormat format;
        bool followsFont = false;
        bool followsBold = false;
        bool isColourByHand = false;

        friend bool operator==(const Key &, const Key &) = default;
        friend size_t qHash(const Key &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.format, key.followsFont, key.followsBold,
                              key.isColourByHand);
        }
    };
    struct Look {
        Key key;
        CharFormat shown;
        quint32 hand = 0;
    };

    Key keyOf(const CharFormat &look, bool isColourByHand) const;
    CharFormat shownBy(const Key &key) const;
    quint32 handValueOf(const Key &key);

    CharFormat m_plain;
    std::vector<Look> m_looks;
    QHash<Key, quint32> m_numbers;
    QHash<Key, quint32> m_handValues;
    QHash<CharFormat, quint32> m_known[2]; ///< by whether the colour is by hand
};

/// Appends a run, or lengthens the last one when that has the same look.
inline void addRun(TextChunk::Runs &runs, const TextChunk::Run &run)
{
    if (!runs.empty() && runs.back().look == run.look) {
        runs.back().length += run.length;
    } else if (run.length > 0) {
        runs.push_back(run);
    }
}

/// Appends paragraphs, or adds them to the last run when that has the same format.
void addParagraphs(std::vector<ParagraphRun> &runs, const ParagraphRun &run);

/// Reads the text and the runs of chunks one after the other, from the start of one of them.
class ChunkReader
{
public:
    explicit ChunkReader(const TextChunks &chunks, size_t chunk = 0);

    /// What is left of the run at the position; its length is 0 at the text's end.
    TextChunk::Run next() const;
    /// Goes on by a number of characters, across runs and chunks.
    void skip(qsizetype length);
    /// Goes on by a number of characters and appends their runs.
    void takeRuns(qsizetype length, TextChunk::Runs &runs);
    /// Does the same, and appends the characters too.
    void take(qsizetype length, QString &text, TextChunk::Runs &runs);

private:
    void enter();

    const TextChunks *m_chunks;
    size_t m_chunk;
    qsizetype m_at = 0; ///< in the chunk's text
    size_t m_run = 0;
    quint32 m_taken = 0; ///< characters read of the run
};

/// Reads runs piece by piece.
class RunReader
{
public:
    explicit RunReader(const TextChunk::Runs &runs) : m_runs(runs) { }

    /// Goes on by a number of characters and appends their runs.
    void take(qsizetype length, TextChunk::Runs &runs);

private:
    const TextChunk::Runs &m_runs;
    size_t m_run = 0;
    quint32 m_taken = 0;
};

/// Compares the looks of two texts of equal length, which start at a position, and appends the
/// stretches in which they differ.
void addOtherLooks(const TextChunk::Runs &one, const TextChunk::Runs &other, qsizetype position,
                   std::vector<TextStretch> &stretches);

/// Characters in the chunks [first, end).
qsizetype sizeOf(const TextChunks &chunks, size_t first, size_t end);
/// The characters [from, to).
QString textOf(const TextChunks &chunks, qsizetype from, qsizetype to);

/// The positions at which a text is cut into chunks, its start and end included. The last chunk may
/// be up to twice as long as the others.
std::vector<qsizetype> chunkBorders(QStringView text, int linesPerChunk);

/// Applies edits. They ascend and do not overlap, and their positions are those before any of them.
/// The new list shares the chunks that no edit touches.
TextChunks edited(const TextChunks &chunks, const std::vector<TextEdit> &edits, int linesPerChunk,
                  const ParagraphSource &paragraphs);

/// Edits, without runs, that make one text of the other: as small as their common start and end
/// allow, and line by line where both have as many lines.
std::vector<TextEdit> differences(QStringView before, QStringView now);

} // namespace zeph
