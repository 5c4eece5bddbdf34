// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/tumbo_settings.h"

#include <array>

namespace zeph {

namespace {

using S = TumboSettings;

constexpr QStringView tumbo = u"Tumbo";

constexpr std::array rows = {
    row(tumbo, u"AddTumboCR", &S::AddTumboCR, true),
    row(tumbo, u"AddRawBrackets", &S::AddRawBrackets, true),
    row(tumbo, u"UseShfKey", &S::UseShfKey, true),
    row(tumbo, u"TumboControlBox", &S::TumboControlBox, true),
    row(tumbo, u"ViewUSBcodes", &S::ViewUSBcodes, false),
    row(tumbo, u"HideBasicHelp", &S::HideBasicHelp, false),
    row(tumbo, u"AlwaysInsert", &S::AlwaysInsert, false),
    row(tumbo, u"TumboTop", &S::TumboTop, 10, anyNumber),
    row(tumbo, u"TumboLeft", &S::TumboLeft, 10, anyNumber),
};

} // namespace

TumboSettings::TumboSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<TumboSettings>> TumboSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
