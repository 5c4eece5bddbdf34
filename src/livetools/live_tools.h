// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/tool_entries.h"
#include "platform/context.h"

namespace zeph {

class CougarModes;
class Printers;
struct QuickViewSources;

/// Registers the Key Tester under the Editor's menu entry.
void addLiveTools(const ToolEntries &tools, const Context &context, CougarModes &modes);
/// The same for the Image Viewer. Its entry shows the picture of ImageFilePath, in an open window
/// too. The printers must outlive the window.
void addImageViewer(const ToolEntries &tools, const Context &context, Printers &printers);
/// The same for Quick View.
void addQuickView(const ToolEntries &tools, const Context &context, const QuickViewSources &sources,
                  CougarModes &modes);

} // namespace zeph
