// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/system_info.h"

#include <QOperatingSystemVersion>

namespace zeph {

bool SystemInfo::isVista() const
{
    constexpr int vistaMajor = 6;
    const auto system = QOperatingSystemVersion::current();
    return system.type() == QOperatingSystemVersion::Windows && system.majorVersion() == vistaMajor;
}

} // namespace zeph
