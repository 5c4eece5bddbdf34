// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Every menu entry in one table: what it is called, where it stands, how it looks and when it can
// be used. The menus, the toolbars and the tests of what is enabled all read it.

#include "menus/action_row.h"

#include <span>

namespace zeph {

std::span<const MenuRow> menuBarTable();
std::span<const ActionRow> actionTable();

/// One row of the pop-up menu of the right mouse button, which is built afresh at each press.
struct RightMenuRow {
    enum Shown {
        Both,
        JoystickOnly,
        MacroOnly,
        Divider,
        Submenu, ///< opens a menu with the rows that follow
        InSubmenu ///< in the menu of the last Submenu row
    };

    const char16_t *name; ///< object name
    const char16_t *caption; ///< empty: the caption of the entry behind it
    const char16_t
        *target; ///< the entry of the menus that does the work and lends picture, tick and state
    Shown shown;
};

std::span<const RightMenuRow> rightMenuTable();

} // namespace zeph
