// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download.h"

#include "documents/documents.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/default_options.h"
#include "toolchain/document_saver.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_scene.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>
#include <utility>

namespace zeph {

/// Keeps the joystick text read-only until it is released, at the latest when it goes out of scope:
/// however a download ends, the pilot can type again afterwards.
class Download::TextLock
{
public:
    explicit TextLock(Document &text) : m_text(&text) { text.setLocked(true); }
    ~TextLock() { release(); }
    TextLock(const TextLock &) = delete;
    TextLock &operator=(const TextLock &) = delete;

    void release()
    {
        if (Document *text = std::exchange(m_text, nullptr)) {
            text->setLocked(false);
        }
    }
    /// Lets go of a text that is gone, when the program ends: there is nothing to release any more.
    void forget() { m_text = nullptr; }

private:
    Document *m_text;
};

Download::Download(const Context &context, const ToolParts &parts)
    : m_context(context), m_parts(parts)
{
}

void Download::DownloadTMJ()
{
    const auto turn =
        m_parts.handshake.commands().turn(u"the download"_s, [this] { DownloadTMJ(); });
    if (turn) {
        download();
    }
}

void Download::download()
{
    m_parts.documents.select(DocumentKind::Joystick);
    if (!canBegin() || !m_parts.saver.settleChanges() || !joystickFileMayGo()
        || !macroFileMayDiffer()) {
        return;
    }
    if (m_parts.documents.joystick().path().contains(u'"')) {
        m_context.dialogs.box(quoteInNameBox(m_parts.documents.joystick().path()));
        return;
    }
    const bool resetsAxes = m_context.settings.of<ToolchainSettings>().UseResetProfile;
    if (resetsAxes && !m_parts.profiles.ApplyDefaultProfile()) {
        return;
    }
    send();
}

bool Download::canBegin()
{
    if (m_parts.documents.joystick().length() > 0) {
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
    const Document &joystick = m_parts.documents.joystick();
    if (!joystick.isModified()) {
        return true;
    }
    m_parts.saver.saveSelected();
    return !joystick.isModified()
        || m_context.dialogs.ask(
            u"Hang on a minute ..."_s,
            u"The joystick file isn't saved, so you won't be sending the currently edited file to "
            u"your Thrustmaster hardware. Do you want to continue anyway?"_s);
}

bool Download::macroFileMayDiffer()
{
    const Document &macro = m_parts.documents.macro();
    if (!macro.isModified() || macro.length() == 0) {
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
    const bool enables = m_context.settings.of<DefaultOptions>().DownloadMode;
    const SentFiles sent = sentFiles(m_parts.documents);
    m_context.status.setText(
        u" Waiting for compiler to download your file. Please be patient ...."_s);
    m_parts.handshake.setStatusCaption(u"Downloading "_s + sent.joystick.name);
    TextLock lock(m_parts.documents.joystick());
    const ExchangeEnd end = m_parts.handshake.runCompiler(compilerLaunch(
        m_context.paths, enables ? CompilerCommand::DownloadAndEnable : CompilerCommand::Download,
        sent.joystick.path));
    if (end == ExchangeEnd::Abandoned) {
        lock.forget();
        return;
    }
    const bool givenUp = end != ExchangeEnd::Verdict;
    if (end != ExchangeEnd::NotStarted) {
        m_parts.handshake.closeStatusWindow();
        m_parts.modes.showIfDetecting();
    }
    if (end == ExchangeEnd::GivenUp) {
        m_context.dialogs.box(compilerTimeOutBox(
            CompilerTask::Download, m_context.settings.of<SharedSettings>().PilotCallsign));
    }
    m_context.status.setText(panelAfterCompilerWait(givenUp));
    if (end != ExchangeEnd::NotStarted) {
        tellOutcome(sent, lock);
    }
}

void Download::tellOutcome(const SentFiles &sent, TextLock &lock)
{
    const CompilerVerdict verdict = HotasIni(m_context.paths.hotasIni()).readCompiler();
    const VerdictTelling telling =
        tellVerdict(verdict, CompilerTask::Download, sent.joystick.path,
                    m_context.settings.of<ToolchainSettings>().HOTASStatusBarErrors);
    if (!telling.failed && m_context.settings.of<ToolchainSettings>().NumlockDownloadMode) {
        m_parts.afterDownload.TurnNumLockOn();
    }
    if (!telling.panel.isEmpty()) {
        m_context.status.setText(telling.panel);
    }
    if (telling.box) {
        m_context.dialogs.box(*telling.box);
    }
    if (telling.failed) {
        fail(telling, verdict, sent, lock);
    } else {
        succeed(lock);
    }
}

void Download::succeed(TextLock &lock)
{
    m_parts.afterDownload.tellStandIn();
    m_parts.afterDownload.GetAppsToRun(m_parts.documents.joystick().text());
    // In Windows mode the Cougar sends no keys to test.
    if (m_context.settings.of<ToolchainSettings>().RunKeyTest
        && m_context.settings.of<DefaultOptions>().DownloadMode) {
        lock.release();
        openKeyTester();
    }
    m_parts.scene.ResetFocusToEditor();
}

/// Opens the Key Tester, or the tester that the user prefers.
void Download::openKeyTester()
{
    const QStringView tester = m_context.settings.of<SharedSettings>().DefaultToDX8KeyTester
        ? u"mnuAppsDX8_0"
        : u"mnuAppsKeyTester";
    if (const QString lack = m_parts.actions.lackOf(tester); !lack.isEmpty()) {
        m_context.status.setText(u' ' + lack);
    }
    m_parts.actions.action(tester)->trigger();
}

void Download::fail(const VerdictTelling &telling, const CompilerVerdict &verdict,
                    const SentFiles &sent, TextLock &lock)
{
    if (telling.showHelp) {
        m_parts.scene.showCompilerHelp(errorOf(verdict, sent));
    }
    lock.release();
    if (telling.highlightLine != 0) {
        m_parts.scene.HighlightErrorLine(errorOf(verdict, sent));
    }
    if (verdict.Status.isEmpty()) {
        m_parts.documents.select(DocumentKind::Joystick);
        m_parts.scene.ResetFocusToEditor();
    }
}

} // namespace zeph
