// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/after_download.h"

#include "platform/core/file_io.h"
#include "platform/core/stand_in.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "text/text_lines.h"
#include "text/use_statements.h"
#include "toolchain/toolchain_settings.h"

#include <QCoreApplication>

namespace zeph {

namespace {

/// The folder in which a command starts: the root of the drive that its path begins with.
QString rootOfCommand(const QString &command)
{
    return rootOf(command.startsWith(u'"') ? command.sliced(1) : command);
}

constexpr QStringView head = u"USE ZEPH RUN_APP"_w;
/// The head, a blank and three characters: a shorter line names no application.
constexpr qsizetype shortestLine = 20;
constexpr qsizetype commandAt = head.size() + 1;

std::optional<RunApp> runAppOf(QStringView raw)
{
    if (raw.size() < shortestLine || !raw.contains(u"USE"_w, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QString line = normalisedLine(raw);
    if (line.size() < shortestLine || !line.startsWith(head, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QStringView rest = QStringView(line).sliced(commandAt);
    const RunAppTail tail = runAppTail(withoutBlanksAtEnd(beforeRem(rest)));
    RunApp app{ .command = tail.command.toString() };
    if (tail.style) {
        app.style = WindowStyle(*tail.style);
    }
    return app;
}

} // namespace

QList<RunApp> runAppLines(QStringView joystickText)
{
    QList<RunApp> apps;
    for (const QStringView line : joystickText.split(u'\n')) {
        if (const auto app = runAppOf(line)) {
            apps.append(*app);
        }
    }
    return apps;
}

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

void AfterDownload::tellStandIn()
{
    auto &settings = m_context.settings.of<ToolchainSettings>();
    if (m_toldStandIn || !settings.TellStandIn || !isStandIn(m_context.paths.compiler())) {
        return;
    }
    m_toldStandIn = true;
    m_context.dialogs.box(
        { .title = u"Nothing reached your stick"_s,
          .text =
              u"That was the stand-in compiler that comes with Zeph: it checks your files as the "
              "real one does, but it drives no hardware, so nothing reached a stick. To fly with "
              "your files, show me the folder of Thrustmaster's own software in Preferences."_s,
          .icon = BoxIcon::Information,
          .tick = u"Don't tell me again"_s,
          .ticked = [&settings](bool on) {
              settings.TellStandIn = !on;
          } });
    if (!settings.TellStandIn) {
        // A store that cannot be written is not told: the choice holds for this run.
        (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                           { &ToolchainSettings::TellStandIn });
    }
}

void AfterDownload::GetAppsToRun(const QString &joystickText)
{
    if (m_context.settings.of<ToolchainSettings>().RunAppsWithDownload || joystickText.isEmpty()) {
        return;
    }
    // Nothing reads this copy. A full disk must not keep anybody from flying, so its failure is
    // not told.
    (void)writeFileAtomically(m_context.paths.tempFolder() + u"Original.txt"_s,
                              documentBytes(joystickText));
    for (const RunApp &app : runAppLines(joystickText)) {
        if (!started(launchFromCommand(app.command, rootOfCommand(app.command), app.style))) {
            return;
        }
        // Lets the windows be drawn; what the user does meanwhile has to wait for the last start.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

} // namespace zeph
