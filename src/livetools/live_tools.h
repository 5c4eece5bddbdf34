// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/tool_entries.h"
#include "platform/context.h"

namespace zeph {

class CougarModes;

/// Registers this room's tool windows under the Editor's menu entries.
void addLiveTools(const ToolEntries &tools, const Context &context, CougarModes &modes);

} // namespace zeph
