// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "editor/files/backups.h"
#include "platform/context.h"

namespace zeph {

class ColouredCopies;
class EditorView;
class MenuActions;

/// Saving, in all its forms. After any of these a document's state tells whether the save took
/// place: it stays modified when the user cancelled or the disk refused.
class FileSaving
{
public:
    FileSaving(const Context &context, EditorView &view, MenuActions &actions,
               ColouredCopies &copies);

    /// Saves the selected document, by Save As where it has no name or cannot be written.
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileSaveBoth_Click();

    /// Writes one document to its path, stamp and coloured copy included.
    void SaveText(Document &document);
    /// Writes one document to its path without anything that would disturb the pilot: no stamp,
    /// and caret, undo history and lists stay as they are.
    void AutoSaveText(Document &document);
    /// Brings the "last modified:" line of a document up to date.
    void ModifyDate(Document &document);

private:
    enum class Stranger { Show, TellOnly };

    bool encodable(Document &document, Stranger stranger);
    void write(Document &document, Document::Save save);
    void tellUnsaved(Document &document, const FileError &error);
    bool keepStrangersFile(const Document &document);
    QString proposedName(const Document &document);

    Context m_context;
    EditorView &m_view;
    ColouredCopies &m_copies;
    Backups m_backups;
};

} // namespace zeph
