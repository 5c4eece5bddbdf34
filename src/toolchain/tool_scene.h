// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

struct CompilerError;

/// What the toolchain needs done on the screen outside its own windows; a room above it does it.
class ToolScene
{
public:
    virtual ~ToolScene() = default;

    /// Unloads CompilerHelp and minimises every other open tool window, so that the compiler's
    /// window is in front.
    virtual void minimiseToolWindows() = 0;
    /// Opens CompilerHelp without blocking, and explains the error in it.
    virtual void showCompilerHelp(const CompilerError &error) = 0;
    /// Opens the help topic on the compiler's errors.
    virtual void showHelpOnErrors() = 0;
    /// Selects the line of an error in its document. A line that does not exist is told, and so is
    /// a file that is not open any more.
    virtual void HighlightErrorLine(const CompilerError &error) = 0;
    /// Gives the keyboard to the selected document.
    virtual void ResetFocusToEditor() = 0;
    /// Opens a file in the Editor; the user is asked about unsaved ones first.
    virtual void OpenPreviouslySavedFiles(const QString &path) = 0;
    /// Puts the main window in front, with the keyboard in the selected document.
    virtual void bringMainWindowBack() = 0;
    virtual void minimiseMainWindow() = 0;
};

} // namespace zeph
