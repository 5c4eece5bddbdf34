// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Favourites: pairs of files under a name of the user's.

#include "platform/core/profile_file.h"

#include <functional>

namespace zeph {

class Dialogs;

/// A path of "None" stands for no file of that kind.
struct Favourite {
    QString name;
    QString joystickPath;
    QString macroPath;
};

/// The store's favourites, most recently added first; at most 50.
QList<Favourite> readFavourites(const ProfileFile &store);

/// The favourite to open at start; no value when none is wanted, or it is gone.
std::optional<Favourite> autoloadFavourite(const ProfileFile &store);

/// Opens the favourite's files, the macro file first; a missing one is told. True when both were
/// opened.
bool openFavourite(const Favourite &favourite, Dialogs &dialogs,
                   const std::function<void(const QString &path)> &open);

} // namespace zeph
