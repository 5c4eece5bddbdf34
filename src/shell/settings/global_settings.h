// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The global settings: one field a key, under the key's own name, and one table that says all else.

#include "platform/core/profile_file.h"
#include "platform/core/units.h"

#include <span>
#include <variant>

namespace zeph {

/// Every global key. Flags are 0 or 1; numbers are 16-bit signed, as the files are read.
struct GlobalSettings {
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
    // Apps
    QString ImageFilePath;
    QString TextFilePath;
    // Joystick Analyser
    qint16 JoyIDnumber;
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
    // HOTAS.ini, Defaults
    qint16 DownloadMode;
};

} // namespace zeph
