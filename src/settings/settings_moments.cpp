// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/settings_moments.h"

#include "platform/core/paths.h"
#include "platform/core/text1252.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

using G = GlobalSettings;

/// Twips as the store has them: plain decimal text.
QString twipsText(double twips)
{
    return QString::number(twips, 'g', 9);
}

QString restorable(const QString &path)
{
    return firstNot1252(path) < 0 && fileExists(path) ? path : QString();
}

} // namespace

Expected<void, FileError> SetUpDefaultIniSettings(GlobalSettings &settings,
                                                  const SettingsFiles &files)
{
    setFirstRunColours(settings);
    auto result = SaveColourScheme(settings, files);
    if (!result) {
        return result;
    }
    result = files.store.write(QList<ProfileEntry>{
        { u"Handles"_s, u"Default"_s, u"F-16 Block 50.tmh"_s },
        { u"Handles"_s, u"Handle1"_s, u"F-16 Block 50.tmh"_s },
        { u"Handles"_s, u"NumHandles"_s, u"1"_s },
    });
    return result ? saveGlobalSettings(settings, files) : result;
}

SettingProblems GetMumPosition(GlobalSettings &settings, const SettingsFiles &files)
{
    return readSettings(settings, files,
                        { &G::MumTopAtStartup, &G::MumLeftAtStartup, &G::MumWidthAtStartup,
                          &G::MumHeightAtStartup, &G::MumWindowstate, &G::DefaultToDX8KeyTester,
                          &G::TurnOffFontCheck, &G::SynchroniseModeOnStartup,
                          &G::ForeignLanguageKBInputFix });
}

WindowPlace mumPlace(const GlobalSettings &settings)
{
    return { .left = numberOf(settings, &G::MumLeftAtStartup),
             .top = numberOf(settings, &G::MumTopAtStartup),
             .width = numberOf(settings, &G::MumWidthAtStartup),
             .height = numberOf(settings, &G::MumHeightAtStartup),
             .state = settings.MumWindowstate != 0 ? WindowState::Maximised : WindowState::Normal };
}

bool takeMumPlace(GlobalSettings &settings, const WindowPlace &place, const ScreenSize &screen)
{
    if (place.state == WindowState::Minimised) {
        return false;
    }
    settings.MumTopAtStartup = twipsText(std::max(place.top, 0.0));
    settings.MumLeftAtStartup = twipsText(std::max(place.left, 0.0));
    settings.MumWidthAtStartup = twipsText(std::min(place.width, screen.width));
    settings.MumHeightAtStartup = twipsText(std::min(place.height, screen.height));
    settings.MumWindowstate = qint16(place.state);
    return true;
}

Expected<void, FileError> SaveMumPosition(GlobalSettings &settings, const SettingsFiles &files,
                                          const WindowPlace &place, const ScreenSize &screen)
{
    if (!takeMumPlace(settings, place, screen)) {
        return {};
    }
    return saveSettings(settings, files,
                        { &G::MumTopAtStartup, &G::MumLeftAtStartup, &G::MumWidthAtStartup,
                          &G::MumHeightAtStartup, &G::MumWindowstate });
}

Expected<void, FileError> saveTesterOptions(const GlobalSettings &settings,
                                            const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &G::OpenSingleFileOnly, &G::DefaultToDX8KeyTester, &G::RunKeyTest });
}

Expected<void, FileError> SaveIndentStuff(const GlobalSettings &settings,
                                          const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &G::IndentSpaces, &G::IndentAsWell, &G::RunKeyTest,
                          &G::MacroSaveUpdateMacros, &G::MacroSaveIdentifyJF, &G::TileFiles,
                          &G::MacroWithMouse, &G::MacroHighlightedInMacroFile });
}

SettingProblems GetResetAxes(GlobalSettings &settings, const SettingsFiles &files)
{
    return readSettings(settings, files,
                        { &G::ResetProfile, &G::ResetCalibrate, &G::UseResetProfile });
}

Expected<void, FileError> SaveResetProfiles(const GlobalSettings &settings,
                                            const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &G::ResetProfile, &G::ResetCalibrate, &G::UseResetProfile });
}

Expected<void, FileError> SaveForRestore(GlobalSettings &settings, const SettingsFiles &files)
{
    for (QString G::*path : { &G::RestoreJoyFile, &G::RestoreMacroFile }) {
        settings.*path = restorable(settings.*path);
    }
    return saveSettings(settings, files, { &G::RestoreJoyFile, &G::RestoreMacroFile });
}

Expected<void, FileError> saveFilesFolder(const SettingsFiles &files, const QString &folder)
{
    return files.hotasIni.write({ u"Files"_s, u"Files"_s, folder });
}

} // namespace zeph
