// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The global settings: one field a key, under the key's own name, and one table that says all else.

#include "platform/core/profile_file.h"
#include "platform/core/units.h"

#include <initializer_list>
#include <span>
#include <variant>

namespace zeph {

class Dialogs;
class StatusLine;

/// Every global key. Flags are 0 or 1; numbers are 16-bit signed, as the files are read.
struct GlobalSettings {
    /// Every field as the table says for an absent key.
    GlobalSettings();

    // FileLocations
    QString WinZipFilePath;
    QString BackUpFolder;
    QString GamesCaption;
    qint16 ShowTips;
    qint16 FirstTimeUsed;
    qint16 AlwaysShowCompileDownload;
    qint16 HOTASStatusBarErrors;
    // Miscellaneous
    qint16 AutoSaveEnabled;
    qint16 AutoSaveTime;
    qint16 TileFiles;
    qint16 RestoreStatus;
    QString RestoreJoyFile;
    QString RestoreMacroFile;
    qint16 HideDownloadStatusWindow;
    qint16 UpdateModified;
    qint16 StatusDetectOnStartup;
    qint16 StatusMonitoringInterval;
    qint16 PureWindows;
    qint16 BackUpDateInfo;
    qint16 CreateBackup;
    qint16 OKtoShowToolTips;
    qint16 OpenBothOnToolbar;
    qint16 SaveBothOnToolbar;
    qint16 AddCRtoREM;
    qint16 ButtonsOnStatusBar;
    qint16 MacroFrameWidth;
    qint16 HighlightLineOnUndo;
    qint16 UndoMax;
    qint16 UndoClearOnSave;
    qint16 CompTabsAddCr;
    QString ValidUser;
    QString PilotCallsign;
    QString MumTopAtStartup;
    QString MumLeftAtStartup;
    QString MumWidthAtStartup;
    QString MumHeightAtStartup;
    qint16 MumWindowstate;
    qint16 DefaultToDX8KeyTester;
    qint16 OpenSingleFileOnly;
    qint16 RunAppsWithDownload;
    qint16 RunKeyTest;
    qint16 IndentSpaces;
    qint16 IndentAsWell;
    qint16 MacroSaveUpdateMacros;
    qint16 MacroSaveIdentifyJF;
    qint16 MacroWithMouse;
    qint16 MacroHighlightedInMacroFile;
    qint16 LineNumbers;
    qint16 CurrentLineMark;
    // Apps
    QString ImageFilePath;
    QString TextFilePath;
    QString ResetProfile;
    qint16 ResetCalibrate;
    qint16 UseResetProfile;
    // Joystick Analyser
    qint16 JoyIDnumber;
    // Template Editor
    qint16 HideAppsToolBar;
    // Composer
    qint16 DefaultDLYvalue;
    // Colours
    ColorRef BackgroundColour;
    ColorRef BTNColour;
    ColorRef SlashColour;
    ColorRef RAWColour;
    ColorRef MiscellaneousColour;
    ColorRef MacroBackgroundColour;
    ColorRef RemStatements;
    ColorRef JoystickTextDefaultColour;
    ColorRef MacroTextDefaultColour;
    ColorRef MacroListBackground;
    ColorRef MacroListText;
    ColorRef MacroHeadingsBackground;
    ColorRef MacroHeadingsText;
    QString TextFontName;
    QString TextFontSize;
    qint16 TextFontBold;
    // Unsupported
    qint16 TurnOffFontCheck;
    qint16 SynchroniseModeOnStartup;
    qint16 ForeignLanguageKBInputFix;
    qint16 JoyTestConnect;
    qint16 UseHLPnotCHM;
    QString RegainControlAfter;
    QString CheckForCompletionTime;
    qint16 ColourWithTyping;
    QString VersionURL;
    // Launcher
    qint16 NumlockDownloadMode;
    // Key Tester
    QString KeyTopAtStartup;
    QString KeyLeftAtStartup;
    QString KeyWidthAtStartup;
    QString KeyHeightAtStartup;
    qint16 ClearDelay;
    qint16 KeyViewAll;
    qint16 MenuDisplay;
    // HOTAS.ini, Defaults
    qint16 DownloadMode;
};

/// Where a setting is kept.
enum class SettingsPlace {
    Store, ///< the instance's own settings file
    HotasIni ///< the file that the toolchain shares
};

enum class SettingsStep { Global, Colours };

/// How the text in the file has to be formed.
enum class SettingForm {
    Text,
    Integer, ///< leading decimal digits, 16 bits
    Colour, ///< a whole number of 32 bits
    Number ///< kept as text, but has to be a number within 32 bits
};

using SettingField =
    std::variant<QString GlobalSettings::*, qint16 GlobalSettings::*, ColorRef GlobalSettings::*>;

/// One row of the table.
struct Setting {
    SettingsPlace place = SettingsPlace::Store;
    SettingsStep step = SettingsStep::Global;
    QStringView section = {};
    QStringView key = {};
    SettingForm form = SettingForm::Text;
    SettingField field = {};
    QStringView missing = {}; ///< what an absent key reads as
    bool saved = false; ///< whether saving the global settings writes it
    QStringView firstRun = {}; ///< colours only: what the first run sets

    int buffer() const
    {
        return step == SettingsStep::Colours ? profileColourBuffer : profileTextBuffer;
    }
};

/// All settings, in the order in which they are read.
std::span<const Setting> settingsTable();
/// The row of a field.
const Setting &settingOf(SettingField field);

/// The two files in which settings are kept.
struct SettingsFiles {
    ProfileFile store;
    ProfileFile hotasIni;

    const ProfileFile &at(SettingsPlace place) const
    {
        return place == SettingsPlace::Store ? store : hotasIni;
    }
};

/// A value that could not be taken over; the setting has its default instead.
struct SettingProblem {
    QString file;
    QString section;
    QString key;
    QString text;

    friend bool operator==(const SettingProblem &, const SettingProblem &) = default;
};
using SettingProblems = QList<SettingProblem>;

/// Reads every setting but the colours.
[[nodiscard]] SettingProblems readGlobalSettings(GlobalSettings &settings,
                                                 const SettingsFiles &files);
/// Reads the colours and the font of the texts.
[[nodiscard]] SettingProblems readColours(GlobalSettings &settings, const SettingsFiles &files);
/// Reads single settings anew.
[[nodiscard]] SettingProblems readSettings(GlobalSettings &settings, const SettingsFiles &files,
                                           std::initializer_list<SettingField> fields);
/// Sets the colours and the font to those of the first run.
void setFirstRunColours(GlobalSettings &settings);

/// Tells all problems in one box; no box when there are none.
void tellProblems(Dialogs &dialogs, const SettingProblems &problems);

/// Tells in panel 1 that settings are not on the disk.
void tellNotKept(StatusLine &status, const FileError &error);

/// A setting of the form Number as a number; its default when the text is none.
double numberOf(const GlobalSettings &settings, QString GlobalSettings::*field);
/// Milliseconds before a wait on the tools is given up, and between two polls of their status.
qint32 regainControlAfterMs(const GlobalSettings &settings);
qint32 checkForCompletionTimeMs(const GlobalSettings &settings);

/// Writes the keys of the global save, each file in one replacement. Both files are tried; the
/// error is the first one.
Expected<void, FileError> saveGlobalSettings(const GlobalSettings &settings,
                                             const SettingsFiles &files);
/// Writes single settings, each file in one replacement.
Expected<void, FileError> saveSettings(const GlobalSettings &settings, const SettingsFiles &files,
                                       std::initializer_list<SettingField> fields);
/// Writes all sixteen keys of the colours and the font.
Expected<void, FileError> SaveColourScheme(const GlobalSettings &settings,
                                           const SettingsFiles &files);

} // namespace zeph
