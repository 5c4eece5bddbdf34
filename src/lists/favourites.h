// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Favourites: pairs of files under a name of the user's.

#include "platform/core/profile_file.h"

#include <functional>
#include <span>

namespace zeph {

class Dialogs;

/// A path of "None" stands for no file of that kind.
struct Favourite {
    QString name;
    QString joystickPath;
    QString macroPath;

    friend bool operator==(const Favourite &, const Favourite &) = default;
};

/// The path that stands for no file.
constexpr QStringView noFavouriteFile = u"None";
/// A path as a favourite holds it: an empty one, and the word itself in any case, is "None".
QString pathOrNone(const QString &path);

constexpr qint32 mostFavourites = 50;

struct Favourites {
    /// Most recently added first; at most mostFavourites.
    QList<Favourite> list;
    /// Whether one of them is opened at start, and which.
    bool loadOnStart = false;
    QString nameToLoad;

    friend bool operator==(const Favourites &, const Favourites &) = default;
};

Favourites readFavourites(const ProfileFile &store);
Expected<void, FileError> writeFavourites(const ProfileFile &store, const Favourites &favourites);

/// Puts a favourite at place 1; one of that name is replaced, a 51st pushes the last one out.
void updateFavourites(Favourites &favourites, const Favourite &favourite);
void SortFavourites(Favourites &favourites);

/// The favourite to open at start; no value when none is wanted, or it is gone.
std::optional<Favourite> autoloadFavourite(const Favourites &favourites);

/// Opens the favourite's files, the macro file first; a missing one is told. True when both were
/// opened, which the given function tells of each.
bool openFavourite(const Favourite &favourite, Dialogs &dialogs,
                   const std::function<bool(const QString &path)> &open);

// The flight simulators whose files Zeph knows by name.

struct FlightSim {
    QStringView name;
    QStringView joystickFile;
    QStringView macroFile;
};

/// In the order in which they become favourites: the last one comes out on top.
std::span<const FlightSim> flightSimTable();

/// The favourites of those whose joystick file lies in the folder, in the table's order.
QList<Favourite> SetupFlightSimFiles(const QString &filesFolder);

} // namespace zeph
