// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/paths.h"

#include "platform/core/disk/windows_path.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace zeph {

namespace {

constexpr QStringView separators = u"/\\";

bool isSeparator(QChar character)
{
    return separators.contains(character);
}

qsizetype lastSeparator(const QString &path)
{
    return std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
}

QString folderIn(const QString &appFolder, QStringView name)
{
    return appFolder + QDir::separator() + name.toString() + QDir::separator();
}

#ifndef Q_OS_WIN
/// The entry of a folder with that name, in the name's own case if there is one.
QString entryOf(const QString &folder, const QString &name)
{
    if (name == u"." || name == u".." || QFileInfo::exists(folder + name)) {
        return name;
    }
    constexpr QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System;
    QDirIterator entries(folder.isEmpty() ? u"."_s : folder, all);
    QString found;
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        const bool isNamed = entry.compare(name, Qt::CaseInsensitive) == 0;
        // A folder has no order of its own, and the answer must not change.
        if (isNamed && (found.isEmpty() || entry < found)) {
            found = entry;
        }
    }
    return found;
}
#endif

} // namespace

QString Paths::rtfFolder() const
{
    return folderIn(appFolder, u"Rtf");
}

QString Paths::filesFolder() const
{
    return folderIn(appFolder, u"Files");
}

QString Paths::layoutsFolder() const
{
    return folderIn(appFolder, u"Layouts");
}

QString Paths::tempFolder() const
{
    return folderIn(appFolder, u"Temp");
}

QString Paths::defaultBackupFolder() const
{
    return folderIn(appFolder, u"Backup");
}

QString Paths::infoFolder() const
{
    return folderIn(appFolder, u"Info");
}

QString Paths::inApp(QStringView name) const
{
    return appFolder + QDir::separator() + name.toString();
}

QString Paths::compiler() const
{
    return hotasFolder + u"HOTASCompiler.exe"_s;
}

QString Paths::config() const
{
    return hotasFolder + u"HOTASConfig.exe"_s;
}

QString Paths::hotasIni() const
{
    return hotasFolder + u"HOTAS.ini"_s;
}

QString nativeSeparators(QString path)
{
    for (QChar &character : path) {
        if (isSeparator(character)) {
            character = QDir::separator();
        }
    }
    return path;
}

QString withClosingSeparator(QString folder)
{
    if (folder.isEmpty()) {
        return folder;
    }
    while (!folder.isEmpty() && isSeparator(folder.back())) {
        folder.chop(1);
    }
    return folder + QDir::separator();
}

QString folderOf(const QString &path)
{
    return path.left(lastSeparator(path) + 1);
}

QString nameOf(const QString &path)
{
    return path.mid(lastSeparator(path) + 1);
}

QString rootOf(const QString &path)
{
    const QString native = nativeSeparators(path);
    if (native.size() > 1 && native[0].isLetter() && native[1] == u':') {
        return native.first(2) + QDir::separator();
    }
#ifdef Q_OS_WIN
    if (native.startsWith(u"\\\\"_s)) {
        // A share has no drive: it is its own root.
        return native.section(QDir::separator(), 0, 3) + QDir::separator();
    }
#endif
    return nativeSeparators(QDir::rootPath());
}

QString existingPath(const QString &path)
{
    const QString native = nativeSeparators(path);
#ifdef Q_OS_WIN
    return QFileInfo::exists(native) ? withNameOnDisk(native) : QString();
#else
    if (native.isEmpty() || QFileInfo::exists(native)) {
        return native;
    }
    QString found = native.startsWith(u'/') ? u"/"_s : QString();
    const QStringList components = native.split(u'/', Qt::SkipEmptyParts);
    for (const QString &component : components) {
        if (!found.isEmpty() && !found.endsWith(u'/')) {
            found += u'/';
        }
        const QString entry = entryOf(found, component);
        if (entry.isEmpty()) {
            return {};
        }
        found += entry;
    }
    if (native.endsWith(u'/')) {
        found += u'/';
    }
    return QFileInfo::exists(found) ? found : QString();
#endif
}

bool fileExists(const QString &path)
{
    const QString found = existingPath(path);
    return !found.isEmpty() && QFileInfo(found).isFile();
}

bool folderExists(const QString &path)
{
    const QString found = existingPath(path);
    return !found.isEmpty() && QFileInfo(found).isDir();
}

bool isSameFile(const QString &one, const QString &other)
{
    const QFileInfo first(one);
    return first.exists() && first == QFileInfo(other);
}

} // namespace zeph
