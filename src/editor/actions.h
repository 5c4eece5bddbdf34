// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// One table of all menu entries of the Editor. The menus, the toolbars, the keys in the texts and
// the tests of what is enabled are derived from it.

#include "menus/action_row.h"

#include <span>

namespace zeph {

/// The conditions of the Editor under which a menu entry is enabled.
enum class EditorWhen {
    Selection, ///< text is selected in the selected document
    PasteReady, ///< there is text on the clipboard
    JoystickText, ///< the joystick tab is selected, or AlwaysShowCompileDownload is set
    ReadMe, ///< a readme belongs to the joystick file
    Graphic ///< a picture belongs to the joystick file
};

std::span<const MenuRow> menuBarTable();
std::span<const ActionRow> actionTable();

/// One row of the context menu of the texts.
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
    const char16_t *caption; ///< empty: the target's caption
    /// The object name of the menu entry that it runs; picture, tick and state are that entry's.
    const char16_t *target;
    Shown shown;
};

std::span<const RightMenuRow> rightMenuTable();

} // namespace zeph
