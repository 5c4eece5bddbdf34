// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_io.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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

Expected<void, FileError> writeFileAtomically(const QString &path, const QByteArray &bytes)
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
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) {
        return failure(path, file.errorString());
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        return failure(path, file.errorString());
    }
    if (const auto refused = flushToDisk(file.handle())) {
        return failure(path, *refused);
    }
    if (!file.commit()) {
        return failure(path, file.errorString());
    }
    return {};
}

bool isReadOnlyFile(const QString &path)
{
    constexpr QFile::Permissions anyWrite =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo info(path);
    return info.exists() && (!(info.permissions() & anyWrite) || !info.isWritable());
}

} // namespace zeph
