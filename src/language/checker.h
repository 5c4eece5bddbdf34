// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"

namespace zeph::language {

/// Everything that is certainly wrong, the joystick file's findings first, each file's in text
/// order. What the tools of Zeph can write has no finding.
QList<Finding> check(const FilePair &pair);

/// The finding for a macro file that is named and not there.
Finding missingMacroFile(const MacroReference &reference);

} // namespace zeph::language
