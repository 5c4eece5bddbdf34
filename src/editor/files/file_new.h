// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/context.h"

namespace zeph {

class Dialogs;
class EditorView;
class FileOpening;
class FileSaving;
class MenuActions;

/// Starts fresh documents. Closing a document is the same as starting a fresh one.
class FileNew
{
public:
    FileNew(const Context &context, EditorView &view, MenuActions &actions, FileOpening &opening);

    void mnuFileNewJoystick_Click();
    void mnuFileNewMacro_Click();
    void mnuFileNewBoth_Click();
    void mnuFileClose_Click();
    void mnuFileCloseBoth_Click();

    /// Gives documents whose name begins with "Untitled" their fresh names again.
    void rewriteUntitled();
    /// Updates the names of documents that were never saved after the Cougar's state changed.
    void HardwareHasChanged();

private:
    void connectMenus(MenuActions &on);
    bool freshen(DocumentKind kind);

    Context m_context;
    EditorView &m_view;
    FileOpening &m_opening;
};

/// Asks about unsaved files, the macro file first, and saves on Yes. False when the exit has to
/// stop.
bool askBeforeExit(EditorView &view, FileSaving &saving, Dialogs &dialogs);

} // namespace zeph
