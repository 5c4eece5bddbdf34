// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Paths in the form in which calls of Windows take them, whatever their length.

#include "platform/core/base.h"

#include <string>

namespace zeph {

/// The form of a full path, of a drive or of a share, that may be longer than 259 characters.
/// Windows takes it as it is: with backslashes, and without dots that stay or go up. A path that
/// has such a form already, or that is not full, is given back unchanged.
QString longWindowsPath(const QString &full);

#ifdef Q_OS_WIN
/// The same of any path, for the system's calls. A device's name stays one, so that no file gets
/// it, and blanks and dots at the end do not count, as everywhere else in Windows.
std::wstring windowsPath(const QString &path);

/// An existing path with its last name as the disk has it: Windows finds it by any case, and by
/// the short name that old programs pass on. A name without a folder stays as it is.
QString withNameOnDisk(const QString &path);
#endif

} // namespace zeph
