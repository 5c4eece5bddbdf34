// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/compile/compiler_host.h"

namespace zeph {

class ToolchainHandshake;
struct VerdictTelling;

/// What a download needs of the rooms around it. All must be set.
struct DownloadHost : CompilerHost {
    /// Guards the joystick text against the user, or gives it back.
    std::function<void(bool locked)> lockJoystickText;
    /// Whether the axes are reset before a download.
    std::function<bool()> resetsAxes;
    /// Applies the stored profile and waits. False when the program ends meanwhile.
    std::function<bool()> ApplyDefaultProfile;
    /// Shows the Cougar's mode, if the mode detector runs.
    std::function<void()> showCougarMode;
    std::function<void()> TurnNumLockOn;
    std::function<void(const QString &joystickText)> GetAppsToRun;
    /// Opens the Key Tester, or the tester that the user prefers.
    std::function<void()> openKeyTester;
};

/// Compiles the joystick file on the disk, sends it to the Cougar, and does what the user wants to
/// follow. The text is read-only while the compiler works on it.
class Download
{
public:
    Download(const Context &context, ToolchainHandshake &handshake, DownloadHost host);

    /// The whole of a download, from the questions about unsaved files to the Key Tester.
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

    Context m_context;
    ToolchainHandshake &m_handshake;
    DownloadHost m_host;
    /// How many downloads keep the text locked: one may begin during another's wait, and one that
    /// could not be started must not free the text of the other.
    int m_locks = 0;
};

} // namespace zeph
