// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/favourites.h"

#include "platform/core/most_recent.h"
#include "platform/core/paths.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"

#include <algorithm>

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

} // namespace zeph
