// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// The Composer.
struct ComposerSettings {
    /// The defaults.
    ComposerSettings();

    static std::span<const SettingRow<ComposerSettings>> rows();

    bool CompTabsAddCr;
    /// DirectX axes 9 and 10: 0 not offered, 1 offered, 2 in use.
    int ShowDX9to10;
};

} // namespace zeph
