// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/key_names.h"
#include "platform/context.h"

#include <optional>

namespace zeph {

/// Reads KeyCodes.txt beside the program, restored from its copy among the information files if
/// need be; both are told. No value when there is none, which is told too.
std::optional<KeyTable> readKeyCodes(const Context &context);

} // namespace zeph
