// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/key_names.h"
#include "platform/context.h"

#include <optional>

namespace zeph {

/// Reads KeyCodes.txt in the program's folder. A missing file is first restored from its copy in
/// the Info folder, which is told. No value, also told, when that fails or the file cannot be read.
std::optional<KeyTable> readKeyCodes(const Context &context);

} // namespace zeph
