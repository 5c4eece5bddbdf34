// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A document's present text and earlier ones, with the looks of their characters (font and
// colours).
//
// The toolkit's document has only the text and its paragraphs; the looks are here alone, so that a
// text with a hundred thousand runs costs the toolkit what a plain one costs. A state is a list of
// text chunks (text_chunks.h). Two states share every chunk that is the same in both, so that an
// undo step costs no more than what it changed.
//
// DocumentStates keeps one state, m_known, equal to the document. Changes that are made through it
// alter document and state together. Changes that anybody else makes, a keystroke above all, are
// followed: the toolkit reports roughly where the text changed, follow() compares that part with
// m_known and makes edits of the difference.

#include "documents/text_chunks.h"

#include <QObject>

#include <span>

class QTextDocument;

namespace zeph {

/// Whom colours belong to that take the place of others: the user, whose colours are worth saving;
/// the highlighter; or whoever gave those before.
enum class ColourGivenBy { User, Highlighter, SameAsBefore };

/// One state: a handle, cheap to keep and to copy. Only the DocumentStates that gave it can use it.
class DocumentState
{
public:
    /// Bytes that these states take together; what they share counts once.
    static qsizetype bytesHeld(std::span<const DocumentState> states);
    /// Whether two states of one document hold the same text in the same looks, by the same givers.
    friend bool operator==(const DocumentState &one, const DocumentState &other);

private:
    friend class DocumentStates;

    std::shared_ptr<const TextChunks> m_chunks;
};

/// Holds the looks of a document's characters, and takes and restores states (snapshots) of text
/// and looks. When others change the document's text, it hears of it and gives the new characters
/// the look for typing (lookForTyping). A state costs only the chunks that changed since the one
/// before. The document must outlive this object. Positions are 0-based characters; line ends are
/// '\n'.
class DocumentStates : public QObject
{
    Q_OBJECT
public:
    explicit DocumentStates(QTextDocument &document, int linesPerChunk = 64);

    /// The document as it is.
    DocumentState present();
    RichText presentText() { return richText(present()); }
    /// A stretch of the present text, clamped to it.
    RichText stretch(qsizetype from, qsizetype length);
    /// The looks of a stretch without its text, clamped likewise.
    std::vector<CharRun> looks(qsizetype from, qsizetype length);
    RichText richText(const DocumentState &state) const;
    /// What two states are compared in.
    enum class Same {
        Text,
        UsersLooks, ///< and in what the user gave by hand: bold, italic, underline, fonts other
                    ///< than the plain text's and colours that changeLooks() marked
        AllLooks ///< and in all that the screen shows, whoever gave it
    };
    /// Whether two states are the same. Costs little where they differ in length or share their
    /// chunks.
    bool holdSame(const DocumentState &one, const DocumentState &other,
                  Same what = Same::UsersLooks) const;
    /// A state's text comes in this many pieces of whole lines, for a long text that is read once,
    /// without a copy of the whole.
    size_t pieceCount(const DocumentState &state) const { return state.m_chunks->size(); }
    RichText piece(const DocumentState &state, size_t index) const;

    // Each of the changes of text below is one edit block of the document.

    /// Replaces the whole text; characters that the toolkit's document cannot hold become
    /// replacement characters.
    void setText(const NumberedRichText &text);
    /// For whom a text is changed. changedByUser() tells what the user does.
    enum class By { Program, User };
    /// Replaces a stretch. New lines take the format of the paragraph that they are put into, not
    /// the one that the text says.
    void replace(qsizetype from, qsizetype length, const RichText &text, By by = By::Program);
    /// Replaces several stretches of one length, at ascending places that do not overlap, by the
    /// same text. It looks as if it were typed at the end of each stretch.
    void replaceAll(std::span<const qsizetype> starts, qsizetype length, const QString &text);
    /// Brings text and looks back to what they were; only what differs is touched.
    void restore(const DocumentState &state);
    /// Gives the characters from a position on these looks. The toolkit's document does not change.
    void setLooks(const LookRuns &looks, qsizetype from = 0);
    void setCharacterRuns(const std::vector<CharRun> &runs, qsizetype from = 0);
    /// Calls a function with each look in a stretch, which it may change.
    void changeLooks(qsizetype from, qsizetype length,
                     const std::function<void(CharFormat &)> &change, ColourGivenBy by);

    /// How the next character that is typed at a position will look: as was chosen there, else like
    /// the character before it, or at a line's start like the one after it.
    CharFormat lookForTyping(qsizetype position);
    /// Tells where the user types, and the look that the user has chosen for it, if any.
    void setTyping(qsizetype place, std::optional<CharFormat> look);
    qsizetype typingPlace() const { return m_typingPlace; }
    /// Sets the look of what is typed into an empty text. Text in the font that was plain before
    /// follows it, in kept states too.
    void setPlain(const CharFormat &plain);

    /// Whether the looks fit the document's text; false while the document is being changed.
    bool isUpToDate() const;
    /// Whether this object changes the document right now.
    bool isWriting() const { return m_isWriting; }
    /// The runs of a stretch, which must lie in the text. Call only when isUpToDate().
    TextChunk::Runs runs(qsizetype from, qsizetype length) const;
    /// The look that a run's number means.
    const CharFormat &look(quint32 number) const { return m_looks.look(number); }

Q_SIGNALS:
    /// The document's text or paragraphs have changed, and no other call of this class did it.
    void changedByUser();
    /// The looks in these stretches, which ascend, have changed; their text is the same.
    /// None means the whole text: the plain font is another, and with it what numbers of looks
    /// mean.
    void looksChanged(const std::vector<zeph::TextStretch> &stretches);

private:
    void onContentsChange(int position, int removed, int added);
    void onContentsChanged();
    /// Follows what the toolkit has not reported yet.
    void catchUp();
    /// Takes over what others changed; so many characters at the start and the end are the same.
    void follow(qsizetype sameInFront, qsizetype sameAtEnd);
    void followParagraphs(qsizetype from, qsizetype to);
    quint32 lookOfTyped(const TextEdit &edit);
    quint32 lookAround(qsizetype position);
    void apply(const std::vector<TextEdit> &edits);
    TextEdit editOf(qsizetype from, qsizetype length, const NumberedRichText &text);
    void layRuns(const TextChunk::Runs &runs, qsizetype from);
    void setChunks(TextChunks chunks);
    RichText join(const TextChunks &chunks, size_t first, size_t end) const;
    std::vector<CharRun> charRuns(const TextChunk::Runs &runs) const;

    QTextDocument &m_document;
    int m_linesPerChunk;
    LookTable m_looks;
    DocumentState m_known; ///< the document as it was when last followed
    qsizetype m_size = 0; ///< characters of m_known
    bool m_isWriting = false; ///< this object changes the document, and m_known itself
    bool m_writesForUser = false; ///< what it writes at the moment counts as the user's
    int m_revision = -1; ///< the document's, when m_known was last made equal to it
    CharFormat m_plain;
    qsizetype m_typingPlace = 0;
    std::optional<CharFormat> m_chosenLook;
    mutable size_t m_lastChunk = 0; ///< where runs() begins to search, and its start
    mutable qsizetype m_lastStart = 0;
};

} // namespace zeph
