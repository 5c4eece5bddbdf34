// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/viewer_actions.h"

#include <array>

namespace zeph {

namespace {

using enum CommonWhen;
using enum ViewerWhen;
using enum ActionKind;

constexpr std::array menus = {
    MenuRow{ u"mnuImage", u"&Image" },
    MenuRow{ u"mnuView", u"&View" },
    MenuRow{ u"mnuMouse", u"&Mouse programming" },
    MenuRow{ u"mnuHelp", u"&Help" },
};

// clang-format off
constexpr std::array actions = {
    ActionRow{u"mnuImage", u"mnuImageOpen", u"&Open ...", u"Ctrl+O", u"Opens another picture", u"open", Always, Entry},
    ActionRow{u"mnuImage", u"mnuImageRefresh", u"&Refresh", u"F5", u"Reads the picture's file again", u"", Always, Entry},
    separator(u"mnuImage"),
    ActionRow{u"mnuImage", u"mnuImageSave", u"Sa&ve as bitmap ...", u"Ctrl+S", u"Writes the picture into a bmp file", u"save", Picture, Entry},
    ActionRow{u"mnuImage", u"mnuImagePrint", u"&Print", u"Ctrl+P", u"Prints the picture at its natural size", u"print", Picture, Entry},
    separator(u"mnuImage"),
    ActionRow{u"mnuImage", u"mnuImageSize", u"&Show size", u"", u"Tells how large the picture is", u"", Picture, Entry},
    ActionRow{u"mnuImage", u"mnuImageEdit", u"Image &Edit", u"", u"Opens the picture in the program that your desktop has for it", u"", Picture, Entry},
    separator(u"mnuImage"),
    ActionRow{u"mnuImage", u"mnuImageClose", u"&Close", u"Ctrl+W", u"Closes the Image Viewer", u"exit", Always, Entry},

    ActionRow{u"mnuView", u"mnuZoomFit", u"&Fit to window", u"Ctrl+9", u"Makes the picture as large as the window, whatever its size", u"zoom-fit", Always, Tick},
    ActionRow{u"mnuView", u"mnuZoomIn", u"Zoom &in", u"Ctrl++", u"Shows the picture larger", u"zoom-in", Picture, Repeats},
    ActionRow{u"mnuView", u"mnuZoomOut", u"Zoom &out", u"Ctrl+-", u"Shows the picture smaller", u"zoom-out", Picture, Repeats},
    ActionRow{u"mnuView", u"mnuZoomNatural", u"&Natural size", u"Ctrl+0", u"Shows the picture at 100 %", u"zoom-natural", Picture, Entry},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuHideAppsToolBar", u"&Hide Apps toolbar", u"", u"Hides the toolbar of this window", u"", Always, Tick},

    ActionRow{u"mnuMouse", u"mnuMouseWizard", u"&Advanced mouse programming wizard", u"", u"Draw on the picture where the mouse should go, and get the statement for it", u"mouse-wizard", Custom, Entry},
    separator(u"mnuMouse"),
    ActionRow{u"mnuMouse", u"mnuMouseStatements_0", u"&Introduction", u"", u"What mouse statements do", u"", Custom, Entry},
    ActionRow{u"mnuMouse", u"mnuMouseStatements_1", u"&Screen resolution", u"", u"The statement that all others need", u"", Custom, Entry},
    ActionRow{u"mnuMouse", u"mnuMouseStatements_2", u"Mouse &XY", u"", u"Moves the mouse to a place of the screen", u"", Custom, Entry},
    ActionRow{u"mnuMouse", u"mnuMouseStatements_3", u"Mouse &MOVE", u"", u"Moves the mouse from where it is", u"", Custom, Entry},
    ActionRow{u"mnuMouse", u"mnuMouseStatements_4", u"Mouse &ROTATE", u"", u"Turns a rotary switch", u"", Custom, Entry},

    ActionRow{u"mnuHelp", u"mnuHelpContents", u"&Help on the Image Viewer", u"F1", u"The help page on this window", u"help", Always, Entry},
};
// clang-format on

} // namespace

std::span<const MenuRow> viewerMenuBar()
{
    return menus;
}

std::span<const ActionRow> viewerActions()
{
    return actions;
}

} // namespace zeph
