// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/games/game_launch.h"
#include "toolchain/games/games.h"

#include <QObject>

namespace zeph {

class AfterDownload;
class CompileMenu;
class CougarModes;
class Editor;
class MenuArray;
class Mum;
class Profiles;
class ToolchainHandshake;

/// The Games menu: the user's games, which it starts, and what changes the list of them.
class GamesMenu : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        Mum &mum;
        Editor &editor;
        CompileMenu &compile;
        ToolchainHandshake &handshake;
        CougarModes &modes;
        Profiles &profiles;
        AfterDownload &afterDownload;
    };
    /// Reads the games.
    GamesMenu(const Context &context, const Parts &parts);

    Games &games() { return m_games; }
    /// Gives the menu the caption that the settings have for it.
    void applySettings();

private:
    GamesHost host();
    void addEditorTo(GamesHost &host);
    void addToolsTo(GamesHost &host);
    void saveChanged();
    void mnuGamesAdd_Click();
    void showGames();

    Context m_context;
    Parts m_parts;
    Games m_games;
    GameLaunch m_launch;
    MenuArray *m_menu;
};

} // namespace zeph
