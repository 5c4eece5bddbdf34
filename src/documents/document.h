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
/// What a view does to the text counts as typing: the document becomes modified and its history
/// takes it in. The text operations count as nothing; a Change around them makes them one step to
/// undo.
class Document : public ColouredText
{
    Q_OBJECT
public:
    enum State : qint16 { Empty = -1, Saved = 0, Modified = 1 };
    /// How another text has taken the place of the one before.
    enum class How {
        Loaded, ///< from its file
        Recovered, ///< after a crash; its file does not hold it
        Fresh, ///< empty, without a file
        Undone, ///< by undo or redo
    };
    /// Who wants a save.
    enum class Save { Asked, Automatic };

    /// The greatest number of steps to undo is read whenever one is added, and outlives the
    /// document.
    explicit Document(DocumentKind kind, const int &undoMax, QObject *parent = nullptr);
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

    /// The bytes that the document's file holds of it by the last load or save; null when there was
    /// none.
    const QByteArray &onDisk() const { return m_onDisk; }

    UndoHistory &history() { return m_history; }
    void undo() { step(&UndoHistory::undo); }
    void redo() { step(&UndoHistory::redo); }

    /// For whoever has set a text that takes the place of the one before: the history starts over,
    /// the caret goes to the start, and the state becomes what the way says.
    void tellReplaced(How how, const QByteArray &onDisk = {});
    /// For whoever is about to write the document's file: what the text is now will be written.
    void tellAboutToBeWritten() { Q_EMIT aboutToBeWritten(); }
    /// For whoever has written the document's file.
    void tellWritten(const QByteArray &bytes, Save save);

Q_SIGNALS:
    /// Another text has taken the document's place; all that belongs to it is set.
    void replaced(zeph::Document::How how);
    /// The user has typed, or a Change has been committed. State and history know it.
    void edited();
    /// The text will go to the disk as it is now.
    void aboutToBeWritten();
    /// The disk holds what the document shows.
    void written(zeph::Document::Save save);
    /// The number of steps that can be undone or redone has changed.
    void stepsChanged();
    void stateChanged();
    void renamed();

private:
    friend class Change;

    /// A change took place that counts.
    void countEdit();
    void step(void (UndoHistory::*way)());

    DocumentKind m_kind = DocumentKind::Joystick;
    QString m_path;
    QString m_name;
    qint16 m_state = Empty;
    bool m_recovered = false;
    QByteArray m_onDisk;
    UndoHistory m_history;
};

/// A change of the program's own to a document: begun by the constructor, made of any number of the
/// document's text operations, and one step to undo when it is committed. A change that is thrown
/// away without commit() leaves text, looks and caret as they were before it.
class Change
{
public:
    explicit Change(Document &document);
    ~Change();
    Change(const Change &) = delete;
    Change &operator=(const Change &) = delete;

    Document &document() { return m_document; }
    /// Makes the step; the document is modified then. False when nothing is different: no step.
    bool commit();

private:
    Document &m_document;
    std::optional<ColouredText::Quiet> m_quiet;
    DocumentState m_before;
    int m_anchor;
    int m_caret;
};

} // namespace zeph
