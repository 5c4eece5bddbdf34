// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/tool_parts.h"

namespace zeph {

struct CompilerVerdict;
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

    bool canBegin();
    bool joystickFileMayGo();
    bool macroFileMayDiffer();
    void send();
    void tellOutcome(const QString &path, TextLock &lock);
    void succeed(TextLock &lock);
    void fail(const VerdictTelling &telling, const CompilerVerdict &verdict, TextLock &lock);
    void openKeyTester();

    Context m_context;
    ToolParts m_parts;
    /// How many downloads keep the text locked: a second one may begin during the first one's wait,
    /// and when it ends the first one still needs the lock.
    int m_locks = 0;
};

} // namespace zeph
