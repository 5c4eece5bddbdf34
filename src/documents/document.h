// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/coloured_text.h"
#include "documents/undo_history.h"
#include "language/file_kinds.h"

namespace zeph {

/// One of the edited texts with all that belongs to it: its file's path and name, whether it is
/// saved, and what can be undone.
///
/// What a view does to the text counts as typing, and the history takes it in. The text operations
/// do not count as edits; a Change around them makes them one step to undo. A document is modified
/// while its text, or what the user gave it of looks, differs from what its file held by the last
/// load or save.
class Document : public ColouredText
{
    Q_OBJECT
public:
    enum State : qint16 { Empty = -1, Saved = 0, Modified = 1 };
    /// How the document got another text.
    enum class How {
        Loaded, ///< from its file
        Recovered, ///< after a crash; its file does not hold it
        Fresh, ///< empty, without a file
        Undone, ///< by undo or redo
    };
    /// Whether the user asked for a save.
    enum class Save { Asked, Automatic };

    /// undoMax, the greatest number of steps to undo, is read whenever a step is added. It must
    /// outlive the document.
    explicit Document(DocumentKind kind, const int &undoMax, QObject *parent = nullptr);
    /// A document that nobody edits, without steps to undo.
    explicit Document(DocumentKind kind = DocumentKind::Joystick);
    ~Document() override;

    DocumentKind kind() const { return m_kind; }
    const QString &path() const { return m_path; }
    /// The path's last part.
    const QString &name() const { return m_name; }
    QString caption() const { return tabCaption(m_name); }
    void rename(const QString &path);

    qint16 state() const { return m_state; }
    /// Says what the text is from now on, as it is: saved, empty, or other than what the disk
    /// holds.
    void setState(qint16 state);
    /// For whoever has changed looks without a Change: the state becomes what the text and the
    /// looks that the user gave it say.
    void updateState();
    bool isModified() const { return m_state == Modified; }
    /// Whether the text came back after a crash and the user has not saved it yet. Until then only
    /// the user's own save may change the file.
    bool isRecovered() const { return m_recovered; }

    /// The bytes that the last load read from the file or the last save wrote; null without either.
    const QByteArray &onDisk() const { return m_onDisk; }

    UndoHistory &history() { return m_history; }
    void undo() { step(&UndoHistory::undo); }
    void redo() { step(&UndoHistory::redo); }

    /// Tells that another text has been set, which the caller has just done: the history starts
    /// over, the caret goes to the start, and the state becomes Empty (Fresh), Modified (Recovered)
    /// or Saved.
    void tellReplaced(How how, const QByteArray &onDisk = {});
    /// Tells that the text is going to be written to the document's file as it is now.
    void tellAboutToBeWritten() { Q_EMIT aboutToBeWritten(); }
    /// Tells that these bytes have been written to the document's file.
    void tellWritten(const QByteArray &bytes, Save save);
    /// For whoever could not write it: it is modified, whatever it was.
    void tellNotWritten() { showState(Modified); }
    /// For whoever has written the looks beside the file.
    void tellLooksWritten();

Q_SIGNALS:
    /// The document has another text; its path, state and history belong to that already.
    void replaced(zeph::Document::How how);
    /// The user has typed, or a Change has been committed; state and history are up to date.
    void edited();
    /// The text is about to go to the disk as it is now.
    void aboutToBeWritten();
    /// The disk holds what the document shows.
    void written(zeph::Document::Save save);
    /// The number of steps that can be undone or redone has changed.
    void stepsChanged();
    void stateChanged();
    void renamed();

private:
    friend class Change;

    void showState(qint16 state);
    /// Takes an edit into state and history, and tells of it.
    void countEdit();
    void step(void (UndoHistory::*way)());

    DocumentKind m_kind = DocumentKind::Joystick;
    QString m_path;
    QString m_name;
    qint16 m_state = Empty;
    /// What the file held by the last load or save, or an empty text without one; nothing when the
    /// file holds another text. The document is in the second state while it holds the first.
    std::optional<std::pair<DocumentState, qint16>> m_unchanged;
    bool m_recovered = false;
    QByteArray m_onDisk;
    UndoHistory m_history;
};

/// A change that the program makes to a document: begun by the constructor, made of any number of
/// the document's text operations, and one step to undo when it is committed. Without commit() the
/// destructor brings text, looks and caret back to what they were before.
class Change
{
public:
    explicit Change(Document &document);
    ~Change();
    Change(const Change &) = delete;
    Change &operator=(const Change &) = delete;

    Document &document() { return m_document; }
    /// Makes the change one step to undo. False, without a step, when nothing differs or the change
    /// is committed already.
    bool commit();

private:
    Document &m_document;
    std::optional<ColouredText::Quiet> m_quiet;
    DocumentState m_before;
    int m_anchor;
    int m_caret;
};

} // namespace zeph
