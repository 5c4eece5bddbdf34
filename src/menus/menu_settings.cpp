// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/menu_settings.h"

#include <array>

namespace zeph {

namespace {

using S = MenuSettings;

constexpr QStringView misc = u"Miscellaneous";

constexpr std::array rows = {
    row(u"FileLocations", u"GamesCaption", &S::GamesCaption, u"&Games", SavedAs{ 3 }),
    row(misc, u"OKtoShowToolTips", &S::OKtoShowToolTips, true, SavedAs{ 18 }),
    row(misc, u"OpenBothOnToolbar", &S::OpenBothOnToolbar, true, SavedAs{ 19 }),
    row(misc, u"SaveBothOnToolbar", &S::SaveBothOnToolbar, false, SavedAs{ 20 }),
    row(misc, u"ButtonsOnStatusBar", &S::ButtonsOnStatusBar, true, SavedAs{ 22 }),
};

} // namespace

MenuSettings::MenuSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<MenuSettings>> MenuSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
