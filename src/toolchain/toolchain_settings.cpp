// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/toolchain_settings.h"

#include <array>

namespace zeph {

namespace {

using S = ToolchainSettings;

constexpr QStringView misc = u"Miscellaneous";
constexpr QStringView unsupported = u"Unsupported";

constexpr std::array rows = {
    row(u"FileLocations", u"HotasFolder", &S::HotasFolder, u""),
    row(u"FileLocations", u"HOTASStatusBarErrors", &S::HOTASStatusBarErrors, false, SavedAs{ 5 }),
    row(misc, u"HideDownloadStatusWindow", &S::HideDownloadStatusWindow, false, SavedAs{ 11 }),
    row(misc, u"StatusDetectOnStartup", &S::StatusDetectOnStartup, false, SavedAs{ 13 }),
    row(misc, u"StatusMonitoringInterval", &S::StatusMonitoringInterval, 3, { 0, 60 },
        SavedAs{ 14 }),
    row(misc, u"PureWindows", &S::PureWindows, false, SavedAs{ 15 }),
    row(misc, u"RunAppsWithDownload", &S::RunAppsWithDownload, false, SavedAs{ 37 }),
    row(misc, u"RunKeyTest", &S::RunKeyTest, true, SavedAs{ 38 }),
    row(misc, u"TellStandIn", &S::TellStandIn, true),
    row(u"Apps", u"ResetProfile", &S::ResetProfile, u"Default"),
    row(u"Apps", u"ResetCalibrate", &S::ResetCalibrate, false),
    row(u"Apps", u"UseResetProfile", &S::UseResetProfile, false),
    row(u"Joystick Analyser", u"JoyIDnumber", &S::JoyIDnumber, 0, { 0, 15 }, SavedAs{ 49 }),
    row(unsupported, u"SynchroniseModeOnStartup", &S::SynchroniseModeOnStartup, false),
    row(unsupported, u"JoyTestConnect", &S::JoyTestConnect, false),
    row(unsupported, u"RegainControlAfter", &S::RegainControlAfter, 45000, anyNumber),
    row(unsupported, u"CheckForCompletionTime", &S::CheckForCompletionTime, 1000, anyNumber),
    row(u"Launcher", u"NumlockDownloadMode", &S::NumlockDownloadMode, false),
};

} // namespace

ToolchainSettings::ToolchainSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ToolchainSettings>> ToolchainSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
