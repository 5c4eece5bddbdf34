// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"
#include "editor/editor_document.h"

#include <QObject>

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
    void SaveText(EditorDocument &document);
    /// Brings the "last modified:" line of a document up to date.
    void ModifyDate(EditorDocument &document);

Q_SIGNALS:
    /// The text is on disk; what follows a save is still to come.
    void written(DocumentKind kind);
    /// A named file was saved.
    void saved(DocumentKind kind, const QString &path);

private:
    bool encodable(EditorDocument &document);
    QString proposedName(const EditorDocument &document);
    void tellOtherDocument(const EditorDocument &saved);

    Context m_context;
    EditorView &m_view;
    ColouredCopies &m_copies;
    UseDirectives &m_directives;
};

} // namespace zeph
