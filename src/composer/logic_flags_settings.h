// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// The window LogicFlagsDetected.
struct LogicFlagsSettings {
    /// The defaults.
    LogicFlagsSettings();

    static std::span<const SettingRow<LogicFlagsSettings>> rows();

    double LogicDetectorTop; ///< twips
    double LogicDetectorLeft; ///< twips
};

} // namespace zeph
