// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/backup_folder.h"

#include "platform/core/paths.h"
#include "platform/dialogs.h"

#include <filesystem>

namespace zeph {

namespace {

std::error_code makeFolder(const QString &folder)
{
    std::error_code error;
    if (!folderExists(folder)) {
        std::filesystem::create_directories(
            std::filesystem::path(withClosingSeparator(folder).chopped(1).toStdU16String()), error);
    }
    return error;
}

} // namespace

QString checkedBackupFolder(const QString &wanted, const Paths &paths, Dialogs &dialogs)
{
    const QString standard = paths.defaultBackupFolder();
    const QString folder =
        wanted.isEmpty() ? standard : withClosingSeparator(nativeSeparators(wanted));
    const std::error_code error = makeFolder(folder);
    if (!error) {
        return folder;
    }
    dialogs.tell(u"Backup folder location error"_s,
                 u"There's a problem with your backup folder. Either it doesn't exist or I can't "
                 "create it. Please edit your preferences. In the meantime I will change it to the "
                 "default location.\n\nError reported from Windows: Error number = "_s
                     + QString::number(error.value()) + u"\n Description = "_s
                     + QString::fromLocal8Bit(error.message()),
                 BoxIcon::Exclamation);
    makeFolder(standard);
    return standard;
}

} // namespace zeph
