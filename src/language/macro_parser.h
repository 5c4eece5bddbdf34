// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"
#include "language/word_map.h"

namespace zeph::language {

/// Finds the macros and headings with their names and places. The bodies stay empty.
void findMacros(MacroFile &file);

/// The macros' indices by name; a name that occurs twice means its first macro. The map holds views
/// of the file's names.
WordMap macroIndex(const MacroFile &file);

/// Fills in the bodies of the macros that findMacros() found.
void parseMacroBodies(MacroFile &file, const WordMap &macros);

} // namespace zeph::language
