// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/gamespage.h"

#include "preferences/list_rules.h"
#include "preferences/namedlist.h"
#include "toolchain/games/gamefields.h"
#include "ui_gamespage.h"

namespace zeph {

namespace {

constexpr NamedListTexts listTexts = {
    { u"ListGames", u"&Your games:", u"Your games, as the Games menu shows them" },
    { u"cmdGamesAdd", u"Add gam&e", u"Puts a new game on top for you to fill in; 30 are the most" },
    { u"cmdGamesRemove", u"&Remove",
      u"Takes the selected game off the list; the Delete key does it too. The game itself stays on "
      u"your disk, and your high scores with it" },
    { u"cmdGamesSort", u"Sort a&lphabetically", u"Sorts the games by their names" },
};

} // namespace

GamesPage::GamesPage(const Context &context, Games &games, QWidget *parent)
    : PreferencesPage(parent), m_store(games), m_filesFolder(context.paths.filesFolder()),
      m_games(games.list()), m_ui(std::make_unique<Ui::GamesPage>()),
      m_list(new NamedList(listTexts, this))
{
    m_ui->setupUi(this);
    m_ui->layoutPage->insertWidget(0, m_list, 1);
    m_fields = new GameFields(context.paths, context.dialogs, m_ui->groupGame);
    m_ui->layoutFields->addWidget(m_fields);
    change(m_games, m_games.isEmpty() ? -1 : 0);
    connect(m_fields, &GameFields::edited, this, &GamesPage::read);
    connect(m_fields, &GameFields::left, this, &GamesPage::settle);
    connectList();
}

GamesPage::~GamesPage() = default;

void GamesPage::connectList()
{
    connect(m_list, &NamedList::chosen, this, &GamesPage::settle);
    connect(m_list, &NamedList::addAsked, this, [this] {
        change(withNewGame(m_games, m_filesFolder), 0);
        m_fields->startNaming();
    });
    connect(m_list, &NamedList::removeAsked, this, [this] {
        QList<Game> left = m_games;
        left.removeAt(m_list->row());
        change(left, placeAfterRemoval(m_list->row(), left.size()));
    });
    connect(m_list, &NamedList::sortAsked, this, [this] {
        QList<Game> sorted = m_games;
        sortGames(sorted);
        change(sorted, sorted.indexOf(m_games.value(m_list->row())));
    });
}

void GamesPage::read()
{
    const qsizetype row = m_list->row();
    if (row >= 0) {
        m_games = editedGames(m_settled, row, m_fields->game());
        m_list->setName(row, m_games[row].GameName);
    }
}

void GamesPage::settle()
{
    m_settled = m_games;
    UpdateGamesControls();
}

void GamesPage::change(const QList<Game> &games, qsizetype row)
{
    m_games = games;
    m_list->setNames(namesOf(games), row);
    m_list->setRoom(games.size() < mostGames);
    settle();
}

void GamesPage::UpdateGamesControls()
{
    const qsizetype row = m_list->row();
    if (row < 0) {
        DisableGamesControls();
        return;
    }
    m_fields->setGame(m_games[row]);
    m_ui->groupGame->setEnabled(true);
}

void GamesPage::DisableGamesControls()
{
    m_fields->setGame({});
    m_ui->groupGame->setEnabled(false);
}

void GamesPage::collect()
{
    m_store.replace(m_games);
}

} // namespace zeph
