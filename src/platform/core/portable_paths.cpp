// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/portable_paths.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"

#include <QDir>

#include <algorithm>

namespace zeph {

namespace {

struct PathKey {
    QStringView section;
    QStringView key; ///< without the number of a list's item
    PathKind kind = PathKind::File;
};

constexpr PathKey pathKeys[] = {
    { u"FileLocations", u"WinZipFilePath" },
    { u"FileLocations", u"BackUpFolder" },
    { u"FileLocations", u"HotasFolder" },
    { u"Miscellaneous", u"RestoreJoyFile" },
    { u"Miscellaneous", u"RestoreMacroFile" },
    { u"Apps", u"ImageFilePath" },
    { u"Apps", u"TextFilePath" },
    { u"Image Viewer", u"ImagesDirectory" },
    { u"Apps", u"CustomAppPath", PathKind::Command },
    { u"PreviousJoystickFiles", u"JFPath" },
    { u"PreviousMacroFiles", u"MFPath" },
    { u"Favourites", u"FavJFPath" },
    { u"Favourites", u"FavMFPath" },
    { u"Games", u"GamePath", PathKind::Command },
    { u"Games", u"GameDIRPath" },
    { u"Games", u"GameJF" },
    { u"Joystick Layout", u"AutoJLO" },
    { u"Joystick Layout", u"AutoTLO" },
    { u"Joystick Layout", u"AutoCLO" },
    { u"Joystick layouts", u"PreviousJoystickLO" },
    { u"Throttle layouts", u"PreviousThrottleLO" },
    { u"Custom layouts", u"PreviousCustomLO" },
};

constexpr QStringView noFile = u"None";
constexpr QStringView here = u"./";

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity pathCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity pathCase = Qt::CaseSensitive;
#endif

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

bool endsInSeparator(const QString &path)
{
    return !path.isEmpty() && isSeparator(path.back());
}

/// A full path of this system or the other one.
bool isFull(const QString &path)
{
    return isSeparator(path[0]) || (path.size() > 1 && path[0].isLetter() && path[1] == u':');
}

bool isHome(const QString &path)
{
    return path[0] == u'~' && (path.size() == 1 || isSeparator(path[1]));
}

bool isNoFile(const QString &path)
{
    return path.trimmed().compare(noFile, Qt::CaseInsensitive) == 0;
}

/// Whether a command names its program with a folder.
bool namesFolder(const QString &command)
{
    const QStringView program = QStringView(command).first(
        command.indexOf(u' ') < 0 ? command.size() : command.indexOf(u' '));
    return std::ranges::any_of(program, isSeparator);
}

/// One spelling, without dots that go up or stay.
QString cleaned(const QString &path)
{
    const QString clean = nativeSeparators(QDir::cleanPath(path));
    return endsInSeparator(path) ? withClosingSeparator(clean) : clean;
}

bool isGone(const QString &path)
{
    const QString name = endsInSeparator(path) ? path.chopped(1) : path;
    return existingPath(folderOf(name)).isEmpty();
}

/// The longest end of the path under which something lies in the folder is taken for the same file.
QString mended(const QString &path, const QString &base)
{
    const QString native = nativeSeparators(path);
    if (native.startsWith(base, pathCase)) {
        return path;
    }
    const QStringList parts = native.split(QDir::separator(), Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QString found = existingPath(base + parts.mid(i).join(QDir::separator()));
        if (!found.isEmpty()) {
            // The folder is looked at last: asking for one on a lost network drive takes long.
            return !isGone(native)        ? path
                : endsInSeparator(native) ? withClosingSeparator(found)
                                          : found;
        }
    }
    return path;
}

QString folderOfStore(const ProfileFile &store)
{
    return folderOf(store.path());
}

} // namespace

PathKind pathKindOf(QStringView section, QStringView key)
{
    while (!key.isEmpty() && key.back().isDigit()) {
        key.chop(1);
    }
    const auto *found = std::ranges::find_if(
        pathKeys, [&](const PathKey &each) { return each.section == section && each.key == key; });
    return found == std::end(pathKeys) ? PathKind::None : found->kind;
}

QString storedPath(const QString &path, const QString &appFolder, PathKind kind)
{
    const QString base = withClosingSeparator(nativeSeparators(appFolder));
    if (path.isEmpty() || base.isEmpty() || kind == PathKind::None) {
        return path;
    }
    if (path.size() + 1 == base.size() && base.startsWith(nativeSeparators(path), pathCase)) {
        return u"."_s;
    }
    if (!nativeSeparators(path).startsWith(base, pathCase)) {
        return path;
    }
    const QString inside = path.sliced(base.size());
    // Without its folder, each of these would mean something else.
    const bool isMistakable = inside.isEmpty() || inside[0] == u'~' || isNoFile(inside)
        || isFull(inside) || (kind == PathKind::Command && !namesFolder(inside));
    return isMistakable ? here.toString() + inside : inside;
}

QString resolvedPath(const QString &stored, const QString &appFolder, PathKind kind)
{
    const QString base = withClosingSeparator(nativeSeparators(appFolder));
    const QString path = stored.trimmed();
    if (path.isEmpty() || base.isEmpty() || kind == PathKind::None || isNoFile(path)) {
        return stored;
    }
    if (isHome(path)) {
        return nativeSeparators(QDir::homePath() + path.sliced(1));
    }
    if (isFull(path)) {
        return mended(stored, base);
    }
    if (kind == PathKind::File) {
        return cleaned(base + nativeSeparators(path));
    }
    const QString inside = path.startsWith(here) ? path.sliced(here.size()) : path;
    const bool isOurs = path[0] != u'"' && !path.contains(u"://"_s)
        && (namesFolder(path) || !existingPath(base + inside).isEmpty());
    return isOurs ? base + inside : stored;
}

QString storedValue(const ProfileFile &store, QStringView section, QStringView key,
                    const QString &value)
{
    const PathKind kind = pathKindOf(section, key);
    return kind == PathKind::None ? value : storedPath(value, folderOfStore(store), kind);
}

QString resolvedValue(const ProfileFile &store, QStringView section, QStringView key,
                      const QString &value)
{
    const PathKind kind = pathKindOf(section, key);
    return kind == PathKind::None ? value : resolvedPath(value, folderOfStore(store), kind);
}

} // namespace zeph
