// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/tool_entries.h"
#include "platform/context.h"

namespace zeph {

struct MacroTable;
class Printers;

/// Registers the Template Editor as the window of mnuAppsTemplateEditor. Printers and macro table
/// must outlive the window.
void addTemplateTools(const ToolEntries &tools, const Context &context, Printers &printers,
                      const MacroTable &macros);

} // namespace zeph
