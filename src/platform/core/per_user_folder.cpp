// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/per_user_folder.h"

#include "platform/core/disk/disk.h"
#include "platform/core/file_io.h"
#include "platform/core/paths.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <algorithm>
#include <span>

namespace zeph {

namespace {

/// Holds a line for each copied file: its CopiedFile, and its path.
constexpr QStringView recordName = u".filled";

constexpr QStringView installationFiles[] = { packageFileName, u"qt.conf", u"Uninstall.exe",
                                              u"Installed.ini" };

constexpr QStringView personalFolders[] = { u"Recovery", u"Rtf", u"Backup", u"Temp" };
constexpr QStringView personalFiles[] = { u"Zeph.ini", u"HOTAS.ini", u"Layouts.ini", recordName };

using Copies = QMap<QString, CopiedFile>;

bool isOf(std::span<const QStringView> names, QStringView name)
{
    return std::ranges::any_of(
        names, [name](QStringView each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

/// What makes the program run, tells how it was installed or removes it stays with it.
bool isOfInstallation(const QString &path)
{
    return path.endsWith(u".dll", Qt::CaseInsensitive) || isOf(installationFiles, path);
}

QByteArray hashOf(const QString &path)
{
    const auto bytes = readWholeFile(path);
    return bytes ? QCryptographicHash::hash(*bytes, QCryptographicHash::Sha1) : QByteArray();
}

QByteArray recordOf(const Copies &copies)
{
    QByteArray record;
    for (auto each = copies.cbegin(); each != copies.cend(); ++each) {
        record += each->hash.toHex() + ' ' + QByteArray::number(each->size) + ' '
            + QByteArray::number(each->changedMs) + ' ' + each.key().toUtf8() + '\n';
    }
    return record;
}

Copies readRecord(const QByteArray &record)
{
    Copies copies;
    for (const QByteArray &line : record.split('\n')) {
        const QString text = QString::fromUtf8(line);
        const QString path = text.section(u' ', 3);
        if (!path.isEmpty()) {
            copies.insert(path,
                          { QByteArray::fromHex(text.section(u' ', 0, 0).toLatin1()),
                            text.section(u' ', 1, 1).toLongLong(),
                            text.section(u' ', 2, 2).toLongLong() });
        }
    }
    return copies;
}

/// Copies a file in one step. The copy can be written even where the original cannot.
bool copyFile(const QString &from, const QString &to)
{
    QDir().mkpath(QFileInfo(to).path());
    // A file gets its name when it is whole: the start after one that was cut short copies it anew.
    const QString part = to + u".part"_s;
    const auto makeWritable = [&part] {
        QFile::setPermissions(part, QFile::permissions(part) | QFile::WriteOwner);
    };
    if (QFile::exists(part)) {
        // Windows removes no file that is read only.
        makeWritable();
        QFile::remove(part);
    }
    if (!QFile::copy(from, part)) {
        return false;
    }
    makeWritable();
    return !disk::putInPlace(part, to);
}

/// The user's folder, as it is brought up to date.
class UserFolder
{
public:
    UserFolder(const QString &program, const QString &user)
        : m_program(program), m_user(user), m_recordPath(QDir(user).filePath(recordName.toString()))
    {
        const auto record = readWholeFile(m_recordPath);
        m_copies = record ? readRecord(*record) : Copies();
        // An earlier program left only the time at which it had filled the folder.
        if (record && m_copies.isEmpty()) {
            m_filledAt = QFileInfo(m_recordPath).lastModified();
        }
    }

    QStringList fill()
    {
        const Copies before = m_copies;
        // The program itself needs no copy: it runs from the folder where it is installed.
        const QFileInfo executable(QCoreApplication::applicationFilePath());
        // A user's folder inside the program's would be copied into itself without an end.
        const QString own = m_program.relativeFilePath(m_user.path()) + u'/';
        QDirIterator files(m_program.path(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QFileInfo file(files.next());
            const QString path = m_program.relativeFilePath(file.filePath());
            if (file != executable && !isOfInstallation(path) && !isPersonal(path)
                && !path.startsWith(own)) {
                bringUpToDate(file, path);
            }
        }
        if (m_copies != before || !QFileInfo::exists(m_recordPath)) {
            // Without the record, the next start compares all files once more.
            (void)writeFileAtomically(m_recordPath, recordOf(m_copies));
        }
        m_kept.sort();
        return m_kept;
    }

private:
    void bringUpToDate(const QFileInfo &file, const QString &path)
    {
        const QString target = m_user.filePath(path);
        const CopiedFile now{ {}, file.size(), file.lastModified().toMSecsSinceEpoch() };
        auto copied = known(path, target);
        if (copied && copied->size == now.size && copied->changedMs == now.changedMs) {
            return;
        }
        const QByteArray hash = hashOf(file.filePath());
        QByteArray held = hash;
        switch (upgradeOf(hash, hashOf(target), copied)) {
        case Upgrade::Copy:
            if (!copyFile(file.filePath(), target)) {
                return;
            }
            break;
        case Upgrade::Keep:
            m_kept.append(path);
            [[fallthrough]];
        case Upgrade::Nothing:
            held = copied && hashOf(target) != hash ? copied->hash : hash;
            break;
        }
        m_copies.insert(path, { held, now.size, now.changedMs });
    }

    /// What is known of a file. An earlier program's copies are those that are no younger than its
    /// record.
    std::optional<CopiedFile> known(const QString &path, const QString &target) const
    {
        if (const auto found = m_copies.constFind(path); found != m_copies.cend()) {
            return *found;
        }
        const QFileInfo file(target);
        if (m_filledAt.isValid() && file.exists()) {
            const bool isUntouched = file.lastModified() <= m_filledAt;
            return CopiedFile{ isUntouched ? hashOf(target) : QByteArray() };
        }
        return std::nullopt;
    }

    QDir m_program;
    QDir m_user;
    QString m_recordPath;
    Copies m_copies;
    QDateTime m_filledAt;
    QStringList m_kept;
};

} // namespace

bool canMakeFilesIn(const QString &folder)
{
    QTemporaryFile probe(folder + u"/Zeph.XXXXXX"_s);
    return probe.open();
}

bool isPersonal(const QString &path)
{
    static const QRegularExpression lockOrCopy(u"(^|/)[^/]*\\.(lock|part)$|^Zeph\\.\\d+$"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    if (lockOrCopy.match(path).hasMatch()) {
        return true;
    }
    const qsizetype slash = path.indexOf(u'/');
    return slash < 0 ? isOf(personalFiles, path)
                     : isOf(personalFolders, QStringView(path).first(slash));
}

Upgrade upgradeOf(const QByteArray &program, const QByteArray &user,
                  const std::optional<CopiedFile> &copied)
{
    if (user.isNull()) {
        return copied ? Upgrade::Nothing : Upgrade::Copy;
    }
    if (user == program) {
        return Upgrade::Nothing;
    }
    if (copied && copied->hash == program) {
        // Only the file's time is another one.
        return Upgrade::Nothing;
    }
    return copied && copied->hash == user ? Upgrade::Copy : Upgrade::Keep;
}

ChosenFolder chooseFolder(const QString &executableFolder, const QString &perUser, bool isShared)
{
    if (!isShared && canMakeFilesIn(executableFolder)) {
        return { nativeSeparators(executableFolder) };
    }
    if (!QDir().mkpath(perUser) || !canMakeFilesIn(perUser)) {
        return { nativeSeparators(executableFolder), false };
    }
    return { nativeSeparators(perUser), true, UserFolder(executableFolder, perUser).fill() };
}

} // namespace zeph
