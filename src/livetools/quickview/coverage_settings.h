// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// Where the coverage window is, in twips.
struct CoverageSettings {
    /// The defaults.
    CoverageSettings();

    static std::span<const SettingRow<CoverageSettings>> rows();

    double CoverageTop;
    double CoverageLeft;
    double CoverageWidth;
    double CoverageHeight;
};

} // namespace zeph
