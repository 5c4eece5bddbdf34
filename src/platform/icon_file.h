// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QFileInfo>
#include <QIcon>

namespace zeph {

/// The picture of a file, crisp at every size; an empty one, without complaint, when it is missing.
inline QIcon iconFromFile(const QString &path)
{
    return QFileInfo::exists(path) ? QIcon(path) : QIcon();
}

} // namespace zeph
