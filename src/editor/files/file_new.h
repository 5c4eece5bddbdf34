// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"

#include <QObject>

namespace zeph {

class EditorView;
class FileOpening;
class UseDirectives;

/// Fresh documents. Closing a document is the same as starting a fresh one.
class FileNew : public QObject
{
    Q_OBJECT
public:
    FileNew(const Context &context, EditorView &view, FileOpening &opening,
            UseDirectives &directives);

    void mnuFileNewJoystick_Click();
    void mnuFileNewMacro_Click();
    void mnuFileNewBoth_Click();
    void mnuFileClose_Click();
    void mnuFileCloseBoth_Click();

    /// Names that begin "Untitled" become the fresh names again.
    void rewriteUntitled();
    /// What a new Cougar state needs: fresh names for documents that were never saved.
    void HardwareHasChanged();

Q_SIGNALS:
    /// A fresh macro document stands in place of the old one.
    void macroReplaced();
    void joystickReplaced();

private:
    bool freshen(DocumentKind kind);

    Context m_context;
    EditorView &m_view;
    FileOpening &m_opening;
    UseDirectives &m_directives;
};

} // namespace zeph
