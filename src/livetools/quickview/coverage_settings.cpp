// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage_settings.h"

#include <array>

namespace zeph {

namespace {

using S = CoverageSettings;

constexpr QStringView section = u"QuickView";

constexpr std::array rows = {
    row(section, u"CoverageTop", &S::CoverageTop, 30, anyNumber),
    row(section, u"CoverageLeft", &S::CoverageLeft, 30, anyNumber),
    row(section, u"CoverageWidth", &S::CoverageWidth, 12000, anyNumber),
    row(section, u"CoverageHeight", &S::CoverageHeight, 9000, anyNumber),
};

} // namespace

CoverageSettings::CoverageSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<CoverageSettings>> CoverageSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
