// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/list_rules.h"

#include "platform/core/paths.h"
#include "platform/core/profile_list.h"
#include <algorithm>

namespace zeph {

QString uniqueName(const QString &wanted, const QStringList &taken)
{
    QString name = wanted;
    for (int number = 2; taken.contains(name); ++number) {
        const QString suffix = u" (%1)"_s.arg(number);
        name = wanted.left(longestStorable - suffix.size()) + suffix;
    }
    return name;
}

QString nameWhileTyping(const QString &typed, QStringList names, qsizetype place)
{
    const QString own = names.takeAt(place);
    const QString name = storableOr(typed, own);
    return name.isEmpty() || name == own ? own : uniqueName(name, names);
}

qsizetype placeAfterRemoval(qsizetype place, qsizetype left)
{
    return std::min(place, left - 1);
}

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

QStringList namesOf(const QList<Game> &games)
{
    QStringList names;
    for (const Game &game : games) {
        names.append(game.GameName);
    }
    return names;
}

QList<Game> editedGames(QList<Game> before, qsizetype place, const Game &typed)
{
    const QString name = nameWhileTyping(typed.GameName, namesOf(before), place);
    Game &game = before[place];
    game.GameName = name;
    game.GamePath = storableOr(typed.GamePath, game.GamePath);
    game.GameDIRPath = storableOr(typed.GameDIRPath, game.GameDIRPath);
    game.GameJF = storableOr(typed.GameJF, game.GameJF);
    game.GameJFmode = typed.GameJFmode;
    return before;
}

QList<Game> withNewGame(QList<Game> before, const QString &filesFolder)
{
    if (before.size() >= mostGames) {
        return before;
    }
    Game game = startingGame(filesFolder, {});
    game.GameName = uniqueName(u"New game"_s, namesOf(before));
    before.prepend(game);
    return before;
}

namespace {

/// Files that only a program of Windows can open.
struct Applet {
    QStringView ending;
    QStringView program;
    QStringView title;
};

constexpr Applet applets[] = {
    { u"cpl", u"\\control.exe", u"Information for using control panel applets" },
    { u"hlp", u"\\winhlp32.exe", u"Information for using help files" },
};

constexpr QStringView quotes = u"\"";

/// The path without blanks and quotes at its end.
QString unclosed(const QString &path)
{
    QString end = path.trimmed();
    while (end.endsWith(quotes)) {
        end.chop(1);
    }
    return end;
}

} // namespace

std::optional<AppletQuestion> appletQuestion(const QString &path, const QString &windowsFolder)
{
    for (const Applet &applet : applets) {
        // The program may be named without its folder, hence without the separator.
        if (!unclosed(path).endsWith(applet.ending, Qt::CaseInsensitive)
            || path.contains(applet.program.sliced(1), Qt::CaseInsensitive)) {
            continue;
        }
        const QString prefix = windowsFolder + applet.program.toString() + u' ';
        const QString newPath = prefix + path.trimmed();
        return AppletQuestion{
            applet.title.toString(),
            u"I see you're trying to run one of the control panel's programs. If you want to do "
            "this, then you need to add "_s
                + prefix + u"to your path so that it looks like this: "_s + newPath
                + u". Would you like me to do this for you now?"_s,
            newPath
        };
    }
    return std::nullopt;
}

bool canBeUsed(const QString &path)
{
    return !path.trimmed().isEmpty() && !folderExists(path.trimmed());
}

CustomApps settledApps(CustomApps apps, const CustomApps &before)
{
    for (size_t i = 0; i < apps.size(); ++i) {
        CustomApp &app = apps[i];
        app.CustomAppName = storableOr(app.CustomAppName, before[i].CustomAppName);
        app.CustomAppPath = storableOr(app.CustomAppPath, before[i].CustomAppPath);
        app.CustomAppUse = app.CustomAppUse && canBeUsed(app.CustomAppPath);
    }
    return apps;
}

QString appNameFor(const QString &path)
{
    const QString name = nameOf(unclosed(path));
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

} // namespace zeph
