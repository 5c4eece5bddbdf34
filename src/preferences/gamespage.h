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

/// Edits a copy of the games at every keystroke; the copy goes into the settings store when the
/// window closes.
class GamesPage : public PreferencesPage
{
    Q_OBJECT
public:
    GamesPage(const Context &context, Games &games, QWidget *parent = nullptr);
    ~GamesPage() override;

    void collect() override;

private:
    void connectList();
    /// Takes the fields over into the selected game.
    void read();
    /// Makes the present list the starting point of further typing.
    void settle();
    void change(const QList<Game> &games, qsizetype row);
    void UpdateGamesControls();
    void DisableGamesControls();

    Games &m_store;
    const QString m_filesFolder;
    QList<Game> m_games;
    /// The list before the typing in the present field.
    QList<Game> m_settled;
    std::unique_ptr<Ui::GamesPage> m_ui;
    NamedList *m_list;
    GameFields *m_fields;
};

} // namespace zeph
