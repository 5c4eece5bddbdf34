// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

namespace zeph {

class ToolchainHandshake;

/// Which calibration goes with a profile; the numbers are those of the request.
enum class CalibrationRequest { Stored = 0, Auto = 1, Manual = 2 };

/// Where the tools keep the profiles, with a closing separator.
QString profilesFolder(const Paths &paths);
/// The profiles (*.tmc) of a folder by name, without the ending, in the order of the alphabet.
QStringList profileNames(const QString &folder);

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
    /// The first run's step: profiles that came with Zeph go where the tools look, none is
    /// overwritten. Without the compiler nothing happens.
    void CopyTMCfiles();

private:
    bool isThere(const QString &name);
    void copyProfile(const QString &from, const QString &to);

    Context m_context;
    ToolchainHandshake &m_handshake;
};

} // namespace zeph
