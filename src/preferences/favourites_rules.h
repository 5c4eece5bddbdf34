// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What editing does to the favourites. Places are 0-based.

#include "lists/favourites.h"

namespace zeph {

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

} // namespace zeph
