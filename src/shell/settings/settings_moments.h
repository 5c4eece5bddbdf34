// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the program reads and writes at its own moments: first run, place of the main window, end of
// the run.

#include "settings/settings.h"

namespace zeph {

struct ShellSettings;

/// Asks for the settings of all rooms, so that the global read and save have them.
void addAllSettings(Settings &settings);

/// Whether the first run's defaults were written before. They are written once only: a first run
/// that ends before its questions are answered begins again at the next start, with what the pilot
/// has chosen since.
bool isSetUp(const SettingsFiles &files);

/// Sets the colours and the font to the first run's, writes them and the stick handles, and saves
/// the global settings.
Expected<void, FileError> SetUpDefaultIniSettings(Settings &settings, const SettingsFiles &files);

/// The main window's state, with the numbers that the store has for it.
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

/// The main window's place, in twips.
struct WindowPlace {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    WindowState state = WindowState::Normal;

    friend bool operator==(const WindowPlace &, const WindowPlace &) = default;
};

/// Reads the keys that the main window needs first: its place, and what start-up asks before the
/// other settings are read.
[[nodiscard]] SettingProblems GetMumPosition(Settings &settings, const SettingsFiles &files);
/// The place that the settings hold; any state but 0 is maximised.
WindowPlace mumPlace(const ShellSettings &settings);

/// The screen's size, in twips.
struct ScreenSize {
    double width = 0;
    double height = 0;
};
/// Puts the place into the settings: not off the screen's top or left, not larger than the screen.
/// False, and nothing changed, for a minimised window.
bool takeMumPlace(ShellSettings &settings, const WindowPlace &place, const ScreenSize &screen);
/// takeMumPlace(), and the keys written; a minimised window writes nothing.
Expected<void, FileError> SaveMumPosition(Settings &settings, const SettingsFiles &files,
                                          const WindowPlace &place, const ScreenSize &screen);

/// What the Editor writes at its end: single file mode and the key testers, then the indent and
/// macro options and TileFiles.
Expected<void, FileError> saveTesterOptions(Settings &settings, const SettingsFiles &files);
Expected<void, FileError> SaveIndentStuff(Settings &settings, const SettingsFiles &files);
/// Writes the files to open again at the next start. A file that does not exist, or whose name the
/// store cannot hold, is emptied first, in the settings too.
Expected<void, FileError> SaveForRestore(Settings &settings, const SettingsFiles &files);

} // namespace zeph
