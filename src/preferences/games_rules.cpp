// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/games_rules.h"

#include "platform/core/storable.h"
#include "preferences/list_rules.h"

namespace zeph {

QStringList namesOf(const QList<Game> &games)
{
    QStringList names;
    for (const Game &game : games) {
        names.append(game.GameName);
    }
    return names;
}

QList<Game> editedGames(QList<Game> before, qsizetype place, const Game &typed)
{
    const QString name = nameWhileTyping(typed.GameName, namesOf(before), place);
    Game &game = before[place];
    game.GameName = name;
    game.GamePath = storableOr(typed.GamePath, game.GamePath);
    game.GameDIRPath = storableOr(typed.GameDIRPath, game.GameDIRPath);
    game.GameJF = storableOr(typed.GameJF, game.GameJF);
    game.GameJFmode = typed.GameJFmode;
    return before;
}

QList<Game> withNewGame(QList<Game> before, const QString &filesFolder)
{
    if (before.size() >= mostGames) {
        return before;
    }
    Game game = startingGame(filesFolder, {});
    game.GameName = uniqueName(u"New game"_s, namesOf(before));
    before.prepend(game);
    return before;
}

} // namespace zeph
