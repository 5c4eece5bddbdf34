// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_settings.h"

#include <array>

namespace zeph {

namespace {

using S = TemplateSettings;

constexpr QStringView section = u"Template Editor";

constexpr std::array rows = {
    row(section, u"HideAppsToolBar", &S::HideAppsToolBar, false),
    row(section, u"TemplateTopAtStartup", &S::TemplateTopAtStartup, 0, anyNumber),
    row(section, u"TemplateLeftAtStartup", &S::TemplateLeftAtStartup, 0, anyNumber),
    row(section, u"TemplateWidthAtStartup", &S::TemplateWidthAtStartup, 0, anyNumber),
    row(section, u"TemplateHeightAtStartup", &S::TemplateHeightAtStartup, 0, anyNumber),
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
