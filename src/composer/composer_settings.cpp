// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/composer_settings.h"

#include <array>

namespace zeph {

namespace {

using S = ComposerSettings;

constexpr std::array rows = {
    row(u"Miscellaneous", u"CompTabsAddCr", &S::CompTabsAddCr, true, SavedAs{ 27 }),
    row(u"Unsupported", u"ShowDX9to10", &S::ShowDX9to10, 0, { 0, 2 }),
};

} // namespace

ComposerSettings::ComposerSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ComposerSettings>> ComposerSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
