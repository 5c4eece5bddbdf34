// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "toolchain/games/games.h"

#include <memory>

namespace zeph {

class GameFields;
class NamedList;

namespace Ui {
class GamesPage;
}

/// The games: a copy of them, which the fields change at every keystroke and which goes into the
/// store when the window closes.
class GamesPage : public PreferencesPage
{
    Q_OBJECT
public:
    GamesPage(const Context &context, Games &games, QWidget *parent = nullptr);
    ~GamesPage() override;

    void collect() override;

private:
    void connectList();
    /// What the fields show becomes the selected game.
    void read();
    /// What has been typed so far is what the next keystroke is measured by.
    void settle();
    void change(const QList<Game> &games, qsizetype row);
    void UpdateGamesControls();
    void DisableGamesControls();

    Games &m_store;
    const QString m_filesFolder;
    QList<Game> m_games;
    /// As they were before the field that is being typed into was touched.
    QList<Game> m_settled;
    std::unique_ptr<Ui::GamesPage> m_ui;
    NamedList *m_list;
    GameFields *m_fields;
};

} // namespace zeph
