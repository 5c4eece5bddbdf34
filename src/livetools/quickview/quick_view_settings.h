// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// What Quick View keeps.
struct QuickViewSettings {
    /// The defaults.
    QuickViewSettings();

    static std::span<const SettingRow<QuickViewSettings>> rows();

    bool Underscores; ///< "_" is shown as a blank
    bool RotaryStrip; ///< the numbers before the macros of RNG and ANT are left out
    /// Not 0 in manual mode, in which the joystick is not read. Stores of earlier programs hold
    /// numbers that need more than 16 bits.
    double DisableJoystick;
    bool ShowKeys; ///< keys instead of macros' names
    bool HideAllToolBars;
};

} // namespace zeph
