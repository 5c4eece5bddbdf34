// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The rules of every list of named things in Preferences. Places are 0-based.

#include "lists/custom_apps.h"
#include "lists/favourites.h"
#include "platform/core/base.h"
#include "toolchain/games/games.h"

#include <QStringList>

namespace zeph {

/// The wanted name or, if it is taken, with the first free number after it, as in "Falcon (2)". A
/// long name is cut before the number, so that the store can hold both.
QString uniqueName(const QString &wanted, const QStringList &taken);

/// The name of the entry at a place while one is typed for it: the typed one, numbered if another
/// entry has it. The old name stays when nothing is left of the typed one or the store cannot hold
/// it, even if the store already has the old name twice.
QString nameWhileTyping(const QString &typed, QStringList names, qsizetype place);

/// The entry to select after the one at a place was removed; `left` is how many remain. -1 when
/// none is left.
qsizetype placeAfterRemoval(qsizetype place, qsizetype left);

// The rules for editing favourites. Places are 0-based.

QStringList namesOf(const QList<Favourite> &list);

/// The place of the favourite to autoload; -1 when there is none.
qsizetype defaultPlace(const Favourites &favourites);

/// The favourites with the fields taken over into the one at a place. Pass the list from before the
/// typing for every keystroke: only so does the favourite to autoload keep that role under each
/// typed name, and no name is ever given to two.
Favourites editedFavourites(Favourites before, qsizetype place, const Favourite &typed);

/// The favourites with a new one in front, taken from the fields; without a name in them it is
/// called "New favourite". A full list stays as it is, so that no favourite is lost.
Favourites withNewFavourite(Favourites before, const Favourite &fields);

/// The favourites without the one at that place; removing the one to autoload switches autoload
/// off.
Favourites withoutFavourite(Favourites before, qsizetype place);

Favourites withDefault(Favourites before, qsizetype place);

/// The caption of the autoload tick; `restores` says that the files of the last run are reopened,
/// in which case autoload does nothing.
QString autoloadCaption(bool restores);

// The rules for editing games. Places are 0-based.

QStringList namesOf(const QList<Game> &games);

/// The games with the fields taken over into the one at a place. Pass the list from before the
/// typing for every keystroke; a name is never empty and never given to two games.
QList<Game> editedGames(QList<Game> before, qsizetype place, const Game &typed);

/// The games with a new one in front, called "New game". A full list stays as it is, so that no
/// game is lost.
QList<Game> withNewGame(QList<Game> before, const QString &filesFolder);

// The rules for the fields of the custom applications.

/// The question about a path that no system starts by itself; on Yes newPath replaces the path.
struct AppletQuestion {
    QString title;
    QString text;
    QString newPath;

    friend bool operator==(const AppletQuestion &, const AppletQuestion &) = default;
};

/// The question about a control panel applet or a help file, which is a path that ends in "cpl" or
/// "hlp" in any case. No value for other paths, and none when the path already names the program
/// that opens it.
std::optional<AppletQuestion> appletQuestion(const QString &path, const QString &windowsFolder);

/// Whether an application with this path can be shown: there is a path, and it is no folder's.
bool canBeUsed(const QString &path);
/// The applications to store: with trimmed fields, without a tick where there is no path, and with
/// the text of `before` for each text that the store cannot hold.
CustomApps settledApps(CustomApps apps, const CustomApps &before);
/// The name for a program that the user has not named: its file name without folder and extension.
QString appNameFor(const QString &path);

} // namespace zeph
