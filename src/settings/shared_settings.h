// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// Settings that several rooms use which do not include each other.
struct SharedSettings {
    /// The defaults.
    SharedSettings();

    static std::span<const SettingRow<SharedSettings>> rows();

    bool ShowTips;
    QString ValidUser;
    QString PilotCallsign;
    bool DefaultToDX8KeyTester;
    bool MacroWithMouse;
    QString ImageFilePath;
    QString TextFilePath;
    bool TurnOffFontCheck;
    bool UseHLPnotCHM;
};

/// The author's name for files: the given one without the blanks around it, or the default of
/// ValidUser when it is empty.
QString personsNameOr(const QString &name);
/// The name by which the pilot is addressed: the callsign without the blanks around it, or the
/// default of PilotCallsign when it is empty.
QString callsignOrBuddy(const QString &callsign);

} // namespace zeph
