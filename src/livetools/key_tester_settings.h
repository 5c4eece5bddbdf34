// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// The Key Tester.
struct KeyTesterSettings {
    /// The defaults.
    KeyTesterSettings();

    static std::span<const SettingRow<KeyTesterSettings>> rows();

    double KeyTopAtStartup;
    double KeyLeftAtStartup;
    double KeyWidthAtStartup;
    double KeyHeightAtStartup;
    int ClearDelay;
    bool KeyViewAll;
    bool MenuDisplay;
};

} // namespace zeph
