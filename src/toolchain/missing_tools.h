// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What is told about programs that are not where they should be.

#include "platform/core/paths.h"
#include "platform/dialogs.h"

namespace zeph {

/// HOTASConfig.exe is missing.
Box noControlPanelBox(const Paths &paths);
/// Another program of the tools' folder is missing; the note stands behind its name.
Box missingToolBox(QStringView program, QStringView note);
/// A program that belongs beside Zeph is missing.
Box missingCompanionBox(const Paths &paths, QStringView program);
/// A profile is missing; for the stored one the text says where to choose another.
Box missingProfileBox(const QString &name, bool isStored);
/// There is no profile at all in the folder.
Box noProfilesBox(const QString &folder);

} // namespace zeph
