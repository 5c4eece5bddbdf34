// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What goes into a distribution package, and where.

#include "platform/core/base.h"

#include <QList>

#include <array>
#include <span>

namespace zeph {

/// The files of a package, in the order of the form.
enum class PackageFile { Joystick, Macro, Graphic, Readme, Profile };
constexpr int packageFiles = 5;

/// How the form asks for a file.
struct PackageRow {
    const char16_t *caption; ///< with its mnemonic
    const char16_t *filter;
    const char16_t *title; ///< of the file dialog
};
std::span<const PackageRow> packageRows();

/// What the form holds: full paths, empty where there is none.
struct PackageFields {
    QString name = {};
    std::array<QString, packageFiles> files = {};
    bool wantsZip = true;
};

/// Where a package is made, and which file goes where.
struct PackagePlan {
    struct Copy {
        QString from;
        QString to;
    };
    QString folder = {}; ///< with a closing separator
    QString zip = {};
    QList<Copy> copies = {};
};

/// Why a package cannot be made, as it is told.
struct PackageRefusal {
    QString title;
    QString text;
};

/// The folder in which all packages lie, with a closing separator.
QString distributeFolder(const QString &appFolder);
/// Looks at the name and at the files, which have to exist.
Expected<PackagePlan, PackageRefusal> planPackage(const PackageFields &fields,
                                                  const QString &appFolder);

/// What the archiver is told: to pack a package, and to open a zip into a folder.
QString winZipPackArguments(const PackagePlan &plan);
QString winZipOpenArguments(const QString &zip, const QString &filesFolder);

} // namespace zeph
