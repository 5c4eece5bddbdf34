// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <functional>

namespace zeph {

class Games;
class ToolchainHandshake;
struct CompilerVerdict;
class Document;
struct Game;

/// What the launch of a game needs of the windows above it and of the other tools. All must be set.
struct GamesHost {
    std::function<const Document &()> joystick;
    /// Saves each of the two documents that is changed, without asking, the joystick file first.
    std::function<void()> saveChanged;
    /// The Download menu's ticks.
    std::function<bool()> resetsAxes;
    std::function<bool()> ensuresNumLock;
    /// These two wait; false when the program ends meanwhile.
    std::function<bool()> ApplyDefaultProfile;
    std::function<bool()> changeToPureWindows;
    std::function<void()> TurnNumLockOn;
    /// Starts the applications that the Editor's present joystick text names.
    std::function<void()> GetAppsToRun;
    /// Brings the mode picture up to date, if the detector runs.
    std::function<void()> showCougarModeIfDetecting;
    std::function<void(const QString &)> OpenPreviouslySavedFiles;
    std::function<void()> selectJoystickTab;
    /// Shows CompilerHelp, without blocking, with the verdict's error.
    std::function<void(const CompilerVerdict &)> showCompilerHelp;
    /// Line (1-based) and error text.
    std::function<void(int, const QString &)> HighlightErrorLine;
    std::function<void()> bringMainWindowBack;
    std::function<void()> minimiseMainWindow;
};

/// Readies the Cougar for a game and starts it.
class GameLaunch
{
public:
    GameLaunch(const Context &context, ToolchainHandshake &handshake, Games &games, GamesHost host);

    /// The game at that place (1-based). A step that fails is passed over, but a bad joystick file
    /// ends the launch before the game starts.
    void mnuGameArray_Click(int index);

private:
    /// Whether the launch goes on: not after an error of the compiler, a No to going on without an
    /// answer, or the end of the program.
    bool prepare(const Game &game);
    bool download(const QString &file);
    bool goOnWithoutVerdict();
    bool tellVerdict(const QString &file);
    void start(const Game &game);

    Context m_context;
    ToolchainHandshake &m_handshake;
    Games &m_games;
    GamesHost m_host;
};

} // namespace zeph
