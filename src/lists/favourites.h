// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Favourites: pairs of files under a name that the user gave.

#include "platform/core/profile_file.h"

#include <functional>
#include <span>

namespace zeph {

class Dialogs;

/// A path is "None" when there is no file of that kind.
struct Favourite {
    QString name;
    QString joystickPath;
    QString macroPath;

    friend bool operator==(const Favourite &, const Favourite &) = default;
};

constexpr QStringView noFavouriteFile = u"None";
/// The form in which a favourite holds a path: "None" for an empty one and for that word in any
/// case.
QString pathOrNone(const QString &path);

constexpr qint32 mostFavourites = 50;

struct Favourites {
    /// Most recently added first; at most mostFavourites.
    QList<Favourite> list;
    /// Whether a favourite is opened at the start, and the name of that favourite.
    bool loadOnStart = false;
    QString nameToLoad;

    friend bool operator==(const Favourites &, const Favourites &) = default;
};

Favourites readFavourites(const ProfileFile &store);
Expected<void, FileError> writeFavourites(const ProfileFile &store, const Favourites &favourites);

/// Puts a favourite in front. It replaces one of the same name; in a full list the last one is
/// dropped.
void updateFavourites(Favourites &favourites, const Favourite &favourite);
void SortFavourites(Favourites &favourites);

/// The favourite to open at the start; no value when none is wanted or it no longer exists.
std::optional<Favourite> autoloadFavourite(const Favourites &favourites);

/// Opens the favourite's files, the macro file first, and tells of a missing one. `open` opens one
/// file and returns whether it did. True when both were opened.
bool openFavourite(const Favourite &favourite, Dialogs &dialogs,
                   const std::function<bool(const QString &path)> &open);

// The flight simulators for which Zeph knows the names of their files.

struct FlightSim {
    QStringView name;
    QStringView joystickFile;
    QStringView macroFile;
};

/// In the order in which they become favourites, so that the last row is on top of the list.
std::span<const FlightSim> flightSimTable();

/// A favourite for each simulator whose joystick file is in the folder, in the table's order.
QList<Favourite> SetupFlightSimFiles(const QString &filesFolder);

} // namespace zeph
