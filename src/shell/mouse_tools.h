// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

namespace zeph {

class ComposerEditor;
class Editor;
class ToolWindows;
class ViewImage;

/// The windows of mouse programming: the wizard, which works on the Image Viewer's picture, and the
/// one with plain fields. Registers both under their menu entries and keeps them together with the
/// Image Viewer.
class MouseTools : public QObject
{
    Q_OBJECT
public:
    /// The Editor owns this object. The Composer's view of the Editor must outlive the windows.
    MouseTools(const Context &context, ToolWindows &windows, Editor &editor,
               ComposerEditor &composerEditor);

    /// Opens the window with plain fields at a tab (0-based).
    void openManual(int tab);

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    void openViewer();
    void followViewer(ViewImage &viewer);

    Context m_context;
    ToolWindows &m_windows;
};

} // namespace zeph
