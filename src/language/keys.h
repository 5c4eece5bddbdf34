// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The names of keys as bodies write them.

#include "language/words.h"

namespace zeph::language {

/// Every key that has a name or stands for itself, without the modifiers.
Words keyNames();
/// SHF, CTL, ALT and the words for one side of them: they belong to the key that follows.
Words modifierKeys();

} // namespace zeph::language
