// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How SystemLauncher starts programs and opens files where the system is Windows.

#include "platform/core/base.h"

namespace zeph {

/// The command line of a program: its own name in quotes, then the arguments as they are written.
QString windowsCommandLine(const QString &program, const QString &arguments);

#ifdef Q_OS_WIN

/// Starts a program, whose path and folder exist (an empty folder is the current one), in a window
/// style by its number. A program that needs an administrator is started once the user has allowed
/// it. Gives the system's reason when it does not start.
std::optional<QString> startOnWindows(const QString &program, const QString &arguments,
                                      const QString &folder, int style);

/// Opens a file or an address with the program that is registered for it. Gives the system's reason
/// when that fails.
std::optional<QString> openOnWindows(const QString &pathOrUrl);

#endif

} // namespace zeph
