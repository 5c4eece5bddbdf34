// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where everything lies. File names are held with the system's own separator; names that come from
// files and settings may use backslashes and any case.

#include "platform/core/base.h"

namespace zeph {

/// The folders of a run. appFolder has no closing separator, all other folders have one.
struct Paths {
    QString appFolder;
    QString hotasFolder;
    /// The settings file of this instance.
    QString iniPath;

    QString rtfFolder() const;
    QString filesFolder() const;
    QString layoutsFolder() const;
    QString tempFolder() const;
    QString defaultBackupFolder() const;
    QString infoFolder() const;
    /// A file that lies directly in appFolder.
    QString inApp(QStringView name) const;
    QString compiler() const;
    QString config() const;
    QString hotasIni() const;
};

/// The name with the system's separators.
QString nativeSeparators(QString path);
/// A folder with exactly one closing separator; empty stays empty.
QString withClosingSeparator(QString folder);
/// The parts before and after the last separator ("/" or "\"). The folder keeps its separator.
QString folderOf(const QString &path);
QString nameOf(const QString &path);

/// The root of the drive on which a path lies, with a closing separator.
QString rootOf(const QString &path);

/// The path under which a file or folder really exists: the path itself, or the first match without
/// regard to case, component by component, on a file system that tells cases apart. Empty when
/// there is none.
QString existingPath(const QString &path);
/// Whether a file (not a folder) exists there, by existingPath().
bool fileExists(const QString &path);
bool folderExists(const QString &path);

/// Whether two paths name the same file or folder, which exists; links are followed, and case
/// counts as the system tells cases apart.
bool isSameFile(const QString &one, const QString &other);

} // namespace zeph
