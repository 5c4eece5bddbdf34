// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/quick_view_settings.h"

#include <array>

namespace zeph {

namespace {

using S = QuickViewSettings;

constexpr QStringView section = u"QuickView";

constexpr std::array rows = {
    row(section, u"Underscores", &S::Underscores, true),
    row(section, u"RotaryStrip", &S::RotaryStrip, true),
    row(section, u"DisableJoystick", &S::DisableJoystick, 0, anyNumber),
    row(section, u"ShowKeys", &S::ShowKeys, false),
    in(SettingsStore::Layouts, row(u"Quick View", u"HideAllToolBars", &S::HideAllToolBars, false)),
};

} // namespace

QuickViewSettings::QuickViewSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<QuickViewSettings>> QuickViewSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
