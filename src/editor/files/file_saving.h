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

/// Knows what other programs do to the documents' files.
class OverwriteGuard
{
public:
    virtual ~OverwriteGuard() = default;

    /// Whether the file holds what no load or save of this document left there, or cannot be read
    /// any more. False for a document without a file.
    virtual bool hasChanged(const Document &document) = 0;
    /// Before a save: asks about a changed file. False when it must stay as it is.
    virtual bool maySave(Document &document) = 0;
};

/// Saves documents. After each operation the document's state tells whether it was saved: it stays
/// modified when the user cancelled or the disk refused.
class FileSaving
{
public:
    FileSaving(const Context &context, EditorView &view, MenuActions &actions,
               ColouredCopies &copies);

    /// Whom to ask before a file is overwritten; it lives as long as files are saved.
    void guardBy(OverwriteGuard &guard) { m_guard = &guard; }

    /// Saves the selected document; runs Save As when it has no name or its file is read only.
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileSaveBoth_Click();

    /// Writes one document to its path, with an updated stamp if the settings ask for it, a backup
    /// and the coloured copy. False when it was not written, which is told.
    bool SaveText(Document &document);
    /// Asks about a file that another program has changed. False while it holds what the document
    /// does not show.
    bool settleChange(Document &document);
    /// Writes one document to its path without disturbing the pilot: the stamp, the caret, the undo
    /// history and the lists stay as they are.
    void AutoSaveText(Document &document);
    /// Puts the present time into the document's "last modified:" line, if it has one.
    void ModifyDate(Document &document);

private:
    enum class Stranger { Show, TellOnly };

    bool encodable(Document &document, Stranger stranger);
    bool write(Document &document, Document::Save save);
    void noticeLoss(Document &document);
    void tellUnsaved(Document &document, const FileError &error);
    bool keepStrangersFile(const Document &document);
    QString proposedName(const Document &document);

    Context m_context;
    EditorView &m_view;
    ColouredCopies &m_copies;
    Backups m_backups;
    OverwriteGuard *m_guard = nullptr;
};

} // namespace zeph
