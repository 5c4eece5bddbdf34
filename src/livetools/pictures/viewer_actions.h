// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"

#include <span>

namespace zeph {

/// The Image Viewer's own conditions of menu entries.
enum class ViewerWhen {
    Picture ///< a picture is shown
};

std::span<const MenuRow> viewerMenuBar();
std::span<const ActionRow> viewerActions();

} // namespace zeph
