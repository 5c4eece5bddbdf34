// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/game_launch.h"

#include "documents/document.h"
#include "platform/dialogs.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "settings/global_settings.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/games/games.h"
#include "toolchain/handshake.h"
#include "toolchain/tool_commands.h"

#include <utility>

namespace zeph {

namespace {

bool isWebAddress(const QString &command)
{
    return command.startsWith(u"www.", Qt::CaseInsensitive)
        || command.startsWith(u"http", Qt::CaseInsensitive);
}

Box missingFileBox(const QString &path)
{
    Box box;
    box.title = u"Aborting game launch"_s;
    box.text = u"I'm afraid I couldn't find "_s + path
        + u", which is the joystick file I need to download to the Cougar according to the way "
          "you've setup your options for this game. I'll exit now and suggest you go to the "
          "Preferences Window and edit your Game's settings to rectify the problem."_s;
    box.icon = BoxIcon::Stop;
    return box;
}

/// The folder that the game finds as its current one: its own, or what is left when a step on the
/// way there fails.
QString gameFolder(const Game &game, const Paths &paths)
{
    if (folderExists(game.GameDIRPath)) {
        return game.GameDIRPath;
    }
    const QString root = game.GameDIRPath.isEmpty() ? QString() : rootOf(game.GameDIRPath);
    return folderExists(root) ? root : paths.hotasFolder;
}

} // namespace

GameLaunch::GameLaunch(const Context &context, ToolchainHandshake &handshake, Games &games,
                       GamesHost host)
    : m_context(context), m_handshake(handshake), m_games(games), m_host(std::move(host))
{
}

void GameLaunch::mnuGameArray_Click(int index)
{
    // The list moves with its use, so the place is taken before anything can use it again.
    const Game game = m_games.list().value(index - 1);
    m_host.saveChanged();
    m_games.update(game);
    if (!prepare(game)) {
        return;
    }
    m_host.GetAppsToRun();
    start(game);
    m_host.minimiseMainWindow();
}

bool GameLaunch::prepare(const Game &game)
{
    switch (GameMode(game.GameJFmode)) {
    case GameMode::Windows:
        return (!m_host.resetsAxes() || m_host.ApplyDefaultProfile())
            && m_host.changeToPureWindows();
    case GameMode::Download:
        return download(game.GameJF);
    case GameMode::DownloadDefault:
        return download(m_context.paths.filesFolder() + defaultGameFile.toString());
    }
    return true;
}

bool GameLaunch::download(const QString &wanted)
{
    if (!fileExists(wanted)) {
        m_context.dialogs.box(missingFileBox(wanted));
        return false;
    }
    const QString file = existingPath(wanted);
    if (m_host.resetsAxes() && !m_host.ApplyDefaultProfile()) {
        return false;
    }
    m_context.status.setText(
        u" Waiting for compiler to download your file. Please be patient ...."_s);
    const QString files = m_context.paths.filesFolder();
    m_handshake.setStatusCaption(u"Downloading "_s
                                 + (file.startsWith(files) ? file.mid(files.size()) : file));
    const ExchangeEnd end = m_handshake.runCompiler(
        compilerLaunch(m_context.paths, CompilerCommand::DownloadAndEnable, file));
    if (end == ExchangeEnd::Abandoned) {
        return false;
    }
    m_host.showCougarModeIfDetecting();
    switch (end) {
    case ExchangeEnd::GivenUp:
        return goOnWithoutVerdict();
    case ExchangeEnd::NotStarted:
        // Told already, and like every failed step no reason to keep the pilot from flying.
        m_context.status.setText(panelAfterCompilerWait(true));
        return true;
    default:
        return tellVerdict(file);
    }
}

bool GameLaunch::goOnWithoutVerdict()
{
    const bool goOn =
        m_context.dialogs.box(gameTimeOutBox(m_context.settings.PilotCallsign)) == BoxButton::Yes;
    m_context.status.setText(panelAfterCompilerWait(!goOn));
    if (!goOn) {
        m_host.bringMainWindowBack();
    }
    return goOn;
}

bool GameLaunch::tellVerdict(const QString &file)
{
    m_host.bringMainWindowBack();
    const CompilerVerdict verdict = HotasIni(m_context.paths.hotasIni()).readCompiler();
    const VerdictTelling telling =
        tellGameVerdict(verdict, m_context.settings.HOTASStatusBarErrors != 0);
    if (!telling.failed) {
        m_context.status.setText(telling.panel);
        if (m_host.ensuresNumLock()) {
            m_host.TurnNumLockOn();
        }
        return true;
    }
    if (nameOf(file).compare(m_host.joystick().caption(), Qt::CaseInsensitive) != 0) {
        m_host.OpenPreviouslySavedFiles(file);
    }
    m_host.selectJoystickTab();
    m_context.status.setText(telling.panel);
    if (telling.showHelp) {
        m_host.showCompilerHelp(verdict);
    }
    if (telling.highlightLine != 0) {
        m_host.HighlightErrorLine(telling.highlightLine, verdict.ErrorCode);
    }
    return false;
}

void GameLaunch::start(const Game &game)
{
    Expected<void, QString> started;
    if (isWebAddress(game.GamePath)) {
        m_host.bringMainWindowBack();
        started = m_context.launcher.openWithDesktop(game.GamePath);
    } else {
        started = m_context.launcher.start(
            launchFromCommand(game.GamePath, gameFolder(game, m_context.paths)));
    }
    if (!started) {
        // No box: the main window goes out of the game's way in any case, and the line is there
        // when the pilot comes back to look why nothing happened.
        m_context.status.setText(started.error());
    }
}

} // namespace zeph
