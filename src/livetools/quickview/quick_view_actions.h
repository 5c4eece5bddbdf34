// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"

#include <span>

namespace zeph {

/// When Quick View's entries can be used.
enum class QuickViewWhen {
    Statement ///< the label that has the focus has a statement
};

std::span<const MenuRow> quickViewMenuBar();
std::span<const ActionRow> quickViewActions();

} // namespace zeph
