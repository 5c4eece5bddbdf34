// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/menu_actions.h"
#include "platform/tool_windows.h"

namespace zeph {

/// Ties menu entries to tool windows, for the rooms that have such windows: one call an entry.
struct ToolEntries {
    MenuActions &menus;
    ToolWindows &windows;

    /// Registers the window with the function that makes it (see ToolWindows::offer), and lets the
    /// entry open it.
    template <class T, class Make>
    void add(QStringView entry, Make make, bool (T::*beforeShown)() = nullptr) const
    {
        windows.offer<T>(std::move(make), beforeShown);
        menus.connectTo(entry, [&windows = windows] { windows.open<T>(); });
    }
};

} // namespace zeph
