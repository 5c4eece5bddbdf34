// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Distribution packages: their files, and the folder and zip that they go to.

#include "platform/core/base.h"

#include <QList>

#include <array>
#include <span>

namespace zeph {

/// The files of a package, in the order of the form.
enum class PackageFile { Joystick, Macro, Graphic, Readme, Profile };
constexpr int packageFiles = 5;

/// One row of the form: how it asks for a file.
struct PackageRow {
    const char16_t *caption; ///< with its mnemonic
    const char16_t *filter;
    const char16_t *title; ///< of the file dialog
};
std::span<const PackageRow> packageRows();

/// The form's fields: full paths, empty for a file left out.
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

/// The message that tells why a package cannot be made.
struct PackageRefusal {
    QString title;
    QString text;
};

/// The folder that holds all packages, with a closing separator.
QString distributeFolder(const QString &appFolder);
/// Plans a package. Refuses a bad name and files that do not exist.
Expected<PackagePlan, PackageRefusal> planPackage(const PackageFields &fields,
                                                  const QString &appFolder);

/// The archiver's arguments for packing a package and for unpacking a zip into a folder.
QString winZipPackArguments(const PackagePlan &plan);
QString winZipOpenArguments(const QString &zip, const QString &filesFolder);

} // namespace zeph
