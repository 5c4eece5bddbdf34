// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/tool_parts.h"

namespace zeph {

struct CompilerVerdict;
struct SentFiles;
struct VerdictTelling;

/// Compiles the joystick file on the disk, sends it to the Cougar, and does what the user has
/// chosen to follow. The text is read-only while the compiler works.
class Download
{
public:
    Download(const Context &context, const ToolParts &parts);

    /// Does a whole download, from saving the file to opening the Key Tester.
    void DownloadTMJ();

private:
    class TextLock;

    void download();
    bool canBegin();
    bool joystickFileMayGo();
    bool macroFileMayDiffer();
    void send();
    void tellOutcome(const SentFiles &sent, TextLock &lock);
    void succeed(TextLock &lock);
    void fail(const VerdictTelling &telling, const CompilerVerdict &verdict, const SentFiles &sent,
              TextLock &lock);
    void openKeyTester();

    Context m_context;
    ToolParts m_parts;
};

} // namespace zeph
