// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/model.h"

namespace zeph::language {

/// Finds everything that is certainly wrong: the joystick file's findings first, each file's in
/// text order. Nothing that Zeph's own tools write gives a finding.
QList<Finding> check(const FilePair &pair);

/// The finding for a macro file that is named and not there.
Finding missingMacroFile(const MacroReference &reference);

} // namespace zeph::language
