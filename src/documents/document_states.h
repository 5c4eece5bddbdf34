// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a document holds now and held before, kept so that states share all that they have in
// common. The toolkit's document has the text and the paragraphs; the looks of characters are here
// alone. So a text with a hundred thousand runs costs the toolkit what a plain one costs.

#include "documents/text_chunks.h"

#include <QObject>

#include <span>

class QTextDocument;

namespace zeph {

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

/// Holds the looks of a document, takes its states and brings them back. Follows what others do to
/// the document's text; characters that they put in take the look for typing. A state costs only
/// the chunks that changed since the one before. The document lives longer. Positions are 0-based
/// characters; line ends are '\n'.
class DocumentStates : public QObject
{
    Q_OBJECT
public:
    explicit DocumentStates(QTextDocument &document, int linesPerChunk = 64);

    /// The document as it is.
    DocumentState present();
    RichText presentText() { return richText(present()); }
    /// A stretch of it, clamped to the text.
    RichText stretch(qsizetype from, qsizetype length);
    /// The looks of a stretch alone.
    std::vector<CharRun> looks(qsizetype from, qsizetype length);
    /// An empty text.
    DocumentState empty(const ParagraphFormat &paragraph = {}) const;
    RichText richText(const DocumentState &state) const;
    /// The same text in pieces one after the other, each of whole lines: for what passes over a
    /// long text once.
    void readPieces(const DocumentState &state,
                    const std::function<void(const RichText &piece)> &read) const;

    /// Each of these is one edit block of the document.
    ///
    /// Puts another text in the place of the whole one; characters that no document can hold become
    /// replacement characters.
    void setText(const RichText &text);
    /// Puts characters in the place of a stretch; their paragraphs go on as the one they are put
    /// into.
    void replace(qsizetype from, qsizetype length, const RichText &text);
    /// The same with stretches of one length, at ascending places that do not overlap; each text
    /// looks as if it were typed at the end of the stretch that it replaces.
    void replaceAll(std::span<const qsizetype> starts, qsizetype length, const QString &text);
    /// Makes the document what it was, text and looks; only what differs is touched.
    void restore(const DocumentState &state);
    /// Lays looks over the characters from a position on. The document itself does not change.
    void setLooks(const LookRuns &looks, qsizetype from = 0);
    void setCharacterRuns(const std::vector<CharRun> &runs, qsizetype from = 0);

    /// How the next character that is typed at a position looks: as was chosen there, else like the
    /// one before it, or at a line's start like the one after it.
    CharFormat lookForTyping(qsizetype position);
    /// Where the user types, and the look chosen there, if one is.
    void setTyping(qsizetype place, std::optional<CharFormat> look);
    qsizetype typingPlace() const { return m_typingPlace; }
    /// The look of what is typed into an empty text.
    void setPlain(const CharFormat &plain) { m_plain = plain; }

    /// False while the document is being changed: its lines cannot be told looks then.
    bool isUpToDate() const;
    /// The runs of a stretch of an up-to-date document, and the look that a run's number means.
    TextChunk::Runs runs(qsizetype from, qsizetype length) const;
    const CharFormat &look(quint32 number) const { return m_looks.look(number); }

Q_SIGNALS:
    /// Characters look otherwise than before, in ascending stretches; their text is the same.
    void looksChanged(const std::vector<zeph::TextStretch> &stretches);

private:
    void onContentsChange(int position, int removed, int added);
    void catchUp();
    void follow(qsizetype sameInFront, qsizetype sameAtEnd);
    void followParagraphs(qsizetype from, qsizetype to);
    quint32 lookOfTyped(const TextEdit &edit);
    CharFormat lookAround(qsizetype position) const;
    void apply(const std::vector<TextEdit> &edits);
    TextEdit editOf(qsizetype from, qsizetype length, const RichText &text);
    void layRuns(const TextChunk::Runs &runs, qsizetype from);
    void setChunks(TextChunks chunks);
    qsizetype documentSize() const;
    ParagraphReader paragraphReader() const;
    RichText join(const TextChunks &chunks, size_t first, size_t end) const;
    std::vector<CharRun> charRuns(const TextChunk::Runs &runs) const;

    QTextDocument &m_document;
    int m_linesPerChunk;
    LookTable m_looks;
    DocumentState m_known;
    qsizetype m_size = 0; ///< characters of the known state
    bool m_isWriting = false; ///< changes come from here, and the known state has them
    int m_revision = -1; ///< the toolkit's number of the last change that was told
    CharFormat m_plain;
    qsizetype m_typingPlace = 0;
    std::optional<CharFormat> m_chosenLook;
    mutable size_t m_lastChunk = 0; ///< where runs() found its stretch, and its start
    mutable qsizetype m_lastStart = 0;
};

} // namespace zeph
