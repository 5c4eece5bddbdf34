// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where the Cougar's software lies: what the setting says, and whether it is really there.

#include "platform/core/base.h"

namespace zeph {

/// The folder that the setting HotasFolder means, with its closing separator. An empty setting is
/// the program's own folder (with or without a closing separator), a relative one lies in that
/// folder, and "~" is the user's home.
QString hotasFolderBy(const QString &setting, const QString &appFolder);

/// The setting for a folder: empty for the program's own, so that a program that is moved with its
/// tools finds them again.
QString settingForHotasFolder(const QString &folder, const QString &appFolder);

/// Whether the compiler that drives a Cougar lies in the folder. A stand-in does not count.
bool holdsRealTools(const QString &hotasFolder);

} // namespace zeph
