// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor_settings.h"

#include "text/alignment.h"

#include <array>

namespace zeph {

namespace {

using S = EditorSettings;

constexpr QStringView locations = u"FileLocations";
constexpr QStringView misc = u"Miscellaneous";

constexpr std::array rows = {
    row(locations, u"WinZipFilePath", &S::WinZipFilePath, u"", SavedAs{ 1 }),
    row(locations, u"BackUpFolder", &S::BackUpFolder, u"", SavedAs{ 2 }),
    row(locations, u"AlwaysShowCompileDownload", &S::AlwaysShowCompileDownload, false),
    row(misc, u"AutoSaveEnabled", &S::AutoSaveEnabled, false, SavedAs{ 6 }),
    row(misc, u"AutoSaveTime", &S::AutoSaveTime, 10, { 1, 32767 }, SavedAs{ 7 }),
    row(misc, u"TileFiles", &S::TileFiles, false),
    row(misc, u"RestoreStatus", &S::RestoreStatus, true, SavedAs{ 8 }),
    row(misc, u"RestoreJoyFile", &S::RestoreJoyFile, u"", SavedAs{ 9 }),
    row(misc, u"RestoreMacroFile", &S::RestoreMacroFile, u"", SavedAs{ 10 }),
    row(misc, u"UpdateModified", &S::UpdateModified, true, SavedAs{ 12 }),
    row(misc, u"BackUpDateInfo", &S::BackUpDateInfo, false, SavedAs{ 16 }),
    row(misc, u"CreateBackup", &S::CreateBackup, true, SavedAs{ 17 }),
    row(misc, u"AddCRtoREM", &S::AddCRtoREM, true, SavedAs{ 21 }),
    row(misc, u"MacroFrameWidth", &S::MacroFrameWidth, 185, { 185, 32767 }, SavedAs{ 23 }),
    row(misc, u"OpenSingleFileOnly", &S::OpenSingleFileOnly, false, SavedAs{ 36 }),
    row(misc, u"IndentSpaces", &S::IndentSpaces, 5, { 0, mostIndentSpaces }, SavedAs{ 39 }),
    row(misc, u"IndentAsWell", &S::IndentAsWell, false, SavedAs{ 40 }),
    row(misc, u"MacroSaveUpdateMacros", &S::MacroSaveUpdateMacros, true, SavedAs{ 41 }),
    row(misc, u"MacroSaveIdentifyJF", &S::MacroSaveIdentifyJF, true, SavedAs{ 42 }),
    row(misc, u"MacroHighlightedInMacroFile", &S::MacroHighlightedInMacroFile, false,
        SavedAs{ 44 }),
    row(u"Composer", u"DefaultDLYvalue", &S::DefaultDLYvalue, 60, { 0, 32767 }, SavedAs{ 50 }),
};

} // namespace

EditorSettings::EditorSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<EditorSettings>> EditorSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
