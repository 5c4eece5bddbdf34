// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The menus of the Template Editor. Entries that the main window has too look the same here.

#include "menus/action_row.h"

#include <span>

namespace zeph {

/// The Template Editor's own conditions of menu entries.
enum class TemplateWhen {
    Selection, ///< some text is selected
    PasteReady ///< there is text on the clipboard
};

std::span<const MenuRow> templateMenuBar();
std::span<const ActionRow> templateActions();

} // namespace zeph
