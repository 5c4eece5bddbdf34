// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the user is told about a wait that ended.

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

} // namespace zeph
