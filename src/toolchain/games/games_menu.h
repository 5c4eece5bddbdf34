// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/games/game_launch.h"
#include "toolchain/games/games.h"

#include <QObject>

namespace zeph {

class MenuArray;

/// The Games menu: starts the user's games, adds one and sorts them.
class GamesMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the games.
    GamesMenu(const Context &context, const ToolParts &parts);

    Games &games() { return m_games; }
    /// Gives the menu the caption that the settings have for it.
    void applySettings();

private:
    void mnuGamesAdd_Click();
    void showGames();

    Context m_context;
    ToolParts m_parts;
    Games m_games;
    GameLaunch m_launch;
    MenuArray *m_menu;
};

} // namespace zeph
