// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document_states.h"
#include "documents/undo_history.h"
#include "language/file_kinds.h"
#include "platform/core/rich_text.h"

#include <QTextCursor>
#include <QTextDocument>

namespace zeph {

/// The small margin that every document has.
constexpr ParagraphFormat documentParagraph = { .leftIndentTwips = 20 };

/// One of the edited texts, with or without a view of it. Owns the text, its looks, its file's path
/// and name, whether it is saved, where the user is in it, and what can be undone. Positions are
/// 0-based characters.
///
/// What a view does to the text counts as typing: the document becomes modified and its history
/// takes it in. The text operations here change the text and count as nothing; a Change around them
/// makes them one step to undo.
class Document : public QObject
{
    Q_OBJECT
public:
    enum State : qint16 { Empty = -1, Saved = 0, Modified = 1 };

    /// The greatest number of steps to undo is read whenever one is added, and outlives the
    /// document.
    explicit Document(DocumentKind kind, const qint16 &undoMax, QObject *parent = nullptr);
    /// A document that nobody edits: it has no steps to undo.
    explicit Document(DocumentKind kind = DocumentKind::Joystick);
    ~Document() override;

    DocumentKind kind() const { return m_kind; }
    const QString &path() const { return m_path; }
    /// The path's last part.
    const QString &name() const { return m_name; }
    QString caption() const { return tabCaption(m_name); }
    void rename(const QString &path);

    qint16 state() const { return m_state; }
    void setState(qint16 state);
    bool isModified() const { return m_state == Modified; }
    /// The text came back after a crash, and the user has not saved it yet: until then nothing but
    /// the user changes the file.
    bool isRecovered() const { return m_recovered; }
    void setRecovered(bool recovered) { m_recovered = recovered; }
    /// A locked text takes no changes from the user.
    bool isLocked() const { return m_locked; }
    void setLocked(bool locked);

    QTextDocument &content() { return m_content; }
    const QTextDocument &content() const { return m_content; }
    DocumentStates &states() { return m_states; }
    UndoHistory &history() { return m_history; }

    /// The text, every character as it is (the toolkit's own call changes some blanks).
    QString text() const;
    RichText richText() const;
    /// A stretch of it.
    RichText richText(int from, int length) const;
    /// Number of characters.
    int length() const;
    void setText(const QString &text);
    void setRichText(const RichText &text);
    /// Replaces a stretch, in the format that stands there; caret and selection move along.
    void replace(int start, int length, const QString &text);
    /// Replaces stretches of one length, at ascending places that do not overlap, as one edit.
    void replaceAll(std::span<const qsizetype> starts, qsizetype length, const QString &text);
    /// Puts a text in the place of the whole one, in the plain look.
    void replaceWhole(const QString &text);
    /// Puts rich text in the selection's place, in the document's own margins; the caret goes to
    /// its end, and typing goes on in the plain look.
    void insert(RichText text);
    void removeSelection();

    /// Font and colour of plain text, which typing starts with.
    const CharFormat &plain() const { return m_plain; }
    void setPlain(const CharFormat &plain);
    /// Lays looks over the characters from a position on.
    void setCharacterRuns(const std::vector<CharRun> &runs, int from = 0);
    /// The same over the whole text.
    void setLooks(const LookRuns &looks);
    /// Changes the looks of a stretch through a function.
    void changeLooks(int from, int length, const std::function<void(CharFormat &)> &change);
    /// Gives all lines the document's margin.
    void setMargins();
    /// How the next typed character will look.
    CharFormat typingLook() const;
    void setTypingLook(const CharFormat &look);

    /// Caret and selection, which views follow. A caret without a selection stands at selStart().
    const QTextCursor &cursor() const { return m_cursor; }
    int selStart() const { return m_cursor.selectionStart(); }
    int selLength() const { return m_cursor.selectionEnd() - m_cursor.selectionStart(); }
    /// 1-based line of the caret.
    int caretLine() const { return m_cursor.blockNumber() + 1; }
    void select(int start, int length) { setCaret(start, start + length); }
    /// The same with a direction: the caret is at the selection's end that moves.
    void setCaret(int anchor, int caret);
    /// The user has moved the caret in a view.
    void follow(const QTextCursor &cursor);

    /// While one lives, changes of content() count as nothing.
    class Quiet
    {
    public:
        explicit Quiet(Document &document) : m_document(document) { ++m_document.m_quiet; }
        ~Quiet() { --m_document.m_quiet; }
        Quiet(const Quiet &) = delete;
        Quiet &operator=(const Quiet &) = delete;

    private:
        Document &m_document;
    };

Q_SIGNALS:
    /// The user has typed, or a Change has been committed. State and history know it.
    void edited();
    /// The number of steps that can be undone or redone has changed.
    void stepsChanged();
    void stateChanged();
    void renamed();
    void lockedChanged(bool locked);
    /// The caret has moved, by the user or by a call.
    void caretMoved();
    /// There is a selection now where there was none, or the other way round.
    void selectionChanged(bool hasSelection);
    /// A call has moved the caret: views show it where it is now.
    void caretSet();
    void typingLookSet(const CharFormat &look);

private:
    friend class Change;

    void onContentsChanged();
    /// A change took place that counts.
    void countEdit();
    void tellCaret();

    DocumentKind m_kind = DocumentKind::Joystick;
    QString m_path;
    QString m_name;
    qint16 m_state = Empty;
    bool m_recovered = false;
    bool m_locked = false;
    bool m_hadSelection = false;
    int m_quiet = 0;
    CharFormat m_plain;
    QTextDocument m_content;
    DocumentStates m_states;
    QTextCursor m_cursor;
    UndoHistory m_history;
};

} // namespace zeph
