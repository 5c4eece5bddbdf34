// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/favourites_rules.h"

#include "platform/core/storable.h"
#include "preferences/list_rules.h"

#include <algorithm>

namespace zeph {

QStringList namesOf(const QList<Favourite> &list)
{
    QStringList names;
    for (const Favourite &favourite : list) {
        names.append(favourite.name);
    }
    return names;
}

qsizetype defaultPlace(const Favourites &favourites)
{
    const auto &list = favourites.list;
    const auto found = std::ranges::find(list, favourites.nameToLoad, &Favourite::name);
    return favourites.nameToLoad.isEmpty() || found == list.end() ? -1 : found - list.begin();
}

Favourites editedFavourites(Favourites before, qsizetype place, const Favourite &typed)
{
    const bool isDefault = defaultPlace(before) == place;
    const QString name = nameWhileTyping(typed.name, namesOf(before.list), place);
    Favourite &favourite = before.list[place];
    favourite.name = name;
    favourite.joystickPath = pathOrNone(storableOr(typed.joystickPath, favourite.joystickPath));
    favourite.macroPath = pathOrNone(storableOr(typed.macroPath, favourite.macroPath));
    if (isDefault) {
        before.nameToLoad = favourite.name;
    }
    return before;
}

Favourites withNewFavourite(Favourites before, const Favourite &fields)
{
    if (before.list.size() >= mostFavourites) {
        return before;
    }
    const QString name = storableOr(fields.name, {});
    before.list.prepend(
        { uniqueName(name.isEmpty() ? u"New favourite"_s : name, namesOf(before.list)),
          pathOrNone(storableOr(fields.joystickPath, {})),
          pathOrNone(storableOr(fields.macroPath, {})) });
    return before;
}

Favourites withoutFavourite(Favourites before, qsizetype place)
{
    if (defaultPlace(before) == place) {
        before.loadOnStart = false;
        before.nameToLoad.clear();
    }
    before.list.removeAt(place);
    return before;
}

Favourites withDefault(Favourites before, qsizetype place)
{
    before.nameToLoad = before.list.at(place).name;
    return before;
}

QString autoloadCaption(bool restores)
{
    return restores ? u"Autoload &information is ignored"_s
                    : u"AutoLoad when appl&ication starts"_s;
}

} // namespace zeph
