// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"
#include "language/word_map.h"

namespace zeph::language {

/// Fills the file from its text. A statement runs from its keyword at a line's start to the next
/// such keyword; lines that begin with "~" are switched off.
void parseJoystick(JoystickFile &file, const WordMap &macros);

} // namespace zeph::language
