// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_io.h"

#include "platform/core/disk/disk.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QThread>

#include <functional>
#include <system_error>

namespace zeph {

namespace {

constexpr int maxLinks = 40;

// Other programs hold a file for a moment: tools that write it, scanners that look at what is new.
constexpr int readPatienceMs = 300;
constexpr int replacePatienceMs = 1000;
constexpr int pauseMs = 20;

Unexpected<FileError> failure(const QString &path, const QString &reason)
{
    return Unexpected<FileError>(FileError{ path, reason });
}

Unexpected<FileError> failure(const QString &path, std::errc code)
{
    return failure(path, QString::fromStdString(std::make_error_code(code).message()));
}

/// The target of a chain of links, which need not exist; empty when the chain does not end.
QString targetOfLinks(QString path)
{
    for (int i = 0; i < maxLinks; ++i) {
        const QFileInfo info(path);
        // A shortcut of Windows, which is no link for those who open it, is a file of its own.
        if (!info.isSymbolicLink()) {
            return path;
        }
        path = info.symLinkTarget();
    }
    return {};
}

/// A name in the path's folder that no file has; short, since the path's own may be as long as can
/// be.
QString nameBeside(const QString &path)
{
    const QString start = QFileInfo(path).path() + u"/~"_s;
    QString name;
    do {
        name = start + QString::number(QRandomGenerator::global()->generate(), 36);
    } while (QFileInfo::exists(name));
    return name;
}

/// Opens the file for reading once nobody keeps it to himself any more.
bool openForReading(QFile &file)
{
    const QDeadlineTimer patience(readPatienceMs);
    while (!file.open(QIODevice::ReadOnly)) {
        if (patience.hasExpired() || !disk::isHeld(file.fileName())) {
            return false;
        }
        QThread::msleep(pauseMs);
    }
    return true;
}

/// Writes the bytes beside the file that they are to replace, with that file's permissions. Gives
/// the name, or the reason and leaves nothing.
Expected<QString, QString> writeBeside(const QString &path, const QByteArray &bytes)
{
    QFile file(nameBeside(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return Unexpected<QString>(file.errorString());
    }
    if (const QFileInfo before(path); before.exists()) {
        file.setPermissions(before.permissions());
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.close();
        QFile::remove(file.fileName());
        return Unexpected<QString>(reason);
    }
    return file.fileName();
}

using Question = std::function<bool()>;

/// Puts a written file in place of the other as soon as nobody holds that one. The question is
/// asked before each attempt, since the one who held the file may have changed it; false when it
/// is answered no. The written file is gone in any case.
Expected<bool, QString> putInPlace(const QString &written, const QString &path,
                                   const Question &mayReplace)
{
    const QDeadlineTimer patience(replacePatienceMs);
    while (mayReplace()) {
        const auto refused = disk::putInPlace(written, path);
        if (!refused) {
            return true;
        }
        if (!refused->isHeld || patience.hasExpired()) {
            QFile::remove(written);
            return Unexpected<QString>(refused->reason);
        }
        QThread::msleep(pauseMs);
    }
    QFile::remove(written);
    return false;
}

} // namespace

Expected<QByteArray, FileError> readWholeFile(const QString &path)
{
    if (path.isEmpty()) {
        // existingPath() gives an empty path for a file that does not exist.
        return failure(path, std::errc::no_such_file_or_directory);
    }
    const QFileInfo info(path);
    if (info.isDir()) {
        return failure(path, std::errc::is_a_directory);
    }
    if (info.exists() && !info.isFile()) {
        return failure(path, std::errc::not_supported);
    }
    QFile file(path);
    if (!openForReading(file)) {
        return failure(path, file.errorString());
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return failure(path, file.errorString());
    }
    return bytes;
}

namespace {

/// The file that a write to that path replaces: the path itself, or the target of its links.
Expected<QString, FileError> writableTarget(const QString &path)
{
    if (path.isEmpty()) {
        return failure(path, std::errc::no_such_file_or_directory);
    }
    const QString target = targetOfLinks(path);
    if (target.isEmpty()) {
        return failure(path, std::errc::too_many_symbolic_link_levels);
    }
    const QFileInfo info(target);
    if (info.isDir()) {
        return failure(path, std::errc::is_a_directory);
    }
    if (info.exists() && !info.isFile()) {
        return failure(path, std::errc::not_supported);
    }
    if (isReadOnlyFile(info.filePath())) {
        return failure(path, std::errc::permission_denied);
    }
    return target;
}

#ifdef Q_OS_WIN

/// Replaces the file unless the question, asked when only the renaming is left, is answered no.
Expected<bool, QString> replaceWhole(const QString &path, const QByteArray &bytes,
                                     const Question &mayReplace)
{
    const auto written = writeBeside(path, bytes);
    if (!written) {
        return Unexpected<QString>(written.error());
    }
    if (const auto refused = disk::flush(*written)) {
        QFile::remove(*written);
        return Unexpected<QString>(*refused);
    }
    return putInPlace(*written, path, mayReplace);
}

#else

/// Replaces the file unless the question, asked when only the renaming is left, is answered no. The
/// new file has no name before it is whole, so that a program that is killed leaves nothing of it.
Expected<bool, QString> replaceWhole(const QString &path, const QByteArray &bytes,
                                     const Question &mayReplace)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return Unexpected<QString>(file.errorString());
    }
    if (const auto refused = disk::flush(file.handle())) {
        return Unexpected<QString>(*refused);
    }
    if (!mayReplace()) {
        return false;
    }
    return file.commit() ? Expected<bool, QString>(true) : Unexpected<QString>(file.errorString());
}

#endif

/// Replaces the file unless the question, asked when only the renaming is left, is answered no.
Expected<bool, FileError> replaceIf(const QString &path, const QByteArray &bytes,
                                    const std::function<bool(const QString &target)> &mayReplace)
{
    const auto target = writableTarget(path);
    if (!target) {
        return Unexpected<FileError>(target.error());
    }
    const auto replaced = replaceWhole(*target, bytes, [&] { return mayReplace(*target); });
    return replaced ? *replaced : Expected<bool, FileError>(failure(path, replaced.error()));
}

} // namespace

Expected<void, FileError> writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const auto written = replaceIf(path, bytes, [](const QString &) { return true; });
    return written ? Expected<void, FileError>() : Unexpected<FileError>(written.error());
}

Expected<bool, FileError> replaceFile(const QString &path, const QByteArray &held,
                                      const QByteArray &bytes)
{
    return replaceIf(path, bytes, [&held](const QString &target) {
        const auto now = readWholeFile(target);
        return now ? *now == held : held.isEmpty() && !QFileInfo::exists(target);
    });
}

FileBatch::~FileBatch()
{
    for (const Pending &file : m_files) {
        QFile::remove(file.written);
    }
}

Expected<void, FileError> FileBatch::add(const QString &path, const QByteArray &bytes)
{
    const auto written = writeBeside(path, bytes);
    if (!written) {
        return failure(path, written.error());
    }
    m_files.push_back({ path, *written });
    return {};
}

std::vector<FileError> FileBatch::commit()
{
    std::vector<FileError> failed;
    const auto files = std::exchange(m_files, {});
    QStringList names;
    for (const Pending &file : files) {
        names.append(file.written);
    }
    const auto refused = disk::flushAll(names);
    for (const Pending &file : files) {
        if (refused) {
            QFile::remove(file.written);
            failed.push_back({ file.path, *refused });
        } else if (const auto put = putInPlace(file.written, file.path, [] { return true; });
                   !put) {
            failed.push_back({ file.path, put.error() });
        }
    }
    return failed;
}

bool isReadOnlyFile(const QString &path)
{
    constexpr QFile::Permissions anyWrite =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo info(path);
    return info.exists() && (!(info.permissions() & anyWrite) || !info.isWritable());
}

} // namespace zeph
