// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "platform/icon_file.h"

namespace zeph {

/// A picture of the icons folder by its name without extension; an empty icon when it is missing.
inline QIcon iconNamed(const Paths &paths, QStringView name)
{
    const QString path = paths.inApp(u"icons/") + name.toString() + u".svg"_s;
    return fileExists(path) ? QIcon(path) : QIcon();
}

} // namespace zeph
