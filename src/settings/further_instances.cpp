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

std::unique_ptr<InstanceLock> lockCopy(const QString &appFolder, int number)
{
    return std::make_unique<InstanceLock>(appFolder,
                                          u"Zeph."_s + QString::number(number) + u".lock"_s);
}

} // namespace

Instance takeInstance(const QString &appFolder, const MayTakeOver &mayTakeOver)
{
    auto lock = std::make_unique<InstanceLock>(appFolder, InstanceLock::folderLock, mayTakeOver);
    if (!lock->isFirst()) {
        return MoreThan1open(appFolder);
    }
    GetRidOfPreviousIniFiles(appFolder);
    return { 1, storePath(appFolder), std::move(lock) };
}

Instance MoreThan1open(const QString &appFolder)
{
    const auto store = ProfileFile(storePath(appFolder)).bytes();
    for (int number = firstNumber; number < neverUsed; ++number) {
        auto lock = lockCopy(appFolder, number);
        if (lock->isFirst()) {
            const QString path = copyPath(appFolder, number);
            if (!writeFileAtomically(path, store.value_or(QByteArray()))) {
                // What a crashed instance left there is not this one's.
                QFile::remove(path);
            }
            return { number, path, std::move(lock) };
        }
    }
    return { tooMany, copyPath(appFolder, neverUsed), nullptr };
}

void GetRidOfPreviousIniFiles(const QString &appFolder)
{
    const QStringList names =
        QDir(appFolder).entryList({ u"Zeph.*"_s }, QDir::Files | QDir::Hidden);
    for (int number = firstNumber; number <= neverUsed; ++number) {
        const QString path = copyPath(appFolder, number);
        if (names.contains(nameOf(path)) && lockCopy(appFolder, number)->isFirst()) {
            QFile::remove(path);
        }
    }
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
