// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download.h"

#include "documents/document.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/global_settings.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/handshake.h"
#include "toolchain/tool_commands.h"

#include <utility>

namespace zeph {

/// Keeps the joystick text read-only, at the longest until it goes out of scope: whatever becomes
/// of a download, the pilot can type again behind it.
class Download::TextLock
{
public:
    explicit TextLock(Download &download) : m_download(&download)
    {
        if (download.m_locks++ == 0) {
            download.m_host.lockJoystickText(true);
        }
    }
    ~TextLock() { release(); }
    TextLock(const TextLock &) = delete;
    TextLock &operator=(const TextLock &) = delete;

    void release()
    {
        Download *download = std::exchange(m_download, nullptr);
        if (download && --download->m_locks == 0) {
            download->m_host.lockJoystickText(false);
        }
    }
    /// There is no text any more.
    void forget() { m_download = nullptr; }

private:
    Download *m_download;
};

Download::Download(const Context &context, ToolchainHandshake &handshake, DownloadHost host)
    : m_context(context), m_handshake(handshake), m_host(std::move(host))
{
}

void Download::DownloadTMJ()
{
    m_host.selectJoystickTab();
    if (!canBegin() || !joystickFileMayGo() || !macroFileMayDiffer()) {
        return;
    }
    if (m_host.resetsAxes() && !m_host.ApplyDefaultProfile()) {
        return;
    }
    send();
}

bool Download::canBegin()
{
    if (!m_host.joystickText().isEmpty()) {
        return true;
    }
    m_context.dialogs.tell(
        u"Nothing to transfer ..."_s,
        u"The Joystick file is empty, so there's not much point in me sending that off to your "
        u"joystick. Load up a joystick file, or create one, or just put your feet up and watch "
        u"TV."_s);
    return false;
}

/// Saves a changed file. When it could not be saved, the user may still send the old one.
bool Download::joystickFileMayGo()
{
    if (!m_host.joystick().isModified()) {
        return true;
    }
    m_host.mnuFileSave_Click();
    return !m_host.joystick().isModified()
        || m_context.dialogs.ask(
            u"Hang on a minute ..."_s,
            u"The joystick file isn't saved, so you won't be sending the currently edited file to "
            u"your Thrustmaster hardware. Do you want to continue anyway?"_s);
}

bool Download::macroFileMayDiffer()
{
    if (!m_host.macro().isModified() || m_host.macroText().isEmpty()) {
        return true;
    }
    return m_context.dialogs.ask(
        u"Hang on a minute ..."_s,
        u"The macro file isn't saved, so when I download the joystick file, there's a danger that "
        u"the download might fail or not give the correct response. This will be because the "
        u"compiler is using the macros from the saved file, not the one currently open. Do you "
        u"want to continue anyway?"_s);
}

void Download::send()
{
    const bool enables = m_context.settings.DownloadMode == 1;
    // The user may open another file during the wait: the verdict is about this one.
    const QString path = m_host.joystick().path();
    m_context.status.setText(
        u" Waiting for compiler to download your file. Please be patient ...."_s);
    m_handshake.setStatusCaption(u"Downloading "_s + m_host.joystick().caption());
    TextLock lock(*this);
    const ExchangeEnd end = m_handshake.runCompiler(compilerLaunch(
        m_context.paths, enables ? CompilerCommand::DownloadAndEnable : CompilerCommand::Download,
        path));
    if (end == ExchangeEnd::Abandoned) {
        lock.forget();
        return;
    }
    const bool givenUp = end != ExchangeEnd::Verdict;
    if (end != ExchangeEnd::NotStarted) {
        m_handshake.closeStatusWindow();
        m_host.showCougarMode();
    }
    if (end == ExchangeEnd::GivenUp) {
        m_context.dialogs.box(
            compilerTimeOutBox(CompilerTask::Download, m_context.settings.PilotCallsign));
    }
    m_context.status.setText(panelAfterCompilerWait(givenUp));
    if (end != ExchangeEnd::NotStarted) {
        tellOutcome(path, lock);
    }
}

void Download::tellOutcome(const QString &path, TextLock &lock)
{
    const CompilerVerdict verdict = HotasIni(m_context.paths.hotasIni()).readCompiler();
    const VerdictTelling telling = tellVerdict(verdict, CompilerTask::Download, path,
                                               m_context.settings.HOTASStatusBarErrors != 0);
    if (!telling.failed && m_context.settings.NumlockDownloadMode == 1) {
        m_host.TurnNumLockOn();
    }
    if (!telling.panel.isEmpty()) {
        m_context.status.setText(telling.panel);
    }
    if (telling.box) {
        m_context.dialogs.box(*telling.box);
    }
    if (telling.failed) {
        fail(telling, verdict, lock);
    } else {
        succeed(lock);
    }
}

void Download::succeed(TextLock &lock)
{
    m_host.GetAppsToRun(m_host.joystickText());
    // Only programmed mode sends keys that there would be something to test about.
    if (m_context.settings.RunKeyTest == 1 && m_context.settings.DownloadMode == 1) {
        lock.release();
        m_host.openKeyTester();
    }
    m_host.ResetFocusToEditor();
}

void Download::fail(const VerdictTelling &telling, const CompilerVerdict &verdict, TextLock &lock)
{
    if (telling.showHelp) {
        m_host.showCompilerHelp(verdict);
    }
    lock.release();
    if (telling.highlightLine != 0) {
        m_host.HighlightErrorLine(telling.highlightLine, verdict.ErrorCode);
    }
    if (verdict.Status.isEmpty()) {
        m_host.selectJoystickTab();
        m_host.ResetFocusToEditor();
    }
}

} // namespace zeph
