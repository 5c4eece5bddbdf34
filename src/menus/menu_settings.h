// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// Menus, toolbars and their tips.
struct MenuSettings {
    /// The defaults.
    MenuSettings();

    static std::span<const SettingRow<MenuSettings>> rows();

    QString GamesCaption;
    bool OKtoShowToolTips;
    bool OpenBothOnToolbar;
    bool SaveBothOnToolbar;
    bool ButtonsOnStatusBar;
};

} // namespace zeph
