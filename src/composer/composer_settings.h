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
};

} // namespace zeph
