// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/after_download.h"

#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/handlers.h"
#include "platform/process_launcher.h"
#include "settings/settings.h"
#include "text/document_text.h"
#include "toolchain/run_app_lines.h"
#include "toolchain/toolchain_settings.h"

#include <QCoreApplication>

namespace zeph {

namespace {

/// The root of the drive that a command's path begins with: the folder in which it starts.
QString rootOfCommand(const QString &command)
{
    return rootOf(command.startsWith(u'"') ? command.sliced(1) : command);
}

} // namespace

bool AfterDownload::started(const Launch &launch)
{
    const auto result = m_context.launcher.start(launch);
    if (!result) {
        tellEscaped(m_context.dialogs, result.error());
    }
    return result.has_value();
}

void AfterDownload::TurnNumLockOn()
{
    const QString helper = m_context.paths.inApp(u"ZephNUMLon.exe");
    if (!fileExists(helper)) {
        m_context.dialogs.tell(u"Where is it?"_s,
                               u"I couldn't find ZephNUMLon.exe - it should be in the same "
                               u"directory as Zeph.exe. What have you done with it? "_s,
                               BoxIcon::Exclamation);
        return;
    }
    started({ helper, {}, m_context.paths.appFolder, WindowStyle::NormalFocus });
}

void AfterDownload::GetAppsToRun(const QString &joystickText)
{
    if (m_context.settings.of<ToolchainSettings>().RunAppsWithDownload || joystickText.isEmpty()) {
        return;
    }
    // Only a copy for the curious: the lines are read from the text itself, so that a full disk
    // keeps nobody from flying.
    (void)writeFileAtomically(m_context.paths.tempFolder() + u"Original.txt"_s,
                              documentBytes(joystickText));
    for (const RunApp &app : runAppLines(joystickText)) {
        if (!started(launchFromCommand(app.command, rootOfCommand(app.command), app.style))) {
            return;
        }
        // The windows are drawn between two starts; a command of the user comes behind the last.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

} // namespace zeph
