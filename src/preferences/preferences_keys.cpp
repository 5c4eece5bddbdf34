// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences_keys.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

namespace zeph {

namespace {

using enum PreferencesTab;
using enum FieldKind;

FieldKind usualKind(const SettingKey &key)
{
    switch (defaultOf(key).index()) {
    case 0:
        return Text;
    case 1:
        return Tick;
    default:
        return Number;
    }
}

/// The field has the name of its key.
PreferencesKey field(PreferencesTab tab, const SettingRef &setting, FieldKind kind)
{
    const SettingKey &key = setting.key();
    return { tab, key.section, key.key, kind, key.key, 0, setting };
}
PreferencesKey field(PreferencesTab tab, const SettingRef &setting)
{
    return field(tab, setting, usualKind(setting.key()));
}

PreferencesKey colour(const SettingRef &setting, int line)
{
    PreferencesKey result = field(ColoursFonts, setting, Colour);
    result.control = u"List1";
    result.first = line;
    return result;
}

PreferencesKey inDefaults(const SettingRef &setting, QStringView control, FieldKind kind = Tick,
                          int first = 0)
{
    PreferencesKey result = field(PreferencesTab::DefaultOptions, setting, kind);
    result.control = control;
    result.first = first;
    return result;
}

PreferencesKey ofList(PreferencesTab tab, QStringView section, QStringView key, FieldKind kind,
                      QStringView control)
{
    return { tab, section, key, kind, control };
}

const PreferencesKey table[] = {
    field(FileLocations, &EditorSettings::WinZipFilePath),

    colour(&ColourSettings::BTNColour, 0),
    colour(&ColourSettings::BackgroundColour, 1),
    colour(&ColourSettings::RemStatements, 2),
    colour(&ColourSettings::SlashColour, 3),
    colour(&ColourSettings::RAWColour, 4),
    colour(&ColourSettings::MiscellaneousColour, 5),
    colour(&ColourSettings::MacroBackgroundColour, 6),
    colour(&ColourSettings::JoystickTextDefaultColour, 7),
    colour(&ColourSettings::MacroTextDefaultColour, 8),
    colour(&ColourSettings::MacroListBackground, 9),
    colour(&ColourSettings::MacroListText, 10),
    colour(&ColourSettings::MacroHeadingsBackground, 11),
    colour(&ColourSettings::MacroHeadingsText, 12),
    field(ColoursFonts, &ColourSettings::TextFontName, Entry),
    field(ColoursFonts, &ColourSettings::TextFontSize, Amount),
    field(ColoursFonts, &ColourSettings::TextFontBold),

    field(Apps, &SharedSettings::ImageFilePath),
    field(Apps, &SharedSettings::TextFilePath),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName1", Text, u"CustomAppName_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath1", Text, u"CustomAppPath_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse1", Tick, u"CustomAppUse_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName2", Text, u"CustomAppName_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath2", Text, u"CustomAppPath_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse2", Tick, u"CustomAppUse_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName3", Text, u"CustomAppName_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath3", Text, u"CustomAppPath_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse3", Tick, u"CustomAppUse_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName4", Text, u"CustomAppName_4"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath4", Text, u"CustomAppPath_4"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse4", Tick, u"CustomAppUse_4"),

    // One row a field: the first entry's key represents those of all entries.
    ofList(Favourites, u"Favourites", u"FavName1", Text, u"FavName"),
    ofList(Favourites, u"Favourites", u"FavJFPath1", Text, u"FavJFPath"),
    ofList(Favourites, u"Favourites", u"FavMFPath1", Text, u"FavMFPath"),
    ofList(Favourites, u"Favourites", u"FavNameToLoad", MakeDefault, u"cmdMakeDefault"),
    ofList(Favourites, u"Favourites", u"FavLoadOnStart", Tick, u"FavLoadOnStart"),

    ofList(Games, u"Games", u"GameName1", Text, u"GameName"),
    ofList(Games, u"Games", u"GamePath1", Text, u"GamePath"),
    ofList(Games, u"Games", u"GameDIRPath1", Text, u"GameDIRPath"),
    ofList(Games, u"Games", u"GameJF1", Text, u"GameJF"),
    ofList(Games, u"Games", u"GameJFmode1", Tick, u"CheckWindowsMode"),

    field(OpenSaveUndo, &MenuSettings::OpenBothOnToolbar),
    field(OpenSaveUndo, &MenuSettings::SaveBothOnToolbar),
    field(OpenSaveUndo, &EditorSettings::RestoreStatus),
    field(OpenSaveUndo, &EditorSettings::UpdateModified),
    field(OpenSaveUndo, &EditorSettings::AutoSaveEnabled),
    field(OpenSaveUndo, &EditorSettings::AutoSaveTime),
    field(OpenSaveUndo, &EditorSettings::CreateBackup),
    field(OpenSaveUndo, &EditorSettings::BackUpDateInfo),
    field(OpenSaveUndo, &EditorSettings::BackUpFolder),
    field(OpenSaveUndo, &DocumentSettings::UndoMax),
    field(OpenSaveUndo, &DocumentSettings::UndoClearOnSave),
    field(OpenSaveUndo, &DocumentSettings::HighlightLineOnUndo),

    field(Misc, &MenuSettings::ButtonsOnStatusBar),
    field(Misc, &MenuSettings::OKtoShowToolTips),
    field(Misc, &ToolchainSettings::HOTASStatusBarErrors),
    field(Misc, &ToolchainSettings::HideDownloadStatusWindow),
    field(Misc, &MenuSettings::GamesCaption),
    field(Misc, &EditorSettings::DefaultDLYvalue),
    field(Misc, &ToolchainSettings::StatusDetectOnStartup),
    field(Misc, &ToolchainSettings::StatusMonitoringInterval),
    field(Misc, &ToolchainSettings::PureWindows),
    field(Misc, &ToolchainSettings::JoyIDnumber, Choice),

    inDefaults(&zeph::DefaultOptions::POVhat, u"Combo_defaultPOV", Choice, 1),
    inDefaults(&zeph::DefaultOptions::POVUD, u"CHK_Default_0"),
    inDefaults(&zeph::DefaultOptions::MicrostickMouse, u"CHK_Default_1"),
    inDefaults(&zeph::DefaultOptions::MicrostickUD, u"CHK_Default_2"),
    inDefaults(&zeph::DefaultOptions::TG1enabled, u"CHK_Default_3"),
    inDefaults(&zeph::DefaultOptions::S2enabled, u"CHK_Default_4"),
    inDefaults(&zeph::DefaultOptions::RCSType, u"CHK_Default_5"),
    inDefaults(&zeph::DefaultOptions::MDEFrequired, u"CHK_Default_6"),
    inDefaults(&zeph::DefaultOptions::DownloadMode, u"CHK_Default_7"),

    field(Zeph, &SharedSettings::ValidUser),
    field(Zeph, &SharedSettings::PilotCallsign),
    field(Zeph, &SharedSettings::ShowTips),
    field(Zeph, &EditorSettings::OpenSingleFileOnly),
    field(Zeph, &EditorSettings::TileFiles),
    field(Zeph, &DocumentSettings::LineNumbers),
    field(Zeph, &DocumentSettings::CurrentLineMark),
    field(Zeph, &EditorSettings::IndentAsWell),
    field(Zeph, &EditorSettings::IndentSpaces),
    field(Zeph, &EditorSettings::AddCRtoREM),
    field(Zeph, &EditorSettings::MacroSaveUpdateMacros),
    field(Zeph, &EditorSettings::MacroSaveIdentifyJF),
    field(Zeph, &SharedSettings::MacroWithMouse),
    field(Zeph, &EditorSettings::MacroHighlightedInMacroFile),
    field(Zeph, &ToolchainSettings::RunKeyTest),
    field(Zeph, &ToolchainSettings::RunAppsWithDownload),
    field(Zeph, &ToolchainSettings::NumlockDownloadMode),
};

} // namespace

std::span<const PreferencesKey> preferencesKeys()
{
    return table;
}

} // namespace zeph
