// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The menus of the sheets' windows. One table holds those of all three; a row says where it
// belongs.

#include "layouts/sheet.h"
#include "menus/action_row.h"

#include <span>

namespace zeph {

/// The sheets' own conditions of menu entries.
enum class SheetWhen {
    Box, ///< a box is selected
    Analysed, ///< a box is selected whose text comes from the joystick file
    Selection, ///< some text of the selected box is selected
    PasteReady, ///< there is text on the clipboard, and a box to paste it into
    UndoReady,
    RedoReady,
    Layout ///< a layout was saved or opened
};

/// The pop-up menu of a box, which is not in the menu bar.
inline constexpr QStringView boxMenu = u"mnuTextboxPopUp";

std::span<const MenuRow> sheetMenuBar(SheetKind kind);
std::span<const ActionRow> sheetActions(SheetKind kind);

} // namespace zeph
