// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/quick_view_actions.h"

#include <array>

namespace zeph {

namespace {

using enum CommonWhen;
using enum QuickViewWhen;
using enum ActionKind;

constexpr std::array menus = {
    MenuRow{ u"mnuView", u"&View" },
    MenuRow{ u"mnuPosition", u"&Position" },
    MenuRow{ u"mnuOptions", u"&Options" },
    MenuRow{ u"mnuHelp", u"&Help" },
};

// clang-format off
constexpr std::array actions = {
    ActionRow{u"mnuView", u"mnuGoToStatement", u"&Go to the statement", u"Ctrl+G", u"Shows in the Editor the statement of the control that has the focus", u"goto", Statement, Entry},
    ActionRow{u"mnuView", u"mnuFindSender", u"&Who sends this?", u"Ctrl+F", u"Marks every control that sends a key or macro", u"find", Always, Tick},
    ActionRow{u"mnuView", u"mnuCoverage", u"&Coverage", u"Ctrl+T", u"Shows which controls do something in which position", u"tile", Always, Entry},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuQuickViewClose", u"C&lose", u"Ctrl+W", u"Closes Quick View", u"exit", Always, Entry},

    ActionRow{u"mnuPosition", u"mnuPosition_0", u"Dogfight switch &up (/U)", u"Ctrl+1", u"Shows what the controls do with the dogfight switch up", u"", Always, Tick},
    ActionRow{u"mnuPosition", u"mnuPosition_1", u"Dogfight switch in the &middle (/M)", u"Ctrl+2", u"Shows what the controls do with the dogfight switch in the middle", u"", Always, Tick},
    ActionRow{u"mnuPosition", u"mnuPosition_2", u"Dogfight switch &down (/D)", u"Ctrl+3", u"Shows what the controls do with the dogfight switch down", u"", Always, Tick},
    separator(u"mnuPosition"),
    ActionRow{u"mnuPosition", u"mnuPosition_3", u"S3 held &in (/I)", u"Ctrl+4", u"Shows what the controls do while S3 is held", u"", Always, Tick},
    ActionRow{u"mnuPosition", u"mnuPosition_4", u"S3 let &out (/O)", u"Ctrl+5", u"Shows what the controls do while S3 is not held", u"", Always, Tick},

    ActionRow{u"mnuOptions", u"mnuOptionsUnderscores", u"&Underscores as blanks", u"", u"Shows each underscore as a blank", u"", Always, Tick},
    ActionRow{u"mnuOptions", u"mnuOptionsRotaryStrip", u"&Rotaries without their numbers", u"", u"Leaves out the numbers before the macros of RNG and ANT", u"", Always, Tick},
    ActionRow{u"mnuOptions", u"mnuOptionsShowKeys", u"Show the &keys", u"Ctrl+K", u"Shows what the macros send instead of their names", u"key-tester", Always, Tick},
    separator(u"mnuOptions"),
    ActionRow{u"mnuOptions", u"mnuOptionsDisableJoystick", u"&Manual mode (joystick disabled)", u"Ctrl+J", u"You select the position by the boxes; the joystick is not read", u"mode-off", Always, Tick},
    separator(u"mnuOptions"),
    ActionRow{u"mnuOptions", u"mnuHideAllToolBars", u"&Hide all toolbars", u"", u"Hides the toolbar of this window", u"", Always, Tick},

    ActionRow{u"mnuHelp", u"mnuHelpContents", u"&Help on Quick View", u"F1", u"The help page on this window", u"help", Always, Entry},
};
// clang-format on

} // namespace

std::span<const MenuRow> quickViewMenuBar()
{
    return menus;
}

std::span<const ActionRow> quickViewActions()
{
    return actions;
}

} // namespace zeph
