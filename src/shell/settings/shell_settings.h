// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// The start of a run, its main window and the help.
struct ShellSettings {
    /// The defaults.
    ShellSettings();

    static std::span<const SettingRow<ShellSettings>> rows();

    int FirstTimeUsed;
    double MumTopAtStartup;
    double MumLeftAtStartup;
    double MumWidthAtStartup;
    double MumHeightAtStartup;
    int MumWindowstate;
    QString VersionURL;
};

} // namespace zeph
