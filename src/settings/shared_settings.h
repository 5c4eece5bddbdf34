// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// What rooms that do not know each other share.
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
};

/// The name of whoever writes files, without the blanks around it: the given one, or what stands
/// for nobody.
QString personsNameOr(const QString &name);
/// How the pilot is addressed: by the callsign, or as everybody is for an empty one.
QString callsignOrBuddy(const QString &callsign);

} // namespace zeph
