// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Whole files in and out. Files are small (a few megabytes), so there is no streaming.

#include "platform/core/base.h"

#include <QByteArray>

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
