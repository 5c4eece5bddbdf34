// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// What the shell asks of the operating system.
class SystemInfo
{
public:
    virtual ~SystemInfo() = default;
    /// Windows with major version 6.
    virtual bool isVista() const;
};

/// The folder of Windows, without a closing separator: on Windows the system's own, elsewhere that
/// of the pilot's wine, and without wine the usual C:\Windows.
QString windowsFolder();

} // namespace zeph
