// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/favourites.h"

#include "platform/core/most_recent.h"
#include "platform/core/paths.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr QStringView fields[] = { u"FavName", u"FavJFPath", u"FavMFPath" };
constexpr ProfileListKeys keys = { u"Favourites", u"FavArrayNum", fields, mostFavourites };
constexpr QStringView loadOnStartKey = u"FavLoadOnStart";
constexpr QStringView nameToLoadKey = u"FavNameToLoad";

bool openOne(const QString &kind, const QString &path, const QString &name, Dialogs &dialogs,
             const std::function<bool(const QString &)> &open)
{
    if (path == noFavouriteFile || path.isEmpty()) {
        return false;
    }
    const QString existing = existingPath(path);
    if (existing.isEmpty()) {
        dialogs.tell(kind + u" file not found buddy"_s,
                     u"I can't find the "_s + kind.toLower()
                         + u" file of this favourite. Currently your settings say that it should "
                           "be located here: "_s
                         + path
                         + u". You need to open up the Preferences Window at some time and edit "
                           "the file locations for "_s
                         + name,
                     BoxIcon::Exclamation);
        return false;
    }
    return open(existing);
}

} // namespace

QString pathOrNone(const QString &path)
{
    const QString trimmed = path.trimmed();
    const bool none =
        trimmed.isEmpty() || trimmed.compare(noFavouriteFile, Qt::CaseInsensitive) == 0;
    return none ? noFavouriteFile.toString() : trimmed;
}

Favourites readFavourites(const ProfileFile &store)
{
    Favourites favourites;
    favourites.loadOnStart = store.integer(keys.section, loadOnStartKey, 0) == 1;
    favourites.nameToLoad = store.text(keys.section, nameToLoadKey);
    for (const ProfileRow &row : readProfileList(store, keys)) {
        favourites.list.append({ row[0], pathOrNone(row[1]), pathOrNone(row[2]) });
    }
    return favourites;
}

Expected<void, FileError> writeFavourites(const ProfileFile &store, const Favourites &favourites)
{
    QList<ProfileRow> rows;
    for (const Favourite &favourite : favourites.list) {
        rows.append({ favourite.name, favourite.joystickPath, favourite.macroPath });
    }
    const QString section = keys.section.toString();
    return writeProfileList(
        store, keys, rows,
        { { section, loadOnStartKey.toString(), QString::number(favourites.loadOnStart ? 1 : 0) },
          { section, nameToLoadKey.toString(), favourites.nameToLoad } });
}

void updateFavourites(Favourites &favourites, const Favourite &favourite)
{
    putFirst(favourites.list, favourite, keys.most,
             [](const Favourite &a, const Favourite &b) { return a.name == b.name; });
}

void SortFavourites(Favourites &favourites)
{
    std::stable_sort(favourites.list.begin(), favourites.list.end(),
                     [](const Favourite &a, const Favourite &b) {
                         return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
                     });
}

std::optional<Favourite> autoloadFavourite(const Favourites &favourites)
{
    if (!favourites.loadOnStart || favourites.nameToLoad.isEmpty()) {
        return std::nullopt;
    }
    const auto found = std::ranges::find(favourites.list, favourites.nameToLoad, &Favourite::name);
    return found == favourites.list.end() ? std::nullopt : std::optional(*found);
}

bool openFavourite(const Favourite &favourite, Dialogs &dialogs,
                   const std::function<bool(const QString &)> &open)
{
    const bool macro = openOne(u"Macro"_s, favourite.macroPath, favourite.name, dialogs, open);
    const bool joystick =
        openOne(u"Joystick"_s, favourite.joystickPath, favourite.name, dialogs, open);
    return macro && joystick;
}

namespace {

// clang-format off
constexpr std::array sims = {
    FlightSim{ u"WarBirds III", u"TM Warbirds 3.tmj", u"TM Warbirds 3.tmm" },
    FlightSim{ u"Total Air War", u"TM Total Air War.tmj", u"TM Total Air War.tmm" },
    FlightSim{ u"Secret Demons Over Europe", u"TM SDOE.tmj", u"TM SDOE.tmm" },
    FlightSim{ u"SAR 4 Coastal Heroes", u"Coastal Heroes SAR 4.tmj", u"Coastal Heroes SAR 4.tmm" },
    FlightSim{ u"Mig Alley", u"TM Mig Alley.tmj", u"TM Mig Alley.tmm" },
    FlightSim{ u"Longbow 2", u"TM Longbow 2.tmj", u"TM Longbow 2.tmm" },
    FlightSim{ u"LOMAC Flaming Cliffs 1.11", u"lomac_flaming.tmj", u"lomac_flaming.tmm" },
    FlightSim{ u"LOMAC 1.02", u"lomac_russian.tmj", u"lomac.tmm" },
    FlightSim{ u"Jane's WW2 Fighters", u"TM Janes WW2 Fighters.tmj", u"TM Janes WW2 Fighters.tmm" },
    FlightSim{ u"Jane's USAF", u"TM Janes USAF.tmj", u"TM Janes USAF.tmm" },
    FlightSim{ u"Jane's F/A-18 with Team Super Hornet v3", u"JF18-TSHv3.tmj", u"JF18-TSHv3.tmm" },
    FlightSim{ u"Jane's F/A-18", u"TM Janes F-18.tmj", u"TM Janes F-18.tmm" },
    FlightSim{ u"Jane's F-15", u"TM Janes F-15.tmj", u"TM Janes F-15.tmm" },
    FlightSim{ u"Israeli Air Force", u"TM Janes IAF.tmj", u"TM Janes IAF.tmm" },
    FlightSim{ u"IL-2 Sturmovik", u"IL2.tmj", u"IL2.tmm" },
    FlightSim{ u"Independence War 2", u"TM I War2.tmj", u"TM I War2.tmm" },
    FlightSim{ u"Hornet Korea", u"TM Hornet Korea.tmj", u"TM Hornet Korea.tmm" },
    FlightSim{ u"Forgotten Battles", u"FB.tmj", u"FB.tmm" },
    FlightSim{ u"Flight Unlimited 3", u"TM Flight Unlimited 3.tmj", u"TM Flight Unlimited 3.tmm" },
    FlightSim{ u"Flight Simulator 2002", u"FS2002.tmj", u"FS2002.tmm" },
    FlightSim{ u"Flanker 2.5", u"TM Flanker25.tmj", u"TM Flanker25.tmm" },
    FlightSim{ u"Falcon 4 Real HOTAS", u"TM F4 Real Hotas.tmj", u"TM F4 Real Hotas.tmm" },
    FlightSim{ u"Falcon 4 Allied Force", u"F4AF.tmj", u"F4AF.tmm" },
    FlightSim{ u"F-16 Aggressor", u"TM F-16 Aggressor.tmj", u"TM F-16 Aggressor.tmm" },
    FlightSim{ u"F/A-18E Super Hornet", u"TM DI Superhornet.tmj", u"TM DI Superhornet.tmm" },
    FlightSim{ u"European Air War", u"TM Eaw.tmj", u"TM Eaw.tmm" },
    FlightSim{ u"Eurofighter Typhoon", u"TM Eurofighter Typhoon.tmj", u"TM Eurofighter Typhoon.tmm" },
    FlightSim{ u"Enemy Engaged Comanche Hokum", u"TM EECH.tmj", u"TM EECH.tmm" },
    FlightSim{ u"Crimson Skies", u"TM Crimson Skies.tmj", u"TM Crimson Skies.tmm" },
    FlightSim{ u"Combat Flight Simulator 3", u"CFS3.tmj", u"CFS3.tmm" },
    FlightSim{ u"Battle of Britain", u"TM BoB.tmj", u"TM BoB.tmm" },
    FlightSim{ u"B-17 Flying Fortress", u"TM B17.tmj", u"TM B17.tmm" },
    FlightSim{ u"Air Warrior III", u"TM Air Warrior 3.tmj", u"TM Air Warrior 3.tmm" },
};
// clang-format on

} // namespace

std::span<const FlightSim> flightSimTable()
{
    return sims;
}

QList<Favourite> SetupFlightSimFiles(const QString &filesFolder)
{
    QList<Favourite> found;
    for (const FlightSim &sim : sims) {
        const QString joystick = filesFolder + sim.joystickFile.toString();
        if (fileExists(joystick)) {
            found.append({ sim.name.toString(), joystick, filesFolder + sim.macroFile.toString() });
        }
    }
    return found;
}

} // namespace zeph
