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
    // The window's place, in twips. A width of 0 is that of a window that was never opened.
    double TemplateTopAtStartup;
    double TemplateLeftAtStartup;
    double TemplateWidthAtStartup;
    double TemplateHeightAtStartup;
};

} // namespace zeph
