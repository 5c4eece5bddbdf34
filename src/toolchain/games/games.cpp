// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/games.h"

#include "platform/core/most_recent.h"
#include "platform/core/profile_list.h"

#include <limits>

namespace zeph {

namespace {

constexpr QStringView fields[] = { u"GameName", u"GamePath", u"GameDIRPath", u"GameJF",
                                   u"GameJFmode" };
constexpr ProfileListKeys keys = { u"Games", u"GameArrayNum", fields, mostGames };

/// A number that does not fit 16 bits becomes the nearest that does, which is none of the modes.
qint16 modeOf(const QString &value)
{
    using Limits = std::numeric_limits<qint16>;
    return qint16(std::clamp<qint32>(profile::integerOf(value, 0), Limits::min(), Limits::max()));
}

} // namespace

Game startingGame(const QString &filesFolder, const QString &suggestedFile)
{
    const bool suggested = !suggestedFile.isEmpty();
    return { {},
             {},
             {},
             suggested ? suggestedFile : filesFolder + defaultGameFile.toString(),
             qint16(suggested ? GameMode::Download : GameMode::Windows) };
}

void sortGames(QList<Game> &games)
{
    std::stable_sort(games.begin(), games.end(), [](const Game &a, const Game &b) {
        return a.GameName.compare(b.GameName, Qt::CaseInsensitive) < 0;
    });
}

Games::Games(const QString &iniPath, QObject *parent) : QObject(parent), m_store(iniPath)
{
    for (const ProfileRow &row : readProfileList(m_store, keys)) {
        m_list.append({ row[0], row[1], row[2], row[3], modeOf(row[4]) });
    }
}

void Games::update(const Game &game)
{
    putFirst(m_list, game, keys.most,
             [](const Game &a, const Game &b) { return a.GameName == b.GameName; });
    save();
}

void Games::SortGamesAlphabetically()
{
    sortGames(m_list);
    save();
}

void Games::replace(const QList<Game> &games)
{
    m_list = games.first(std::min<qsizetype>(games.size(), mostGames));
    save();
}

void Games::save()
{
    QList<ProfileRow> rows;
    for (const Game &game : std::as_const(m_list)) {
        rows.append({ game.GameName, game.GamePath, game.GameDIRPath, game.GameJF,
                      QString::number(game.GameJFmode) });
    }
    // A store that cannot be written is not told: the list then lasts as long as the run.
    (void)writeProfileList(m_store, keys, rows);
    Q_EMIT changed();
}

} // namespace zeph
