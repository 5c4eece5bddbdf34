// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which logical flags a joystick file leaves free.

#include "language/words.h"

#include <array>

namespace zeph {

/// For each flag, X1 first, whether it is free. A flag is used where it has blanks on both sides or
/// stands alone in round brackets, in any case, outside comments. Elsewhere it is not found: at a
/// line's end or after "/" and "=".
std::array<bool, language::lastFlag> freeFlags(QStringView joystickText);

} // namespace zeph
