// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_settings.h"

#include <array>

namespace zeph {

namespace {

using S = TemplateSettings;

constexpr std::array rows = {
    row(u"Template Editor", u"HideAppsToolBar", &S::HideAppsToolBar, false),
};

} // namespace

TemplateSettings::TemplateSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<TemplateSettings>> TemplateSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
