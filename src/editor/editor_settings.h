// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// The settings of files, macros and editing tools.
struct EditorSettings {
    /// Starts with the defaults.
    EditorSettings();

    static std::span<const SettingRow<EditorSettings>> rows();

    QString WinZipFilePath;
    QString BackUpFolder;
    bool AlwaysShowCompileDownload;
    bool AutoSaveEnabled;
    int AutoSaveTime;
    bool TileFiles;
    bool RestoreStatus;
    QString RestoreJoyFile;
    QString RestoreMacroFile;
    bool UpdateModified;
    bool BackUpDateInfo;
    bool CreateBackup;
    bool AddCRtoREM;
    int MacroFrameWidth;
    bool OpenSingleFileOnly;
    int IndentSpaces;
    bool IndentAsWell;
    bool MacroSaveUpdateMacros;
    bool MacroSaveIdentifyJF;
    bool MacroHighlightedInMacroFile;
    int DefaultDLYvalue;
};

} // namespace zeph
