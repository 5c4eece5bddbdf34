// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/further_instances.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"

#include <QDir>
#include <QFile>
#include <QThread>

namespace zeph {

namespace {

constexpr int firstNumber = 2;
constexpr int neverUsed = 999;
constexpr int tooMany = 1000;

constexpr int deleteTries = 50;
constexpr int deletePauseMs = 20;

QString storePath(const QString &appFolder)
{
    return withClosingSeparator(appFolder) + u"Zeph.ini"_s;
}

QString copyPath(const QString &appFolder, int number)
{
    return withClosingSeparator(appFolder) + u"Zeph."_s + QString::number(number);
}

/// Makes the copy, if the folder can be written. False when another instance, started at the same
/// moment, has just taken this name.
bool makeCopy(const QString &path, const QByteArray &store)
{
    QFile copy(path);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return !copy.exists();
    }
    if (copy.write(store) != store.size() || !copy.flush()) {
        // Half a store would be worse than none: without one all settings have their defaults.
        copy.remove();
    }
    return true;
}

} // namespace

Instance MoreThan1open(const QString &appFolder)
{
    const auto store = ProfileFile(storePath(appFolder)).bytes();
    for (int number = firstNumber; number < neverUsed; ++number) {
        const QString path = copyPath(appFolder, number);
        if (!QFile::exists(path) && makeCopy(path, store.value_or(QByteArray()))) {
            return { number, path };
        }
    }
    return { tooMany, copyPath(appFolder, neverUsed) };
}

Instance GetRidOfPreviousIniFiles(const QString &appFolder)
{
    for (int number = firstNumber; number <= neverUsed; ++number) {
        QFile::remove(copyPath(appFolder, number));
    }
    return { 1, storePath(appFolder) };
}

void deleteInstanceStore(const Instance &instance)
{
    if (!instance.isFurther()) {
        return;
    }
    // Another program, such as a virus scanner, may hold the file for a moment.
    for (int i = 0; i < deleteTries && QFile::exists(instance.iniPath); ++i) {
        if (!QFile::remove(instance.iniPath)) {
            QThread::msleep(deletePauseMs);
        }
    }
}

} // namespace zeph
