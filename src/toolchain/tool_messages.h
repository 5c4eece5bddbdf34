// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the user is told about the tools: that a wait has ended, and that a program or a profile is
// not where it should be.

#include "platform/core/paths.h"
#include "platform/dialogs.h"

namespace zeph {

/// What the compiler is doing while Zeph waits for it.
enum class CompilerTask { Compile, Download };

/// The compiler took too long; the callsign is the user's.
Box compilerTimeOutBox(CompilerTask task, const QString &callsign);
/// The download before a game took too long; Yes starts the game without its verdict.
Box gameTimeOutBox(const QString &callsign);
/// A mode request took too long.
Box modeTimeOutBox();

/// What panel 1 shows after a wait.
QString panelAfterCompilerWait(bool givenUp);
QString panelAfterModeWait(bool givenUp);

/// HOTASConfig.exe is missing.
Box noControlPanelBox(const Paths &paths);
/// Another program of the tools' folder is missing; the note follows its name.
Box missingToolBox(QStringView program, QStringView note);
/// A program that belongs beside Zeph is missing.
Box missingCompanionBox(const Paths &paths, QStringView program);
/// The name of a file or a profile holds a double quote, which a command line would lose.
Box quoteInNameBox(const QString &name);
/// A profile is missing; if it is the stored one, the text says where to choose another.
Box missingProfileBox(const QString &name, bool isStored);
/// There is no profile at all in the folder.
Box noProfilesBox(const QString &folder);

} // namespace zeph
