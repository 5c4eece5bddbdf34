// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"
#include "language/word_map.h"

namespace zeph::language {

/// Finds the macros' names and places and the headings; the bodies stay empty.
void findMacros(MacroFile &file);

/// The macros by name. A name that occurs twice stands for its first macro. Looks into the file.
WordMap macroIndex(const MacroFile &file);

/// Reads the bodies of the macros that were found.
void parseMacroBodies(MacroFile &file, const WordMap &macros);

} // namespace zeph::language
