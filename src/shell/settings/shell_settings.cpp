// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/settings/shell_settings.h"

#include <array>

namespace zeph {

namespace {

using S = ShellSettings;

constexpr QStringView misc = u"Miscellaneous";
constexpr QStringView unsupported = u"Unsupported";

constexpr std::array rows = {
    row(u"FileLocations", u"FirstTimeUsed", &S::FirstTimeUsed, 1, anyInteger, SavedAs{ 4 }),
    row(misc, u"MumTopAtStartup", &S::MumTopAtStartup, 0, anyNumber, SavedAs{ 30 }),
    row(misc, u"MumLeftAtStartup", &S::MumLeftAtStartup, 0, anyNumber, SavedAs{ 31 }),
    row(misc, u"MumWidthAtStartup", &S::MumWidthAtStartup, 13320, anyNumber, SavedAs{ 32 }),
    row(misc, u"MumHeightAtStartup", &S::MumHeightAtStartup, 8895, anyNumber, SavedAs{ 33 }),
    row(misc, u"MumWindowstate", &S::MumWindowstate, 2, anyInteger, SavedAs{ 34 }),
    row(unsupported, u"VersionURL", &S::VersionURL, u""),
};

} // namespace

ShellSettings::ShellSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ShellSettings>> ShellSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
