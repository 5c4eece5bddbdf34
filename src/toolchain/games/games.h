// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The user's games: what starts them, and what the Cougar needs for each.

#include "platform/core/profile_file.h"

#include <QObject>

namespace zeph {

/// What is done to the Cougar before a game starts; the numbers are those in the store.
enum class GameMode : qint16 {
    Download = 0, ///< its own joystick file is downloaded
    Windows = 1, ///< the stick goes into Windows mode
    DownloadDefault = 2 ///< the joystick file for all games is downloaded
};

/// The joystick file for all games, in the Files folder.
constexpr QStringView defaultGameFile = u"TM Default for games.tmj";

struct Game {
    QString GameName; ///< caption on the Games menu, unique
    QString GamePath; ///< command with its switches, or a web address
    QString GameDIRPath; ///< working directory
    QString GameJF; ///< joystick file to download
    qint16 GameJFmode = 0; ///< a GameMode; for any other number nothing is done to the Cougar

    friend bool operator==(const Game &, const Game &) = default;
};

constexpr qint32 mostGames = 30;

/// A new game with a joystick file suggested for it; if that is empty, with the file for all games
/// and the stick in Windows mode.
Game startingGame(const QString &filesFolder, const QString &suggestedFile);

/// Sorts by name, without regard to case.
void sortGames(QList<Game> &games);

/// The list of games, most recently used first, at most mostGames. Every change goes into the
/// store.
class Games : public QObject
{
    Q_OBJECT
public:
    /// Reads the games that the store holds.
    explicit Games(const QString &iniPath, QObject *parent = nullptr);

    const QList<Game> &list() const { return m_list; }

    /// Puts a game at place 1. One of that name is replaced; a 31st pushes the last one out.
    void update(const Game &game);
    void SortGamesAlphabetically();
    /// Replaces the whole list; games beyond mostGames are left out.
    void replace(const QList<Game> &games);

Q_SIGNALS:
    void changed();

private:
    void save();

    ProfileFile m_store;
    QList<Game> m_list;
};

} // namespace zeph
