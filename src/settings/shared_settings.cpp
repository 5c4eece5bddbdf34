// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/shared_settings.h"

#include <array>

namespace zeph {

namespace {

using S = SharedSettings;

constexpr QStringView misc = u"Miscellaneous";

constexpr std::array rows = {
    row(u"FileLocations", u"ShowTips", &S::ShowTips, true),
    row(misc, u"ValidUser", &S::ValidUser, u"User unknown", SavedAs{ 28 }),
    row(misc, u"PilotCallsign", &S::PilotCallsign, u"buddy", SavedAs{ 29 }),
    row(misc, u"DefaultToDX8KeyTester", &S::DefaultToDX8KeyTester, false, SavedAs{ 35 }),
    row(misc, u"MacroWithMouse", &S::MacroWithMouse, true, SavedAs{ 43 }),
    row(u"Apps", u"ImageFilePath", &S::ImageFilePath, u"", SavedAs{ 47 }),
    row(u"Apps", u"TextFilePath", &S::TextFilePath, u"", SavedAs{ 48 }),
    row(u"Unsupported", u"TurnOffFontCheck", &S::TurnOffFontCheck, false),
    row(u"Unsupported", u"UseHLPnotCHM", &S::UseHLPnotCHM, false),
};

QString trimmedOr(const QString &text, QString SharedSettings::*fallback)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? defaultOf(fallback) : trimmed;
}

} // namespace

SharedSettings::SharedSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<SharedSettings>> SharedSettings::rows()
{
    return zeph::rows;
}

QString personsNameOr(const QString &name)
{
    return trimmedOr(name, &SharedSettings::ValidUser);
}

QString callsignOrBuddy(const QString &callsign)
{
    return trimmedOr(callsign, &SharedSettings::PilotCallsign);
}

} // namespace zeph
