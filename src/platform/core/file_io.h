// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Whole files in and out. Files are small (a few megabytes), so there is no streaming.

#include "platform/core/base.h"

#include <QByteArray>

#include <vector>

namespace zeph {

/// Why a file could not be read or written: its path and the system's own words.
struct FileError {
    QString path;
    QString reason;
};

/// The bytes of a whole file. A folder, a missing or an unreadable file gives the reason.
Expected<QByteArray, FileError> readWholeFile(const QString &path);

/// Replaces a file's content in one step: the bytes are written beside it, flushed to the disk, and
/// renamed over it. Whatever happens, the path holds the old or the new content whole. Keeps the
/// permissions of the file that it replaces; follows a symbolic link to its target.
Expected<void, FileError> writeFileAtomically(const QString &path, const QByteArray &bytes);

/// Many files that are replaced as writeFileAtomically() does it, but with one flush of the disk
/// for all of them, since a flush costs more than a small file. What was not committed is taken
/// back.
class FileBatch
{
public:
    FileBatch() = default;
    ~FileBatch();
    FileBatch(const FileBatch &) = delete;
    FileBatch &operator=(const FileBatch &) = delete;

    /// Writes the bytes beside the file. The path is no link and no read-only file.
    Expected<void, FileError> add(const QString &path, const QByteArray &bytes);
    qsizetype size() const { return qsizetype(m_files.size()); }
    /// Flushes and puts all files in place; gives those that could not be, which are as they were.
    std::vector<FileError> commit();

private:
    struct Pending {
        QString path;
        QString written; ///< beside it
    };
    std::vector<Pending> m_files;
};
/// As writeFileAtomically(), but only when the file still holds what it held, for files that other
/// programs change too. A missing file holds nothing. False, and nothing changed, when it holds
/// something else by now.
Expected<bool, FileError> replaceFile(const QString &path, const QByteArray &held,
                                      const QByteArray &bytes);

/// Whether a file is marked as read only. The mark counts, not whether this user could write in
/// spite of it: somebody set it on purpose, and an administrator's rights do not undo that. A
/// missing file is not read only.
bool isReadOnlyFile(const QString &path);

} // namespace zeph
