// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/tool_parts.h"

namespace zeph {

struct SentFiles;

/// Checks the joystick file on the disk with the compiler, without sending it to the Cougar.
class Compile
{
public:
    Compile(const Context &context, const ToolParts &parts);

    /// Compiles: saves the file, runs the compiler, waits for it and tells its verdict.
    void mnuAppsCompile_Click();

private:
    bool canBegin();
    bool saveJoystick();
    bool macroFileMayDiffer();
    void compile();
    void tellOutcome(const SentFiles &sent);

    Context m_context;
    ToolParts m_parts;
};

} // namespace zeph
