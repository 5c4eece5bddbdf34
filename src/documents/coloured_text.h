// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document_states.h"
#include "platform/core/rich_text.h"

#include <QTextCursor>
#include <QTextDocument>

namespace zeph {

/// The small margin that every document has.
constexpr ParagraphFormat documentParagraph = { .leftIndentTwips = 20 };

/// Remembers a place of the caret, and whether the caret has been elsewhere since.
class CaretMark
{
public:
    void set(int place)
    {
        m_place = place;
        m_isLeft = false;
    }
    void leave() { m_isLeft = true; }
    void follow(int caret) { m_isLeft = m_isLeft || caret != m_place; }
    bool isLeft() const { return m_isLeft; }

private:
    int m_place = 0;
    bool m_isLeft = false;
};

/// A text of lines with its looks and the user's caret, with or without a view. Owns the toolkit's
/// text; positions are 0-based characters.
///
/// The operations of this class change text and looks without counting as edits. What a view, or
/// any other code, does to content() is told by changed(), unless a Quiet exists.
class ColouredText : public QObject
{
    Q_OBJECT
public:
    explicit ColouredText(QObject *parent = nullptr);

    QTextDocument &content() { return m_content; }
    const QTextDocument &content() const { return m_content; }
    DocumentStates &states() { return m_states; }

    /// The text, every character as it is (the toolkit's own call changes some blanks).
    QString text() const;
    RichText richText() const;
    /// A stretch of the text, clamped to it.
    RichText richText(int from, int length) const;
    /// Number of characters.
    int length() const;
    void setText(const QString &text);
    void setRichText(const NumberedRichText &text);
    /// Replaces a stretch; the new text looks as if it were typed at its end. Caret and selection
    /// move along.
    void replace(int start, int length, const QString &text);
    /// Replaces several stretches of one length, at ascending places that do not overlap, as one
    /// edit.
    void replaceAll(std::span<const qsizetype> starts, qsizetype length, const QString &text);
    /// Replaces the whole text, in the plain look.
    void replaceWhole(const QString &text);
    /// Replaces the selection by rich text, in the document's own margins; the caret goes to its
    /// end, and typing goes on in the plain look.
    void insert(const RichText &text);
    void removeSelection();

    /// Font and colour of plain text, with which typing into an empty text begins.
    const CharFormat &plain() const { return m_plain; }
    void setPlain(const CharFormat &plain);
    /// Gives the characters from a position on these looks.
    void setCharacterRuns(const std::vector<CharRun> &runs, int from = 0);
    /// Gives all characters these looks.
    void setLooks(const LookRuns &looks);
    /// Calls a function with each look in a stretch, which it may change.
    void changeLooks(int from, int length, const std::function<void(CharFormat &)> &change,
                     ColourGivenBy by = ColourGivenBy::User);
    /// Gives all lines the document's margin.
    void setMargins();
    /// How the next typed character will look.
    CharFormat typingLook() const;
    void setTypingLook(const CharFormat &look);

    /// Caret and selection, which views follow. A caret without a selection is at selStart().
    const QTextCursor &cursor() const { return m_cursor; }
    int selStart() const { return m_cursor.selectionStart(); }
    int selLength() const { return m_cursor.selectionEnd() - m_cursor.selectionStart(); }
    /// 1-based line of the caret.
    int caretLine() const { return m_cursor.blockNumber() + 1; }
    void select(int start, int length) { setCaret(start, start + length); }
    /// Selects with a direction: the caret is the end of the selection that moves, the anchor the
    /// other.
    void setCaret(int anchor, int caret);
    /// Takes over the caret that the user has moved in a view.
    void follow(const QTextCursor &cursor);
    CaretMark &caretMark() { return m_caretMark; }

    /// A locked text takes no changes from the user.
    bool isLocked() const { return m_locked; }
    void setLocked(bool locked);

    /// While one exists, changes of content() do not emit changed(): the program makes them, not
    /// the user.
    class Quiet
    {
    public:
        explicit Quiet(ColouredText &text) : m_text(text) { ++m_text.m_quiet; }
        ~Quiet() { --m_text.m_quiet; }
        Quiet(const Quiet &) = delete;
        Quiet &operator=(const Quiet &) = delete;

    private:
        ColouredText &m_text;
    };

Q_SIGNALS:
    /// The user has changed the text.
    void changed();
    /// A key that may change the text comes to a view: Qt::Key value.
    void keyComing(int key);
    void lockedChanged(bool locked);
    /// The caret has moved, by the user or by a call.
    void caretMoved();
    /// There is a selection now where there was none, or the other way round.
    void selectionChanged(bool hasSelection);
    /// A call, not a view, has set the caret: views have to show it there.
    void caretSet();

private:
    /// Anchor and caret.
    struct CaretPlace {
        explicit CaretPlace(const QTextCursor &cursor)
            : anchor(cursor.anchor()), caret(cursor.position())
        {
        }
        bool operator==(const CaretPlace &) const = default;
        int anchor;
        int caret;
    };
    /// Tells that the caret moved when it was elsewhere before a change.
    void followFrom(const CaretPlace &before);

    bool m_locked = false;
    bool m_hadSelection = false;
    CaretMark m_caretMark;
    int m_quiet = 0; ///< number of Quiets that exist
    CharFormat m_plain;
    QTextDocument m_content;
    mutable DocumentStates m_states; ///< catches up with the text when it is asked
    QTextCursor m_cursor;
};

} // namespace zeph
