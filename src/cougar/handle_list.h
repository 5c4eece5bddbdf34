// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which handles there are, and which one the pilot has: section Handles of the settings file, and
// the handle files in the program's folder.

#include "platform/core/profile_file.h"

namespace zeph {

struct HandleList {
    QStringList names; ///< of the files, without ".tmh"
    QString chosen; ///< one of the names, or of a file that is gone
};

/// The handles that the settings name, in their order, and after them those that only lie in the
/// folder, by name. None twice, in whatever case.
HandleList listHandles(const ProfileFile &store, const QString &appFolder);

/// Keeps the handle of that name (without ".tmh") as the one in use. A name that the settings file
/// cannot hold is an error.
Expected<void, FileError> SaveHandle(const ProfileFile &store, const QString &name);

/// The path of the handle file of that name (without ".tmh").
QString handlePath(const QString &appFolder, const QString &name);

} // namespace zeph
