// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "settings/setting_row.h"

namespace zeph {

/// The files in which settings are kept.
struct SettingsFiles {
    ProfileFile store;
    ProfileFile hotasIni;
    ProfileFile layoutsIni;

    const ProfileFile &at(SettingsStore which) const
    {
        switch (which) {
        case SettingsStore::Hotas:
            return hotasIni;
        case SettingsStore::Layouts:
            return layoutsIni;
        case SettingsStore::Zeph:
            break;
        }
        return store;
    }
};

/// The files in which a run with these paths keeps its settings.
inline SettingsFiles settingsFilesOf(const Paths &paths)
{
    return { ProfileFile(paths.iniPath), ProfileFile(paths.hotasIni(), ProfileUse::Shared),
             ProfileFile(paths.inApp(u"Layouts.ini")) };
}

/// Writes the folder of the user's files into HOTAS.ini, where the toolchain reads it.
inline Expected<void, FileError> saveFilesFolder(const SettingsFiles &files, const QString &folder)
{
    return files.hotasIni.write({ u"Files"_s, u"Files"_s, folder });
}

} // namespace zeph
