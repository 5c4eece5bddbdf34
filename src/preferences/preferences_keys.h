// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which settings Preferences edits, and through which field of which tab: one table, for the window
// and for the tests that walk through it.

#include <QStringView>

#include <array>

namespace zeph {

/// The tabs in their order.
enum class PreferencesTab {
    FileLocations,
    ColoursFonts,
    Apps,
    Favourites,
    Games,
    OpenSaveUndo,
    Misc,
    DefaultOptions,
    Zeph
};

enum class FieldKind {
    Tick, ///< 0 or 1
    Number, ///< a line of text, taken by the key's number rule
    Text, ///< a line of text
    Choice, ///< an entry of a list, stored by its place
    Entry, ///< an entry of a list, stored by its text
    Amount, ///< a number that can only be in range
    Colour, ///< a line of the list of colours, changed in the colour dialog
    MakeDefault ///< a button that takes the selected favourite's name
};

struct PreferencesKey {
    PreferencesTab tab;
    QStringView section;
    QStringView key;
    FieldKind kind;
    QStringView control; ///< object name of the field
    int first = 0; ///< what a choice's first entry is stored as; a colour's line in its list
};

namespace preferences_keys {

constexpr PreferencesKey row(PreferencesTab tab, QStringView section, QStringView key,
                             FieldKind kind = FieldKind::Tick)
{
    return { tab, section, key, kind, key };
}
constexpr PreferencesKey inDefaults(QStringView key, QStringView control)
{
    return { PreferencesTab::DefaultOptions, u"Defaults", key, FieldKind::Tick, control };
}

constexpr PreferencesKey colour(QStringView key, int line)
{
    return { PreferencesTab::ColoursFonts, u"Colours", key, FieldKind::Colour, u"List1", line };
}
constexpr PreferencesKey ofApp(QStringView key, QStringView control,
                               FieldKind kind = FieldKind::Text)
{
    return { PreferencesTab::Apps, u"Apps", key, kind, control };
}

constexpr QStringView locations = u"FileLocations";
constexpr QStringView misc = u"Miscellaneous";

using enum PreferencesTab;
using enum FieldKind;

/// Keys of the section Defaults stand in HOTAS.ini, all others in the settings store.
constexpr std::array table = {
    row(FileLocations, locations, u"WinZipFilePath", Text),

    colour(u"BTNColour", 0),
    colour(u"BackgroundColour", 1),
    colour(u"RemStatements", 2),
    colour(u"SlashColour", 3),
    colour(u"RAWColour", 4),
    colour(u"MiscellaneousColour", 5),
    colour(u"MacroBackgroundColour", 6),
    colour(u"JoystickTextDefaultColour", 7),
    colour(u"MacroTextDefaultColour", 8),
    colour(u"MacroListBackground", 9),
    colour(u"MacroListText", 10),
    colour(u"MacroHeadingsBackground", 11),
    colour(u"MacroHeadingsText", 12),
    row(ColoursFonts, u"Colours", u"TextFontName", Entry),
    row(ColoursFonts, u"Colours", u"TextFontSize", Amount),
    row(ColoursFonts, u"Colours", u"TextFontBold"),

    row(Apps, u"Apps", u"ImageFilePath", Text),
    row(Apps, u"Apps", u"TextFilePath", Text),
    ofApp(u"CustomAppName1", u"CustomAppName_1"),
    ofApp(u"CustomAppPath1", u"CustomAppPath_1"),
    ofApp(u"CustomAppUse1", u"CustomAppUse_1", Tick),
    ofApp(u"CustomAppName2", u"CustomAppName_2"),
    ofApp(u"CustomAppPath2", u"CustomAppPath_2"),
    ofApp(u"CustomAppUse2", u"CustomAppUse_2", Tick),
    ofApp(u"CustomAppName3", u"CustomAppName_3"),
    ofApp(u"CustomAppPath3", u"CustomAppPath_3"),
    ofApp(u"CustomAppUse3", u"CustomAppUse_3", Tick),
    ofApp(u"CustomAppName4", u"CustomAppName_4"),
    ofApp(u"CustomAppPath4", u"CustomAppPath_4"),
    ofApp(u"CustomAppUse4", u"CustomAppUse_4", Tick),

    // The first entry stands for all of a list.
    PreferencesKey{ Favourites, u"Favourites", u"FavName1", Text, u"FavName" },
    PreferencesKey{ Favourites, u"Favourites", u"FavJFPath1", Text, u"FavJFPath" },
    PreferencesKey{ Favourites, u"Favourites", u"FavMFPath1", Text, u"FavMFPath" },
    PreferencesKey{ Favourites, u"Favourites", u"FavNameToLoad", MakeDefault, u"cmdMakeDefault" },
    row(Favourites, u"Favourites", u"FavLoadOnStart"),

    PreferencesKey{ Games, u"Games", u"GameName1", Text, u"GameName" },
    PreferencesKey{ Games, u"Games", u"GamePath1", Text, u"GamePath" },
    PreferencesKey{ Games, u"Games", u"GameDIRPath1", Text, u"GameDIRPath" },
    PreferencesKey{ Games, u"Games", u"GameJF1", Text, u"GameJF" },
    PreferencesKey{ Games, u"Games", u"GameJFmode1", Tick, u"CheckWindowsMode" },

    row(OpenSaveUndo, misc, u"OpenBothOnToolbar"),
    row(OpenSaveUndo, misc, u"SaveBothOnToolbar"),
    row(OpenSaveUndo, misc, u"RestoreStatus"),
    row(OpenSaveUndo, misc, u"UpdateModified"),
    row(OpenSaveUndo, misc, u"AutoSaveEnabled"),
    row(OpenSaveUndo, misc, u"AutoSaveTime", Number),
    row(OpenSaveUndo, misc, u"CreateBackup"),
    row(OpenSaveUndo, misc, u"BackUpDateInfo"),
    row(OpenSaveUndo, locations, u"BackUpFolder", Text),
    row(OpenSaveUndo, misc, u"UndoMax", Number),
    row(OpenSaveUndo, misc, u"UndoClearOnSave"),
    row(OpenSaveUndo, misc, u"HighlightLineOnUndo"),

    row(Misc, misc, u"ButtonsOnStatusBar"),
    row(Misc, misc, u"OKtoShowToolTips"),
    row(Misc, locations, u"HOTASStatusBarErrors"),
    row(Misc, misc, u"HideDownloadStatusWindow"),
    row(Misc, locations, u"GamesCaption", Text),
    row(Misc, u"Composer", u"DefaultDLYvalue", Number),
    row(Misc, misc, u"StatusDetectOnStartup"),
    row(Misc, misc, u"StatusMonitoringInterval", Number),
    row(Misc, misc, u"PureWindows"),
    row(Misc, u"Joystick Analyser", u"JoyIDnumber", Choice),

    PreferencesKey{ DefaultOptions, u"Defaults", u"POVhat", Choice, u"Combo_defaultPOV", 1 },
    inDefaults(u"POVUD", u"CHK_Default_0"),
    inDefaults(u"MicrostickMouse", u"CHK_Default_1"),
    inDefaults(u"MicrostickUD", u"CHK_Default_2"),
    inDefaults(u"TG1enabled", u"CHK_Default_3"),
    inDefaults(u"S2enabled", u"CHK_Default_4"),
    inDefaults(u"RCSType", u"CHK_Default_5"),
    inDefaults(u"MDEFrequired", u"CHK_Default_6"),
    inDefaults(u"DownloadMode", u"CHK_Default_7"),

    row(Zeph, misc, u"ValidUser", Text),
    row(Zeph, misc, u"PilotCallsign", Text),
    row(Zeph, locations, u"ShowTips"),
    row(Zeph, misc, u"OpenSingleFileOnly"),
    row(Zeph, misc, u"TileFiles"),
    row(Zeph, misc, u"LineNumbers"),
    row(Zeph, misc, u"CurrentLineMark"),
    row(Zeph, misc, u"IndentAsWell"),
    row(Zeph, misc, u"IndentSpaces", Number),
    row(Zeph, misc, u"AddCRtoREM"),
    row(Zeph, misc, u"MacroSaveUpdateMacros"),
    row(Zeph, misc, u"MacroSaveIdentifyJF"),
    row(Zeph, misc, u"MacroWithMouse"),
    row(Zeph, misc, u"MacroHighlightedInMacroFile"),
    row(Zeph, misc, u"RunKeyTest"),
    row(Zeph, misc, u"RunAppsWithDownload"),
    row(Zeph, u"Launcher", u"NumlockDownloadMode"),
};

} // namespace preferences_keys

constexpr const auto &preferencesKeys()
{
    return preferences_keys::table;
}

} // namespace zeph
