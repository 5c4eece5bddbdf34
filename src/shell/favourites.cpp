// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/favourites.h"

#include "platform/core/paths.h"
#include "platform/dialogs.h"

#include <algorithm>

namespace zeph {

namespace {

constexpr qint32 mostFavourites = 50;
constexpr QStringView section = u"Favourites";

bool openOne(const QString &kind, const QString &path, const QString &name, Dialogs &dialogs,
             const std::function<void(const QString &)> &open)
{
    if (path == u"None" || path.isEmpty()) {
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
    open(existing);
    return true;
}

} // namespace

QList<Favourite> readFavourites(const ProfileFile &store)
{
    QList<Favourite> favourites;
    const qint32 count = std::clamp(store.integer(section, u"FavArrayNum", 0), 0, mostFavourites);
    for (qint32 i = 1; i <= count; ++i) {
        const QString number = QString::number(i);
        favourites.append({ store.text(section, u"FavName"_s + number),
                            store.text(section, u"FavJFPath"_s + number, u"None"_s),
                            store.text(section, u"FavMFPath"_s + number, u"None"_s) });
    }
    return favourites;
}

std::optional<Favourite> autoloadFavourite(const ProfileFile &store)
{
    const QString name = store.text(section, u"FavNameToLoad");
    if (store.integer(section, u"FavLoadOnStart", 0) != 1 || name.isEmpty()) {
        return std::nullopt;
    }
    const QList<Favourite> favourites = readFavourites(store);
    const auto found = std::ranges::find(favourites, name, &Favourite::name);
    return found == favourites.end() ? std::nullopt : std::optional(*found);
}

bool openFavourite(const Favourite &favourite, Dialogs &dialogs,
                   const std::function<void(const QString &)> &open)
{
    const bool macro = openOne(u"Macro"_s, favourite.macroPath, favourite.name, dialogs, open);
    const bool joystick =
        openOne(u"Joystick"_s, favourite.joystickPath, favourite.name, dialogs, open);
    return macro && joystick;
}

} // namespace zeph
