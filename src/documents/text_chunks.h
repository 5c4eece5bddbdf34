// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A long text with its looks, cut into chunks of whole lines, so that two versions of it share what
// they have in common. Positions are 0-based characters.

#include "platform/core/rich_text.h"

#include <functional>
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

    /// With line ends; only a text's last chunk has none at the end of its last line.
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

/// A stretch that gives way to other characters, whose looks the runs cover.
struct TextEdit {
    qsizetype from = 0;
    qsizetype length = 0;
    QString text;
    TextChunk::Runs runs;
};

/// Numbers for the few looks that a document has.
class LookTable
{
public:
    /// The number of a look as the screen shows it: a colour loses what no screen shows.
    quint32 numberOf(const CharFormat &look);
    const CharFormat &look(quint32 number) const { return m_looks[number]; }

private:
    std::vector<CharFormat> m_looks;
    QHash<CharFormat, quint32> m_numbers;
};

/// Adds a run, to the last one where it goes on in the same look.
void addRun(TextChunk::Runs &runs, const TextChunk::Run &run);
/// Adds paragraphs, to the last ones where they have the same format.
void addParagraphs(std::vector<ParagraphRun> &runs, const ParagraphRun &run);

/// Hands out the text and the runs of chunks from the start of one of them on.
class ChunkReader
{
public:
    explicit ChunkReader(const TextChunks &chunks, size_t chunk = 0);

    /// What is left of the run at the position; its length is 0 at the text's end.
    TextChunk::Run next() const;
    /// Goes on by so many characters, which may be many runs.
    void skip(qsizetype length);
    /// Adds the runs of the next so many characters to others.
    void takeRuns(qsizetype length, TextChunk::Runs &runs);
    /// The same with the characters themselves.
    void take(qsizetype length, QString &text, TextChunk::Runs &runs);

private:
    void enter();

    const TextChunks *m_chunks;
    size_t m_chunk;
    qsizetype m_at = 0; ///< in the chunk's text
    size_t m_run = 0;
    quint32 m_taken = 0; ///< of the run
};

/// Hands out runs piece by piece.
class RunReader
{
public:
    explicit RunReader(const TextChunk::Runs &runs) : m_runs(runs) { }

    /// Adds the runs of the next so many characters to others.
    void take(qsizetype length, TextChunk::Runs &runs);

private:
    const TextChunk::Runs &m_runs;
    size_t m_run = 0;
    quint32 m_taken = 0;
};

/// Adds the stretches in which characters look otherwise in one text than in the other, which are
/// as long as each other and start at a position.
void addOtherLooks(const TextChunk::Runs &one, const TextChunk::Runs &other, qsizetype position,
                   std::vector<TextStretch> &stretches);

qsizetype sizeOf(const TextChunks &chunks, size_t first, size_t end);
QString textOf(const TextChunks &chunks, qsizetype from, qsizetype to);

/// The positions that part a text into chunks, its start and end among them.
std::vector<qsizetype> chunkBorders(QStringView text, int linesPerChunk);

/// Gives the paragraphs of a chunk's text, which starts at a position of the edited text.
using ParagraphReader = std::function<std::vector<ParagraphRun>(qsizetype from, QStringView text,
                                                                bool isLast)>;
/// The chunks after edits, which are ascending and do not overlap; their positions are those before
/// any of them. What no edit touches is shared.
TextChunks edited(const TextChunks &chunks, const std::vector<TextEdit> &edits, int linesPerChunk,
                  const ParagraphReader &paragraphs);

/// Edits, without runs, that make one text the other: as small as their common start and end allow,
/// line by line where both have as many lines.
std::vector<TextEdit> differences(QStringView before, QStringView now);

} // namespace zeph
