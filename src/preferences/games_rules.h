// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What editing does to the games. Places are 0-based.

#include "toolchain/games/games.h"

namespace zeph {

QStringList namesOf(const QList<Game> &games);

/// The games with one of them as its fields stand. What it was before is needed for every
/// keystroke, since a name is never two games' and never empty.
QList<Game> editedGames(QList<Game> before, qsizetype place, const Game &typed);

/// A new one on top, with a name to change. Nothing happens when the list is full, so that none
/// falls off.
QList<Game> withNewGame(QList<Game> before, const QString &filesFolder);

} // namespace zeph
