// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_attributes.h"

#include <QFileInfo>

namespace zeph {

bool isReadOnlyFile(const QString &path)
{
    constexpr QFile::Permissions anyWrite =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo info(path);
    return info.exists() && (!(info.permissions() & anyWrite) || !info.isWritable());
}

} // namespace zeph
