// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How this copy of the program was installed. Whoever packs the program writes it into the file
// Package.ini beside the executable; a folder that somebody built for himself has none.

#include "platform/core/per_user_folder.h"

namespace zeph {

struct Package {
    /// The name of the file that was fetched, with "<version>" in place of the version; empty when
    /// it is not known.
    QString file;
    /// Whether the program keeps nothing beside itself, even where it could write there: removing
    /// the package then takes away what was installed and leaves what is the user's.
    bool isShared = false;

    friend bool operator==(const Package &, const Package &) = default;
};

/// What the bytes of a Package.ini say; a key that is missing has its default.
Package packageOf(const QByteArray &packageIni);
/// The package in the executable's folder; all defaults where there is no such file.
Package readPackage(const QString &executableFolder);

/// The name of the file to fetch for that version; empty when it is not known.
QString fileToFetch(const Package &package, const QString &version);

} // namespace zeph
