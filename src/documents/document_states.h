// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a document held at many moments, kept so that states share all that they have in common.

#include "platform/core/rich_text.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <span>
#include <vector>

class QTextDocument;

namespace zeph {

/// Some whole lines with their looks, never changed once made.
struct TextChunk {
    struct Run {
        quint32 length = 0;
        quint32 look = 0; ///< number in the document's table

        friend bool operator==(const Run &, const Run &) = default;
    };

    /// With line ends; only a document's last chunk has none behind its last line.
    QString text;
    std::vector<Run> runs;
    std::vector<ParagraphRun> paragraphs;

    friend bool operator==(const TextChunk &, const TextChunk &) = default;
};

using TextChunks = std::vector<std::shared_ptr<const TextChunk>>;

/// One state: a handle, cheap to keep and to copy. Has a meaning only to the DocumentStates that
/// gave it.
class DocumentState
{
public:
    /// Bytes that states hold together; what they share counts once.
    static qsizetype bytesHeld(std::span<const DocumentState> states);
    /// Whether two states of one document hold the same text in the same looks.
    friend bool operator==(const DocumentState &one, const DocumentState &other);

private:
    friend class DocumentStates;

    std::shared_ptr<const TextChunks> m_chunks;
};

/// Takes states of one document and brings them back. Follows the document's changes, so that a
/// state costs only the chunks that changed since the one before. Outlived by the document.
class DocumentStates
{
public:
    explicit DocumentStates(QTextDocument &document, int linesPerChunk = 64);
    ~DocumentStates();
    DocumentStates(const DocumentStates &) = delete;
    DocumentStates &operator=(const DocumentStates &) = delete;

    /// The document as it stands.
    DocumentState present();
    /// Says how the document reads now, for whoever has just set it so: nothing of it is read. The
    /// value is normal, its paragraphs are the document's, and a text that is new to the states has
    /// a paragraph a line.
    void know(const RichText &text);
    /// Lays looks over the document, whose whole text the runs cover, in one edit block that
    /// touches only what looks otherwise.
    void setLooks(const LookRuns &looks);
    /// The document as it stands, read only where it has changed. Not within an open edit block.
    RichText presentText() { return richText(present()); }
    /// An empty text.
    DocumentState empty(const ParagraphFormat &paragraph = {}) const;
    /// Makes the document stand as it did, text and looks, in one edit block.
    void restore(const DocumentState &state);
    RichText richText(const DocumentState &state) const;
    /// The same text in pieces, one behind the other, each of whole lines: for what passes over a
    /// long text once.
    void readPieces(const DocumentState &state,
                    const std::function<void(const RichText &piece)> &read) const;

private:
    /// Chunks [first, behind) of the known state have changed; the document's stretch [from, to) is
    /// what stands in their place now.
    struct Stale {
        size_t first = 0;
        size_t behind = 0;
        qsizetype from = 0;
        qsizetype to = 0;
    };

    void onContentsChange(int position, int removed, int added);
    void readChanges();
    Stale staleChunks() const;
    void takeNeighbours(Stale &stale) const;
    int lineCountOf(const Stale &stale) const;
    std::vector<qsizetype> cuts(const Stale &stale) const;
    TextChunk read(qsizetype from, qsizetype to, bool last);
    std::vector<qsizetype> cuts(QStringView text) const;
    void settle();
    quint32 numberOf(const CharFormat &look);
    quint32 numberAsRead(const CharFormat &look);
    std::vector<CharRun> charRuns(const std::vector<TextChunk::Run> &runs) const;
    RichText join(const TextChunks &chunks, size_t first, size_t behind) const;

    QTextDocument &m_document;
    int m_linesPerChunk;
    QMetaObject::Connection m_following;
    std::vector<CharFormat> m_looks;
    QHash<CharFormat, quint32> m_numbers;
    QHash<CharFormat, quint32> m_numbersAsRead; ///< of looks as they were set
    DocumentState m_known;
    /// Characters at the document's two ends that are as in the known state.
    qsizetype m_sameInFront = 0;
    qsizetype m_sameBehind = 0;
    bool m_changed = true;
    int m_revision = 0; ///< the toolkit's number of the last change that was told
};

} // namespace zeph
