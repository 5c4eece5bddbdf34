// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"

namespace zeph {

/// Tumbo's menus.
std::span<const MenuRow> tumboMenus();
std::span<const ActionRow> tumboActions();

} // namespace zeph
