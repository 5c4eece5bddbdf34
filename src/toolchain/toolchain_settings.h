// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// Compiling, downloading, the modes of the Cougar and the reset of its axes.
struct ToolchainSettings {
    /// The defaults.
    ToolchainSettings();

    static std::span<const SettingRow<ToolchainSettings>> rows();

    /// Where the Cougar's software lies; empty for the folder of the program (hotas_folder.h).
    QString HotasFolder;
    bool HOTASStatusBarErrors;
    bool HideDownloadStatusWindow;
    bool StatusDetectOnStartup;
    int StatusMonitoringInterval;
    bool PureWindows;
    bool RunAppsWithDownload;
    bool RunKeyTest;
    bool TellStandIn;
    QString ResetProfile;
    bool ResetCalibrate;
    bool UseResetProfile;
    int JoyIDnumber;
    bool SynchroniseModeOnStartup;
    bool JoyTestConnect;
    double RegainControlAfter;
    double CheckForCompletionTime;
    bool NumlockDownloadMode;
};

} // namespace zeph
