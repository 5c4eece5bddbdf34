// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/logic_flags_settings.h"

#include <array>

namespace zeph {

namespace {

using S = LogicFlagsSettings;

constexpr QStringView detector = u"Logical Flags Detector";

constexpr std::array rows = {
    row(detector, u"LogicDetectorTop", &S::LogicDetectorTop, 10, anyNumber),
    row(detector, u"LogicDetectorLeft", &S::LogicDetectorLeft, 10, anyNumber),
};

} // namespace

LogicFlagsSettings::LogicFlagsSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<LogicFlagsSettings>> LogicFlagsSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
