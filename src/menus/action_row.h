// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// One row a menu entry: what it is called, where it is, how it looks and when it can be used.

#include "platform/core/base.h"

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

} // namespace zeph
