// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Paths in the program's own settings files. Those inside the program's folder are held relative to
// it, so that the folder can be moved or carried on a stick. In memory every path is a full one.

#include "platform/core/base.h"

namespace zeph {

class ProfileFile;

/// What a key of the settings file holds.
enum class PathKind {
    None, ///< no path
    File, ///< a file or a folder; "None" says that there is none
    Command ///< a program, perhaps with arguments; one without a folder is looked up by the system
};
/// The kind of a key; the number at the end of a list's key does not count.
PathKind pathKindOf(QStringView section, QStringView key);

/// The form in which the settings file holds a path: relative when it lies inside appFolder, else
/// unchanged. With the system's own separators.
QString storedPath(const QString &path, const QString &appFolder, PathKind kind = PathKind::File);

/// The path that such a text means. A relative one lies in appFolder and "~" is the user's home. A
/// full one whose folder is gone is mended when the same file lies in appFolder.
QString resolvedPath(const QString &stored, const QString &appFolder,
                     PathKind kind = PathKind::File);

/// The same for a value of the store, which lies in the program's folder itself; a key that holds
/// no path keeps its value.
QString storedValue(const ProfileFile &store, QStringView section, QStringView key,
                    const QString &value);
QString resolvedValue(const ProfileFile &store, QStringView section, QStringView key,
                      const QString &value);

} // namespace zeph
