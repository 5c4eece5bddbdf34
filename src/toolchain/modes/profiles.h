// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "settings/settings.h"

namespace zeph {

class ToolchainHandshake;

/// How a profile is calibrated; Stored means as the settings say.
enum class CalibrationRequest { Stored = 0, Auto = 1, Manual = 2 };

/// The profile that resets the axes, its calibration and whether each download applies it: read
/// and written by themselves, the global save leaves them alone.
[[nodiscard]] SettingProblems GetResetAxes(Settings &settings, const SettingsFiles &files);
Expected<void, FileError> SaveResetProfiles(Settings &settings, const SettingsFiles &files);

/// Sends saved axis profiles (*.tmc) to the Cougar.
class Profiles
{
public:
    Profiles(const Context &context, ToolchainHandshake &handshake);

    /// Applies a profile (a name without extension; empty = the stored one) and waits for the
    /// tool. What is missing is told. False when the program ends meanwhile: the caller then
    /// touches nothing any more.
    bool ApplyDefaultProfile(const QString &name = {},
                             CalibrationRequest calibration = CalibrationRequest::Stored);
    /// Copies the profiles that came with Zeph to the tools' folder, at the first run, and
    /// overwrites none. Does nothing when the compiler is missing.
    void CopyTMCfiles();

private:
    bool isThere(const QString &name);
    void copyProfile(const QString &from, const QString &to);

    Context m_context;
    ToolchainHandshake &m_handshake;
};

} // namespace zeph
