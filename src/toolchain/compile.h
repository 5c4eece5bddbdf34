// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"
#include "platform/core/base.h"

#include <functional>

namespace zeph {

class ToolchainHandshake;
struct CompilerVerdict;
struct EditorDocument;

/// What a compile needs of the windows above it. All must be set.
struct CompileHost {
    std::function<QString()> joystickText;
    std::function<QString()> macroText;
    std::function<const EditorDocument &()> joystick;
    std::function<const EditorDocument &()> macro;
    std::function<void()> selectJoystickTab;
    /// Saves the selected document; its state tells afterwards whether that took place.
    std::function<void()> mnuFileSave_Click;
    std::function<void()> ResetFocusToEditor;
    /// Line (1-based) and error text.
    std::function<void(int, const QString &)> HighlightErrorLine;
    /// Shows CompilerHelp, without blocking, with the verdict's error.
    std::function<void(const CompilerVerdict &)> showCompilerHelp;
    std::function<void()> minimiseToolWindows;
    /// Unloads CompilerHelp and the other helpers that would stand in the compiler's way.
    std::function<void()> unloadHelpers;
};

/// Checks the joystick file on the disk with the compiler, without sending it to the Cougar.
class Compile
{
public:
    Compile(const Context &context, ToolchainHandshake &handshake, CompileHost host);

    /// The whole of a compile: agrees disk and editor, runs the compiler, tells its verdict.
    void mnuAppsCompile_Click();

private:
    bool canBegin();
    bool saveJoystick();
    bool macroFileMayDiffer();
    void tellOutcome(const QString &path);

    Context m_context;
    ToolchainHandshake &m_handshake;
    CompileHost m_host;
};

} // namespace zeph
