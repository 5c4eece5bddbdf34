// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/settings/settings_moments.h"

#include "composer/composer_settings.h"
#include "composer/logic_flags_settings.h"
#include "composer/tumbo/tumbo_settings.h"
#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "layouts/files/layouts_settings.h"
#include "livetools/key_tester_settings.h"
#include "livetools/pictures/image_viewer_settings.h"
#include "livetools/quickview/coverage_settings.h"
#include "livetools/quickview/quick_view_settings.h"
#include "menus/menu_settings.h"
#include "platform/core/text1252.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "shell/settings/shell_settings.h"
#include "templates/template_settings.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

#include <algorithm>

namespace zeph {

namespace {

QString restorable(const QString &path)
{
    return firstNot1252(path) < 0 && fileExists(path) ? path : QString();
}

template <class... Structs> void addAll(Settings &settings)
{
    (settings.of<Structs>(), ...);
}

} // namespace

void addAllSettings(Settings &settings)
{
    addAll<SharedSettings, ColourSettings, MenuSettings, DocumentSettings, EditorSettings,
           ShellSettings, ComposerSettings, TemplateSettings, ToolchainSettings, DefaultOptions,
           KeyTesterSettings, CoverageSettings, QuickViewSettings, ImageViewerSettings,
           LogicFlagsSettings, TumboSettings, LayoutsSettings>(settings);
}

bool isSetUp(const SettingsFiles &files)
{
    // No other moment of a start writes this key.
    const SettingKey &key = rowOf(&ColourSettings::BackgroundColour);
    return !files.store.text(key.section, key.key).isEmpty();
}

Expected<void, FileError> SetUpDefaultIniSettings(Settings &settings, const SettingsFiles &files)
{
    setFirstRunColours(settings.of<ColourSettings>());
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

SettingProblems GetMumPosition(Settings &settings, const SettingsFiles &files)
{
    return readSettings(settings, files,
                        { &ShellSettings::MumTopAtStartup, &ShellSettings::MumLeftAtStartup,
                          &ShellSettings::MumWidthAtStartup, &ShellSettings::MumHeightAtStartup,
                          &ShellSettings::MumWindowstate, &SharedSettings::DefaultToDX8KeyTester,
                          &SharedSettings::TurnOffFontCheck,
                          &ToolchainSettings::SynchroniseModeOnStartup,
                          &DocumentSettings::ForeignLanguageKBInputFix });
}

WindowPlace mumPlace(const ShellSettings &settings)
{
    return { .left = settings.MumLeftAtStartup,
             .top = settings.MumTopAtStartup,
             .width = settings.MumWidthAtStartup,
             .height = settings.MumHeightAtStartup,
             .state = settings.MumWindowstate != 0 ? WindowState::Maximised : WindowState::Normal };
}

bool takeMumPlace(ShellSettings &settings, const WindowPlace &place, const ScreenSize &screen)
{
    if (place.state == WindowState::Minimised) {
        return false;
    }
    settings.MumTopAtStartup = std::max(place.top, 0.0);
    settings.MumLeftAtStartup = std::max(place.left, 0.0);
    settings.MumWidthAtStartup = std::min(place.width, screen.width);
    settings.MumHeightAtStartup = std::min(place.height, screen.height);
    settings.MumWindowstate = int(place.state);
    return true;
}

Expected<void, FileError> SaveMumPosition(Settings &settings, const SettingsFiles &files,
                                          const WindowPlace &place, const ScreenSize &screen)
{
    if (!takeMumPlace(settings.of<ShellSettings>(), place, screen)) {
        return {};
    }
    return saveSettings(settings, files,
                        { &ShellSettings::MumTopAtStartup, &ShellSettings::MumLeftAtStartup,
                          &ShellSettings::MumWidthAtStartup, &ShellSettings::MumHeightAtStartup,
                          &ShellSettings::MumWindowstate });
}

Expected<void, FileError> saveTesterOptions(Settings &settings, const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &SharedSettings::DefaultToDX8KeyTester,
                          &EditorSettings::OpenSingleFileOnly, &ToolchainSettings::RunKeyTest });
}

Expected<void, FileError> SaveIndentStuff(Settings &settings, const SettingsFiles &files)
{
    return saveSettings(settings, files,
                        { &EditorSettings::TileFiles, &ToolchainSettings::RunKeyTest,
                          &EditorSettings::IndentSpaces, &EditorSettings::IndentAsWell,
                          &EditorSettings::MacroSaveUpdateMacros,
                          &EditorSettings::MacroSaveIdentifyJF, &SharedSettings::MacroWithMouse,
                          &EditorSettings::MacroHighlightedInMacroFile });
}

Expected<void, FileError> SaveForRestore(Settings &settings, const SettingsFiles &files)
{
    auto &editor = settings.of<EditorSettings>();
    for (QString EditorSettings::*path :
         { &EditorSettings::RestoreJoyFile, &EditorSettings::RestoreMacroFile }) {
        editor.*path = restorable(editor.*path);
    }
    return saveSettings(settings, files,
                        { &EditorSettings::RestoreJoyFile, &EditorSettings::RestoreMacroFile });
}

} // namespace zeph
