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

    UndoHistory &history() { return m_history; }

Q_SIGNALS:
    /// The user has typed, or a Change has been committed. State and history know it.
    void edited();
    /// The number of steps that can be undone or redone has changed.
    void stepsChanged();
    void stateChanged();
    void renamed();

private:
    friend class Change;

    /// A change took place that counts.
    void countEdit();

    DocumentKind m_kind = DocumentKind::Joystick;
    QString m_path;
    QString m_name;
    qint16 m_state = Empty;
    bool m_recovered = false;
    UndoHistory m_history;
};

} // namespace zeph
