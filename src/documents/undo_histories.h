// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"

#include <QObject>

namespace zeph {

class Documents;
class EditorView;
class LineBlink;
class MenuActions;

/// The menu entries that undo and redo in the selected document, and show how many steps it has.
class UndoHistories : public QObject
{
    Q_OBJECT
public:
    UndoHistories(const Context &context, EditorView &view, MenuActions &actions);

    UndoHistory &of(DocumentKind kind);
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();
    /// Selects the caret's line in the selected document.
    void mnuEditSelectLine_Click();
    /// Shows the selected document's steps on the entries.
    void UpdateUndoRedoMenus();
    /// Starts a document's history over with its present text.
    void startOver(DocumentKind kind);
    /// Starts the history over, as a save does while UndoClearOnSave is on.
    void DeleteUndosOnSaveJ() { startOver(DocumentKind::Joystick); }
    void DeleteUndosOnSaveM() { startOver(DocumentKind::Macro); }
    /// A fresh history for both documents.
    void DeleteUndosFromMemory();

private:
    void step(void (Document::*way)(), bool possible);
    bool clearsOn(Document::Save save) const;

    Context m_context;
    EditorView &m_view;
    MenuActions &m_actions;
    Documents &m_documents;
    LineBlink *m_blink;
};

} // namespace zeph
