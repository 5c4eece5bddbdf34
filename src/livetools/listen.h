// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which key of the board a key of the real keyboard is.

#include "livetools/virtual_keys.h"

namespace zeph {

/// The index of the board's key for a stroke: by its place on the keyboard where the system tells
/// that, since the Cougar sends places too; else by its name. Left and right modifiers and the
/// number pad are told apart. No value for a key that the board lacks.
std::optional<int> listenedKey(const KeyStroke &stroke);

/// A key's place as Linux counts, from the number that Windows gives it (bit 8: extended).
quint32 placeOfWindowsScanCode(quint32 scanCode);

} // namespace zeph
