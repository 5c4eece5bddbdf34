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
/// The finding for a macro file that is there and cannot be read; the place is that of its name in
/// the joystick file, with line 0 when it is not named.
Finding unreadableMacroFile(const QString &path, const QString &reason, const Place &place);

} // namespace zeph::language
