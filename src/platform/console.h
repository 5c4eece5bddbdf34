// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A start from a command line: words to whoever started the program, and no window.

#include "platform/core/base.h"

namespace zeph {

enum class Stream { Output, Errors };

/// Writes a text to a standard stream, in the system's encoding. A windowed program of Windows has
/// no streams of its own: what is not redirected goes to the console that it was started from, if
/// there is one.
void tellConsole(Stream stream, const QString &text);

/// Lets the toolkit, which is not made yet, do without a display. Drawing still needs fonts: on
/// Windows the toolkit then has to be told where they are.
void goWithoutDisplay();

} // namespace zeph
