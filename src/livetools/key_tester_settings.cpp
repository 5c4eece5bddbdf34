// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_tester_settings.h"

#include <array>

namespace zeph {

namespace {

using S = KeyTesterSettings;

constexpr QStringView keyTester = u"Key Tester";

constexpr std::array rows = {
    row(keyTester, u"KeyTopAtStartup", &S::KeyTopAtStartup, 30, anyNumber),
    row(keyTester, u"KeyLeftAtStartup", &S::KeyLeftAtStartup, 30, anyNumber),
    row(keyTester, u"KeyWidthAtStartup", &S::KeyWidthAtStartup, 8250, anyNumber),
    row(keyTester, u"KeyHeightAtStartup", &S::KeyHeightAtStartup, 5250, anyNumber),
    row(keyTester, u"ClearDelay", &S::ClearDelay, -1, anyInteger),
    row(keyTester, u"KeyViewAll", &S::KeyViewAll, true),
    row(keyTester, u"MenuDisplay", &S::MenuDisplay, true),
};

} // namespace

KeyTesterSettings::KeyTesterSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<KeyTesterSettings>> KeyTesterSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
