// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"

namespace zeph {

/// The Key Tester's menus. They are for the mouse alone: the window shows every key that reaches
/// it.
std::span<const MenuRow> keyTestMenus();
std::span<const ActionRow> keyTestActions();

} // namespace zeph
