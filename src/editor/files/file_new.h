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

/// Fresh documents. Closing a document is the same as starting a fresh one.
class FileNew
{
public:
    FileNew(const Context &context, EditorView &view, MenuActions &actions, FileOpening &opening);

    void mnuFileNewJoystick_Click();
    void mnuFileNewMacro_Click();
    void mnuFileNewBoth_Click();
    void mnuFileClose_Click();
    void mnuFileCloseBoth_Click();

    /// Names that begin "Untitled" become the fresh names again.
    void rewriteUntitled();
    /// What a new Cougar state needs: fresh names for documents that were never saved.
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
