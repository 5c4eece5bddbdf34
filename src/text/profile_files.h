// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The saved axis profiles (*.tmc) of the Cougar.

#include "platform/core/paths.h"

#include <QStringList>

namespace zeph {

/// The folder where the tools keep the profiles, with a closing separator.
QString profilesFolder(const Paths &paths);
/// The names of a folder's profiles, with their ending, in alphabetical order; none for a folder
/// that does not exist.
QStringList profileFiles(const QString &folder);
/// The same without the ending.
QStringList profileNames(const QString &folder);

} // namespace zeph
