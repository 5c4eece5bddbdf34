// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"
#include "language/word_map.h"

namespace zeph::language {

/// Fills in the file's statements from its text. A statement goes from the keyword at the start of
/// a line to the next line that starts with a keyword. Lines that begin with "~" are left out.
void parseJoystick(JoystickFile &file, const WordMap &macros);

} // namespace zeph::language
