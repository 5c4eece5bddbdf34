// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_io.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#include <filesystem>
#include <functional>
#include <system_error>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace zeph {

namespace {

constexpr int maxLinks = 40;

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
        if (!info.isSymLink()) {
            return path;
        }
        path = info.symLinkTarget();
    }
    return {};
}

/// Flushes the bytes to the disk. Gives the reason when the disk refuses them only now.
std::optional<std::errc> flushToDisk([[maybe_unused]] int handle)
{
#ifdef Q_OS_UNIX
    // File systems that cannot flush say so with the first two.
    if (::fsync(handle) != 0 && errno != EINVAL && errno != ENOTSUP) {
        return std::errc(errno);
    }
#endif
    return std::nullopt;
}

/// Flushes all that was written to the disk of an open file.
std::optional<std::errc> flushWholeDisk(const QFile &file)
{
#ifdef Q_OS_LINUX
    return ::syncfs(file.handle()) == 0 ? std::nullopt : std::optional(std::errc(errno));
#else
    return flushToDisk(file.handle());
#endif
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
    if (!file.open(QIODevice::ReadOnly)) {
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
    if (isReadOnlyFile(info.filePath())) {
        return failure(path, std::errc::permission_denied);
    }
    return target;
}

/// Replaces the file unless the question, asked when only the renaming is left, is answered no.
Expected<bool, FileError> replaceIf(const QString &path, const QByteArray &bytes,
                                    const std::function<bool(const QString &target)> &mayReplace)
{
    const auto target = writableTarget(path);
    if (!target) {
        return Unexpected<FileError>(target.error());
    }
    QSaveFile file(*target);
    if (!file.open(QIODevice::WriteOnly)) {
        return failure(path, file.errorString());
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        return failure(path, file.errorString());
    }
    if (const auto refused = flushToDisk(file.handle())) {
        return failure(path, *refused);
    }
    if (!mayReplace(*target)) {
        return false;
    }
    if (!file.commit()) {
        return failure(path, file.errorString());
    }
    return true;
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
        return readWholeFile(target).value_or(QByteArray()) == held;
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
    QFile file(nameBeside(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return failure(path, file.errorString());
    }
    m_files.push_back({ path, file.fileName() });
    if (const QFileInfo before(path); before.exists()) {
        file.setPermissions(before.permissions());
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.close();
        QFile::remove(file.fileName());
        m_files.pop_back();
        return failure(path, reason);
    }
    return {};
}

std::vector<FileError> FileBatch::commit()
{
    std::vector<FileError> failed;
    const auto files = std::exchange(m_files, {});
    if (files.empty()) {
        return failed;
    }
    QFile any(files.front().written);
    const auto refused =
        any.open(QIODevice::ReadOnly) ? flushWholeDisk(any) : std::optional(std::errc::io_error);
    any.close();
    for (const Pending &file : files) {
        std::error_code code;
        if (refused) {
            code = std::make_error_code(*refused);
        } else {
            std::filesystem::rename(QFileInfo(file.written).filesystemFilePath(),
                                    QFileInfo(file.path).filesystemFilePath(), code);
        }
        if (code) {
            QFile::remove(file.written);
            failed.push_back({ file.path, QString::fromStdString(code.message()) });
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
