// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/games_menu.h"

#include "documents/document_settings.h"
#include "documents/documents.h"
#include "documents/foreign_keyboard.h"
#include "menus/menu_actions.h"
#include "menus/menu_settings.h"
#include "settings/settings.h"
#include "toolchain/games/gamefields.h"

#include <QAction>
#include <QMenu>

namespace zeph {

GamesMenu::GamesMenu(const Context &context, const ToolParts &parts)
    : m_context(context), m_parts(parts), m_games(context.paths.iniPath),
      m_launch(context, parts, m_games)
{
    MenuActions &actions = parts.actions;
    m_menu = new MenuArray(context.dialogs, *actions.menu(u"mnuGames"),
                           actions.action(u"mnuGamesSortDivider"), u"mnuGameArray"_s,
                           [this](int place) { m_launch.mnuGameArray_Click(place); });
    actions.connectTo(u"mnuGamesAdd", [this] { mnuGamesAdd_Click(); });
    actions.connectTo(u"mnuGamesSort", [this] { m_games.SortGamesAlphabetically(); });
    connect(&m_games, &Games::changed, this, &GamesMenu::showGames);
    showGames();
    applySettings();
}

void GamesMenu::applySettings()
{
    const QString caption = m_context.settings.of<MenuSettings>().GamesCaption;
    m_parts.actions.menu(u"mnuGames")
        ->setTitle(caption.isEmpty() ? defaultOf(&MenuSettings::GamesCaption) : caption);
}

void GamesMenu::mnuGamesAdd_Click()
{
    const Document &joystick = m_parts.documents.joystick();
    EnterGameName window(m_context.paths, m_context.dialogs,
                         isUntitled(joystick.name()) ? QString() : joystick.path(),
                         &m_parts.mainWindow);
    new ForeignKeyBSupport(m_context.keyboard, m_context.settings.of<DocumentSettings>(), &window);
    if (window.exec() == QDialog::Accepted) {
        m_games.update(window.game());
    }
}

void GamesMenu::showGames()
{
    QStringList names;
    for (const Game &game : m_games.list()) {
        names.append(game.GameName);
    }
    m_menu->setCaptions(names);
    for (const QStringView name : { u"mnuGamesDivider", u"mnuGamesSortDivider", u"mnuGamesSort" }) {
        m_parts.actions.action(name)->setVisible(!names.isEmpty());
    }
}

} // namespace zeph
