// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/tool_parts.h"

namespace zeph {

class Games;
struct Game;

/// Readies the Cougar for a game and starts it.
class GameLaunch
{
public:
    GameLaunch(const Context &context, const ToolParts &parts, Games &games);

    /// Saves both documents and launches the game at that place (1-based). A step that fails is
    /// passed over, but a missing or bad joystick file ends the launch before the game starts.
    void mnuGameArray_Click(int index);

private:
    void launchInTurn(const Game &game);
    void launch(const Game &game);
    void saveChanged();
    /// Brings the Cougar into the game's mode. False ends the launch: the compiler reported an
    /// error, the user does not want to go on without its answer, or the program ends.
    bool prepare(const Game &game);
    bool resetAxes();
    bool download(const QString &file);
    bool goOnWithoutVerdict();
    bool tellVerdict(const QString &file);
    void start(const Game &game);

    Context m_context;
    ToolParts m_parts;
    Games &m_games;
};

} // namespace zeph
