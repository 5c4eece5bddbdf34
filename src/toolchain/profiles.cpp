// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/profiles.h"

namespace zeph {

Profiles::Profiles(const Context &context, ToolchainHandshake &handshake)
    : m_context(context), m_handshake(handshake)
{
}

bool Profiles::ApplyDefaultProfile(const QString &, CalibrationRequest)
{
    return true;
}

void Profiles::CopyTMCfiles() { }

} // namespace zeph
