// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Taking keys out of private profile files: lists need it when they become shorter.

#include "platform/core/profile_file.h"

#include <QStringList>

namespace zeph {

namespace profile {

/// The file without the lines of those keys in the first section of that name.
QByteArray withoutKeys(QByteArray file, QStringView section, const QStringList &keys);

} // namespace profile

/// Takes the keys out of a file in one replacement. A file that has none of them is not touched.
Expected<void, FileError> removeKeys(const ProfileFile &file, QStringView section,
                                     const QStringList &keys);

} // namespace zeph
