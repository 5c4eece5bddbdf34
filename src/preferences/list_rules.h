// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What holds for every list of named things that Preferences edits. Places are 0-based.

#include "lists/custom_apps.h"
#include "lists/favourites.h"
#include "platform/core/base.h"
#include "toolchain/games/games.h"

#include <QStringList>

namespace zeph {

/// The name itself, or with the first free number behind it, as in "Falcon (2)".
QString uniqueName(const QString &wanted, const QStringList &taken);

/// The name that the entry at a place has while a name is typed for it: the typed one, with a
/// number when another entry has it already, and its own when nothing remains or the store cannot
/// hold what does. Its own stays even where a store of somebody's making has it twice.
QString nameWhileTyping(const QString &typed, QStringList names, qsizetype place);

/// Which entry is selected when the one at a place went; -1 when none is left.
qsizetype placeAfterRemoval(qsizetype place, qsizetype left);

// What editing does to the favourites. Places are 0-based.

QStringList namesOf(const QList<Favourite> &list);

/// The place of the favourite that is the default for autoload; -1 when there is none.
qsizetype defaultPlace(const Favourites &favourites);

/// The favourites with one of them as its fields stand. What it was before is needed for every
/// keystroke: a default for autoload stays it under each name, and a name is never two entries'.
Favourites editedFavourites(Favourites before, qsizetype place, const Favourite &typed);

/// A new one on top, made from what the fields show; empty fields give one with a name to change.
/// Nothing happens when the list is full, so that none falls off.
Favourites withNewFavourite(Favourites before, const Favourite &fields);

/// Without the one at that place; with the default for autoload, autoloading goes too.
Favourites withoutFavourite(Favourites before, qsizetype place);

Favourites withDefault(Favourites before, qsizetype place);

/// What the autoload tick says: files that are opened again make it idle.
QString autoloadCaption(bool restores);

// What editing does to the games. Places are 0-based.

QStringList namesOf(const QList<Game> &games);

/// The games with one of them as its fields stand. What it was before is needed for every
/// keystroke, since a name is never two games' and never empty.
QList<Game> editedGames(QList<Game> before, qsizetype place, const Game &typed);

/// A new one on top, with a name to change. Nothing happens when the list is full, so that none
/// falls off.
QList<Game> withNewGame(QList<Game> before, const QString &filesFolder);

// The rules of the custom applications' fields.

/// What is asked about a path that no system starts by itself; Yes puts newPath into the field.
struct AppletQuestion {
    QString title;
    QString text;
    QString newPath;

    friend bool operator==(const AppletQuestion &, const AppletQuestion &) = default;
};

/// The question about a control panel applet or a help file: a path that ends in "cpl" or "hlp", in
/// any case. None for other paths, and none when the program that it needs stands in it.
std::optional<AppletQuestion> appletQuestion(const QString &path, const QString &windowsFolder);

/// Whether an application with this path can be shown.
bool canBeUsed(const QString &path);
/// The applications as they are kept: without blanks around the fields, as before where the store
/// could not give a text back, and without a tick where there is no path.
CustomApps settledApps(CustomApps apps, const CustomApps &before);
/// A name for a program that has none: its file's, without folder and extension.
QString appNameFor(const QString &path);

} // namespace zeph
