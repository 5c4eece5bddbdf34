// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "editor/files/backups.h"
#include "platform/context.h"

#include <QObject>

#include <array>

namespace zeph {

class ColouredCopies;
class EditorView;
class UseDirectives;

/// Saving, in all its forms. After any of these a document's state tells whether the save took
/// place: it stays modified when the user cancelled or the disk refused.
class FileSaving : public QObject
{
    Q_OBJECT
public:
    FileSaving(const Context &context, EditorView &view, ColouredCopies &copies,
               UseDirectives &directives);

    /// Saves the selected document, by Save As where it has no name or cannot be written.
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileSaveBoth_Click();

    /// Writes one document to its path, stamp and coloured copy included.
    void SaveText(Document &document);
    /// Writes one document to its path without anything that would disturb the pilot: no stamp,
    /// and caret, undo history and lists stay as they are.
    void AutoSaveText(Document &document);
    /// Another text has taken a document's place: what was saved under its fresh name is no longer
    /// this document's to overwrite.
    void forgetFresh(DocumentKind kind) { m_ownFresh[size_t(kind)].reset(); }
    /// Brings the "last modified:" line of a document up to date.
    void ModifyDate(Document &document);

Q_SIGNALS:
    /// The text is as it will go to the disk.
    void aboutToWrite(DocumentKind kind);
    /// The text is on disk; what follows a save is still to come.
    void written(DocumentKind kind);
    /// The disk holds what the document shows, however that came.
    void safe(DocumentKind kind);
    /// A named file was saved.
    void saved(DocumentKind kind, const QString &path);

private:
    enum class Stranger { Show, TellOnly };

    bool encodable(Document &document, Stranger stranger);
    std::optional<QString> writePlain(Document &document);
    void finish(Document &document, QString status);
    void tellUnsaved(Document &document, const FileError &error);
    bool keepStrangersFile(const Document &document);
    QString proposedName(const Document &document);
    void tellOtherDocument(const Document &saved);

    Context m_context;
    EditorView &m_view;
    ColouredCopies &m_copies;
    UseDirectives &m_directives;
    Backups m_backups;
    /// What this run has written under a fresh name for the document that is open now: a file that
    /// holds just that is its own.
    std::array<std::optional<QByteArray>, 2> m_ownFresh;
};

} // namespace zeph
