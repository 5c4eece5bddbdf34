// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/profile_files.h"

#include "language/file_kinds.h"

#include <QDir>

namespace zeph {

QString profilesFolder(const Paths &paths)
{
    return paths.hotasFolder + u"Profiles"_s + QDir::separator();
}

QStringList profileFiles(const QString &folder)
{
    const QString found = existingPath(folder);
    // QDir takes an empty name for the current folder.
    return found.isEmpty()
        ? QStringList()
        : QDir(found).entryList({ u'*' + profileExtension.toString() },
                                QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
}

QStringList profileNames(const QString &folder)
{
    QStringList names = profileFiles(folder);
    for (QString &name : names) {
        name.chop(profileExtension.size());
    }
    return names;
}

} // namespace zeph
