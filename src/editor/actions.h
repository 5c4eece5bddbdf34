// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Every menu entry in one table: what it is called, where it stands, how it looks and when it can
// be used. The menus, the toolbars and the tests of what is enabled all read it.

#include "platform/core/base.h"

#include <span>

namespace zeph {

/// When an entry can be used.
enum class When {
    Always,
    Later, ///< the tool behind it does not exist yet
    Selection, ///< a selection in the selected document
    PasteReady, ///< text on the clipboard
    JoystickText, ///< the joystick tab, or AlwaysShowCompileDownload
    Graphic, ///< a picture belongs to the joystick file
    ReadMe, ///< a readme belongs to the joystick file
    Custom ///< whoever owns the operation says
};

enum class ActionKind { Entry, Tick, Separator, Submenu };

/// One row; rows stand in the order of the menus.
struct ActionRow {
    const char16_t *menu; ///< object name of the menu that holds it
    const char16_t *name; ///< object name; element i of an array is NAME_i
    const char16_t *caption;
    const char16_t *shortcut; ///< empty when it has none
    const char16_t *status; ///< longer description for the status bar, may be empty
    const char16_t *icon; ///< name of a picture in the icons folder, may be empty
    When when;
    ActionKind kind;
};

/// The menu bar's menus, left to right: object name and caption.
struct MenuRow {
    const char16_t *name;
    const char16_t *caption;
};

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
