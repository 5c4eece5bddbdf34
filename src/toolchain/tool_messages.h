// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the user is told of the tools: about waits that ended, and about programs and profiles that
// are not where they should be.

#include "platform/core/paths.h"
#include "platform/dialogs.h"

namespace zeph {

/// The two things for which the compiler is waited for.
enum class CompilerTask { Compile, Download };

/// Told when the compiler was waited for too long; the callsign is the user's.
Box compilerTimeOutBox(CompilerTask task, const QString &callsign);
/// Told when the download before a game was waited for too long; Yes goes on without it.
Box gameTimeOutBox(const QString &callsign);
/// Told when a mode request was waited for too long.
Box modeTimeOutBox();

/// Panel 1 after a wait, by whether it was given up.
QString panelAfterCompilerWait(bool givenUp);
QString panelAfterModeWait(bool givenUp);

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
