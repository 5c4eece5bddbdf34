// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_attributes.h"

#include <QFileInfo>

namespace zeph {

bool isReadOnlyFile(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && (!info.permission(QFile::WriteOwner) || !info.isWritable());
}

} // namespace zeph
