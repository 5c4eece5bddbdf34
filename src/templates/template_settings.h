// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// What the Template Editor keeps.
struct TemplateSettings {
    /// The defaults.
    TemplateSettings();

    static std::span<const SettingRow<TemplateSettings>> rows();

    bool HideAppsToolBar;
};

} // namespace zeph
