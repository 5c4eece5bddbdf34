// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/game_launch.h"

#include "documents/documents.h"
#include "language/file_kinds.h"
#include "platform/dialogs.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/document_saver.h"
#include "toolchain/games/games.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_messages.h"
#include "toolchain/tool_scene.h"
#include "toolchain/toolchain_settings.h"

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

/// The game's current folder: its own, else the root of its drive, else the tools' folder.
QString gameFolder(const Game &game, const Paths &paths)
{
    if (folderExists(game.GameDIRPath)) {
        return game.GameDIRPath;
    }
    const QString root = game.GameDIRPath.isEmpty() ? QString() : rootOf(game.GameDIRPath);
    return folderExists(root) ? root : paths.hotasFolder;
}

} // namespace

GameLaunch::GameLaunch(const Context &context, const ToolParts &parts, Games &games)
    : m_context(context), m_parts(parts), m_games(games)
{
}

void GameLaunch::mnuGameArray_Click(int index)
{
    // A launched game moves to the top of the list, so it is copied out before anything runs.
    const Game game = m_games.list().value(index - 1);
    launchInTurn(game);
}

void GameLaunch::launchInTurn(const Game &game)
{
    const auto turn = m_parts.handshake.commands().turn(u"the launch of "_s + game.GameName,
                                                        [this, game] { launchInTurn(game); });
    if (turn) {
        launch(game);
    }
}

void GameLaunch::launch(const Game &game)
{
    saveChanged();
    m_games.update(game);
    if (!prepare(game)) {
        return;
    }
    m_parts.afterDownload.GetAppsToRun(m_parts.documents.joystick().text());
    start(game);
    m_parts.scene.minimiseMainWindow();
}

/// Saves both documents. One that could not be saved, or whose Save As was cancelled, stays marked
/// as modified, so that the end of the run still asks about it.
void GameLaunch::saveChanged()
{
    Documents &documents = m_parts.documents;
    const DocumentKind selected = documents.selected().kind();
    documents.forEach([this, &documents](const Document &document) {
        if (document.isModified()) {
            documents.select(document.kind());
            m_parts.saver.saveSelected();
        }
    });
    documents.select(selected);
}

/// Applies the stored profile, if each download does. False when the program ends meanwhile.
bool GameLaunch::resetAxes()
{
    return !m_context.settings.of<ToolchainSettings>().UseResetProfile
        || m_parts.profiles.ApplyDefaultProfile();
}

bool GameLaunch::prepare(const Game &game)
{
    switch (GameMode(game.GameJFmode)) {
    case GameMode::Windows:
        return resetAxes() && m_parts.modes.changeWholeMode(false);
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
    if (file.contains(u'"')) {
        m_context.dialogs.box(quoteInNameBox(file));
        return false;
    }
    if (!resetAxes()) {
        return false;
    }
    m_context.status.setText(
        u" Waiting for compiler to download your file. Please be patient ...."_s);
    const QString files = m_context.paths.filesFolder();
    m_parts.handshake.setStatusCaption(u"Downloading "_s
                                       + (file.startsWith(files) ? file.mid(files.size()) : file));
    const ExchangeEnd end = m_parts.handshake.runCompiler(
        compilerLaunch(m_context.paths, CompilerCommand::DownloadAndEnable, file));
    if (end == ExchangeEnd::Abandoned) {
        return false;
    }
    m_parts.modes.showIfDetecting();
    switch (end) {
    case ExchangeEnd::GivenUp:
        return goOnWithoutVerdict();
    case ExchangeEnd::NotStarted:
        // It has been told, and no failed step keeps the pilot from flying.
        m_context.status.setText(panelAfterCompilerWait(true));
        return true;
    default:
        return tellVerdict(file);
    }
}

bool GameLaunch::goOnWithoutVerdict()
{
    const bool goOn =
        m_context.dialogs.box(gameTimeOutBox(m_context.settings.of<SharedSettings>().PilotCallsign))
        == BoxButton::Yes;
    m_context.status.setText(panelAfterCompilerWait(!goOn));
    if (!goOn) {
        m_parts.scene.bringMainWindowBack();
    }
    return goOn;
}

bool GameLaunch::tellVerdict(const QString &file)
{
    m_parts.scene.bringMainWindowBack();
    const CompilerVerdict verdict = HotasIni(m_context.paths.hotasIni()).readCompiler();
    const VerdictTelling telling =
        tellGameVerdict(verdict, m_context.settings.of<ToolchainSettings>().HOTASStatusBarErrors);
    if (!telling.failed) {
        m_context.status.setText(telling.panel);
        if (m_context.settings.of<ToolchainSettings>().NumlockDownloadMode) {
            m_parts.afterDownload.TurnNumLockOn();
        }
        m_parts.afterDownload.tellStandIn();
        return true;
    }
    const Document &joystick = m_parts.documents.joystick();
    if (nameOf(file).compare(joystick.caption(), Qt::CaseInsensitive) != 0) {
        m_parts.scene.OpenPreviouslySavedFiles(file);
    }
    m_parts.documents.select(DocumentKind::Joystick);
    m_context.status.setText(telling.panel);
    SentFiles sent = sentFiles(m_parts.documents);
    // The user may have kept the files that are open.
    sent.joystick = { file, tabCaption(nameOf(file)) };
    if (telling.showHelp) {
        m_parts.scene.showCompilerHelp(errorOf(verdict, sent));
    }
    if (telling.highlightLine != 0) {
        m_parts.scene.HighlightErrorLine(errorOf(verdict, sent));
    }
    return false;
}

void GameLaunch::start(const Game &game)
{
    Expected<void, QString> started;
    if (isWebAddress(game.GamePath)) {
        m_parts.scene.bringMainWindowBack();
        started = m_context.launcher.openWithDesktop(game.GamePath);
    } else {
        started = m_context.launcher.start(
            launchFromCommand(game.GamePath, gameFolder(game, m_context.paths)));
    }
    if (!started) {
        // Not a box: the main window is about to be minimised, and panel 1 still tells the reason
        // when the pilot comes back to see why nothing happened.
        m_context.status.setText(started.error());
    }
}

} // namespace zeph
