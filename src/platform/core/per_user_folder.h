// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The folder of a run. A program that was installed for all users cannot write beside itself; each
// user then has a folder with a copy of the program's own data.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// Beside the executable, written by whoever packs the program.
inline constexpr QStringView packageFileName = u"Package.ini";

struct ChosenFolder {
    /// Without a closing separator.
    QString appFolder;
    /// False when no folder can be written; appFolder is the executable's own then.
    bool canWrite = true;
    /// Files that a newer program would have replaced, had the user not changed them; relative to
    /// appFolder. Told once for each upgrade.
    QStringList kept = {};
};

/// Whether this user can make files in a folder, which is tried: rights alone do not tell it on
/// every system.
bool canMakeFilesIn(const QString &folder);

/// Gives the executable's own folder when it can be written and is not shared; otherwise perUser,
/// made and filled from the executable's folder, and brought up to date after an upgrade. What the
/// user has changed or deleted there stays so.
ChosenFolder chooseFolder(const QString &executableFolder, const QString &perUser,
                          bool isShared = false);

/// Whether a file beside the executable is somebody's own and none of the program's data: settings,
/// locks, and what lies in folders for work in progress. The path is relative, with "/".
bool isPersonal(const QString &path);

/// What is known of a file that was copied into the user's folder.
struct CopiedFile {
    QByteArray hash; ///< of the content that was copied; empty when it is not known
    qint64 size = 0; ///< of the program's file at that time
    qint64 changedMs = 0; ///< when the program's file was changed, since 1970

    friend bool operator==(const CopiedFile &, const CopiedFile &) = default;
};

enum class Upgrade { Nothing, Copy, Keep };
/// What to do about a file after the program's own has changed. Hashes of the contents now; null
/// where there is no file. A file that nobody has a copy of and that the user never had is copied.
Upgrade upgradeOf(const QByteArray &program, const QByteArray &user,
                  const std::optional<CopiedFile> &copied);

} // namespace zeph
