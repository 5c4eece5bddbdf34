// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/compile/compiler_host.h"

namespace zeph {

class ToolchainHandshake;

/// What a compile needs of the windows above it. All must be set.
struct CompileHost : CompilerHost {
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
