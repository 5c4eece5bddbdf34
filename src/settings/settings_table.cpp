// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/global_settings.h"

#include <array>

// The table of all settings. Order matters: reading walks it from top to bottom.

namespace zeph {

namespace {

using G = GlobalSettings;

constexpr Setting text(QStringView section, QStringView key, QString G::*field, QStringView missing,
                       bool saved)
{
    return { .section = section, .key = key, .field = field, .missing = missing, .saved = saved };
}

constexpr Setting integer(QStringView section, QStringView key, qint16 G::*field,
                          QStringView missing, bool saved)
{
    return { .section = section,
             .key = key,
             .form = SettingForm::Integer,
             .field = field,
             .missing = missing,
             .saved = saved };
}

constexpr Setting number(QStringView section, QStringView key, QString G::*field,
                         QStringView missing, bool saved)
{
    return { .section = section,
             .key = key,
             .form = SettingForm::Number,
             .field = field,
             .missing = missing,
             .saved = saved };
}

constexpr Setting inColours(QStringView key, SettingForm form, SettingField field,
                            QStringView missing, QStringView firstRun, bool saved = false)
{
    return { .step = SettingsStep::Colours,
             .section = u"Colours",
             .key = key,
             .form = form,
             .field = field,
             .missing = missing,
             .saved = saved,
             .firstRun = firstRun };
}

constexpr Setting colour(QStringView key, ColorRef G::*field, QStringView missing,
                         QStringView firstRun, bool saved = false)
{
    return inColours(key, SettingForm::Colour, field, missing, firstRun, saved);
}

constexpr bool saved = true;
constexpr bool notSaved = false;

constexpr QStringView locations = u"FileLocations";
constexpr QStringView misc = u"Miscellaneous";
constexpr QStringView unsupported = u"Unsupported";
constexpr QStringView keyTester = u"Key Tester";

// What a deleted colour key reads as; not the first run's colour, so that the loss is seen.
constexpr QStringView lost = u"16744448";

constexpr std::array table = {
    text(locations, u"WinZipFilePath", &G::WinZipFilePath, u"", saved),
    text(locations, u"BackUpFolder", &G::BackUpFolder, u"", saved),
    text(locations, u"GamesCaption", &G::GamesCaption, u"&Games", saved),
    integer(locations, u"ShowTips", &G::ShowTips, u"1", notSaved),
    integer(locations, u"FirstTimeUsed", &G::FirstTimeUsed, u"1", saved),
    integer(locations, u"AlwaysShowCompileDownload", &G::AlwaysShowCompileDownload, u"0", notSaved),
    integer(locations, u"HOTASStatusBarErrors", &G::HOTASStatusBarErrors, u"0", saved),

    integer(misc, u"AutoSaveEnabled", &G::AutoSaveEnabled, u"0", saved),
    integer(misc, u"AutoSaveTime", &G::AutoSaveTime, u"10", saved),
    integer(misc, u"TileFiles", &G::TileFiles, u"0", notSaved),
    integer(misc, u"RestoreStatus", &G::RestoreStatus, u"1", saved),
    text(misc, u"RestoreJoyFile", &G::RestoreJoyFile, u"", saved),
    text(misc, u"RestoreMacroFile", &G::RestoreMacroFile, u"", saved),
    integer(misc, u"HideDownloadStatusWindow", &G::HideDownloadStatusWindow, u"0", saved),
    integer(misc, u"UpdateModified", &G::UpdateModified, u"1", saved),
    integer(misc, u"StatusDetectOnStartup", &G::StatusDetectOnStartup, u"0", saved),
    integer(misc, u"StatusMonitoringInterval", &G::StatusMonitoringInterval, u"3", saved),
    integer(misc, u"PureWindows", &G::PureWindows, u"0", saved),
    integer(misc, u"BackUpDateInfo", &G::BackUpDateInfo, u"0", saved),
    integer(misc, u"CreateBackup", &G::CreateBackup, u"1", saved),
    integer(misc, u"OKtoShowToolTips", &G::OKtoShowToolTips, u"1", saved),
    integer(misc, u"OpenBothOnToolbar", &G::OpenBothOnToolbar, u"1", saved),
    integer(misc, u"SaveBothOnToolbar", &G::SaveBothOnToolbar, u"0", saved),
    integer(misc, u"AddCRtoREM", &G::AddCRtoREM, u"1", saved),
    integer(misc, u"ButtonsOnStatusBar", &G::ButtonsOnStatusBar, u"1", saved),
    integer(misc, u"MacroFrameWidth", &G::MacroFrameWidth, u"185", saved),
    integer(misc, u"HighlightLineOnUndo", &G::HighlightLineOnUndo, u"0", saved),
    integer(misc, u"UndoMax", &G::UndoMax, u"20", saved),
    integer(misc, u"UndoClearOnSave", &G::UndoClearOnSave, u"0", saved),
    integer(misc, u"CompTabsAddCr", &G::CompTabsAddCr, u"1", saved),
    text(misc, u"ValidUser", &G::ValidUser, u"User unknown", saved),
    text(misc, u"PilotCallsign", &G::PilotCallsign, u"buddy", saved),
    number(misc, u"MumTopAtStartup", &G::MumTopAtStartup, u"0", saved),
    number(misc, u"MumLeftAtStartup", &G::MumLeftAtStartup, u"0", saved),
    number(misc, u"MumWidthAtStartup", &G::MumWidthAtStartup, u"13320", saved),
    number(misc, u"MumHeightAtStartup", &G::MumHeightAtStartup, u"8895", saved),
    integer(misc, u"MumWindowstate", &G::MumWindowstate, u"2", saved),
    integer(misc, u"DefaultToDX8KeyTester", &G::DefaultToDX8KeyTester, u"0", saved),
    integer(misc, u"OpenSingleFileOnly", &G::OpenSingleFileOnly, u"0", saved),
    integer(misc, u"RunAppsWithDownload", &G::RunAppsWithDownload, u"0", saved),
    integer(misc, u"RunKeyTest", &G::RunKeyTest, u"1", saved),
    integer(misc, u"IndentSpaces", &G::IndentSpaces, u"5", saved),
    integer(misc, u"IndentAsWell", &G::IndentAsWell, u"0", saved),
    integer(misc, u"MacroSaveUpdateMacros", &G::MacroSaveUpdateMacros, u"1", saved),
    integer(misc, u"MacroSaveIdentifyJF", &G::MacroSaveIdentifyJF, u"1", saved),
    integer(misc, u"MacroWithMouse", &G::MacroWithMouse, u"1", saved),
    integer(misc, u"MacroHighlightedInMacroFile", &G::MacroHighlightedInMacroFile, u"0", saved),
    integer(misc, u"LineNumbers", &G::LineNumbers, u"1", saved),
    integer(misc, u"CurrentLineMark", &G::CurrentLineMark, u"1", saved),

    text(u"Apps", u"ImageFilePath", &G::ImageFilePath, u"", saved),
    text(u"Apps", u"TextFilePath", &G::TextFilePath, u"", saved),

    text(u"Apps", u"ResetProfile", &G::ResetProfile, u"Default", notSaved),
    integer(u"Apps", u"ResetCalibrate", &G::ResetCalibrate, u"0", notSaved),
    integer(u"Apps", u"UseResetProfile", &G::UseResetProfile, u"0", notSaved),

    integer(u"Joystick Analyser", u"JoyIDnumber", &G::JoyIDnumber, u"0", saved),
    integer(u"Template Editor", u"HideAppsToolBar", &G::HideAppsToolBar, u"0", notSaved),
    integer(u"Composer", u"DefaultDLYvalue", &G::DefaultDLYvalue, u"60", saved),

    integer(unsupported, u"TurnOffFontCheck", &G::TurnOffFontCheck, u"0", notSaved),
    integer(unsupported, u"SynchroniseModeOnStartup", &G::SynchroniseModeOnStartup, u"0", notSaved),
    integer(unsupported, u"ForeignLanguageKBInputFix", &G::ForeignLanguageKBInputFix, u"0",
            notSaved),
    integer(unsupported, u"JoyTestConnect", &G::JoyTestConnect, u"0", notSaved),
    integer(unsupported, u"UseHLPnotCHM", &G::UseHLPnotCHM, u"0", notSaved),
    number(unsupported, u"RegainControlAfter", &G::RegainControlAfter, u"45000", notSaved),
    number(unsupported, u"CheckForCompletionTime", &G::CheckForCompletionTime, u"1000", notSaved),
    integer(unsupported, u"ColourWithTyping", &G::ColourWithTyping, u"0", notSaved),
    text(unsupported, u"VersionURL", &G::VersionURL, u"", notSaved),

    integer(u"Launcher", u"NumlockDownloadMode", &G::NumlockDownloadMode, u"0", notSaved),

    number(keyTester, u"KeyTopAtStartup", &G::KeyTopAtStartup, u"30", notSaved),
    number(keyTester, u"KeyLeftAtStartup", &G::KeyLeftAtStartup, u"30", notSaved),
    number(keyTester, u"KeyWidthAtStartup", &G::KeyWidthAtStartup, u"8250", notSaved),
    number(keyTester, u"KeyHeightAtStartup", &G::KeyHeightAtStartup, u"5250", notSaved),
    integer(keyTester, u"ClearDelay", &G::ClearDelay, u"-1", notSaved),
    integer(keyTester, u"KeyViewAll", &G::KeyViewAll, u"1", notSaved),
    integer(keyTester, u"MenuDisplay", &G::MenuDisplay, u"1", notSaved),

    Setting{ .place = SettingsPlace::HotasIni,
             .section = u"Defaults",
             .key = u"DownloadMode",
             .form = SettingForm::Integer,
             .field = &G::DownloadMode,
             .missing = u"1",
             .saved = saved },

    colour(u"BackgroundColour", &G::BackgroundColour, lost, u"14285565"),
    colour(u"BTNColour", &G::BTNColour, lost, u"16711680"),
    colour(u"SlashColour", &G::SlashColour, lost, u"255"),
    colour(u"RAWColour", &G::RAWColour, lost, u"32768"),
    colour(u"MiscellaneousColour", &G::MiscellaneousColour, lost, u"12615680"),
    colour(u"MacroBackgroundColour", &G::MacroBackgroundColour, lost, u"16645091"),
    colour(u"RemStatements", &G::RemStatements, lost, u"8421504"),
    colour(u"JoystickTextDefaultColour", &G::JoystickTextDefaultColour, u"0", u"0", saved),
    colour(u"MacroTextDefaultColour", &G::MacroTextDefaultColour, u"0", u"0", saved),
    colour(u"MacroListBackground", &G::MacroListBackground, u"16777215", u"11779289"),
    colour(u"MacroListText", &G::MacroListText, u"0", u"0"),
    colour(u"MacroHeadingsBackground", &G::MacroHeadingsBackground, u"8388608", u"8388608"),
    colour(u"MacroHeadingsText", &G::MacroHeadingsText, u"12648447", u"12648447"),
    inColours(u"TextFontName", SettingForm::Text, &G::TextFontName, u"Arial", u"Arial"),
    inColours(u"TextFontSize", SettingForm::Number, &G::TextFontSize, u"8", u"8"),
    inColours(u"TextFontBold", SettingForm::Integer, &G::TextFontBold, u"0", u"0"),
};

} // namespace

std::span<const Setting> settingsTable()
{
    return table;
}

} // namespace zeph
