// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/settings/settings_moments.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "shell/settings/shell_settings.h"
#include "tests/settings/store.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/toolchain_settings.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace zeph;
using test::Store;

namespace {

constexpr ScreenSize screen{ 15360, 11520 };

Settings allSettings()
{
    Settings settings;
    addAllSettings(settings);
    return settings;
}

} // namespace

TEST(SetUpDefaultIniSettings, SetsAndWritesTheFirstRunsColours)
{
    const Store store;
    Settings settings = allSettings();
    ASSERT_TRUE(SetUpDefaultIniSettings(settings, store.files));
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, 16711680U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroListBackground, 11779289U);
    const std::pair<QStringView, QStringView> expected[] = {
        { u"BackgroundColour", u"14285565" },
        { u"BTNColour", u"16711680" },
        { u"SlashColour", u"208" },
        { u"RAWColour", u"32768" },
        { u"MiscellaneousColour", u"11563008" },
        { u"MacroBackgroundColour", u"16645091" },
        { u"RemStatements", u"6842472" },
        { u"JoystickTextDefaultColour", u"0" },
        { u"MacroTextDefaultColour", u"0" },
        { u"MacroListBackground", u"11779289" },
        { u"MacroListText", u"0" },
        { u"MacroHeadingsBackground", u"8388608" },
        { u"MacroHeadingsText", u"12648447" },
        { u"TextFontName", u"Arial" },
        { u"TextFontSize", u"8" },
        { u"TextFontBold", u"0" },
    };
    for (const auto &[key, value] : expected) {
        EXPECT_EQ(store.text(u"Colours", key), value) << key.toString().toStdString();
    }
}

TEST(SetUpDefaultIniSettings, IsDoneOnceTheColoursAreWritten)
{
    const Store store;
    Settings settings = allSettings();
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    EXPECT_FALSE(isSetUp(store.files));
    ASSERT_TRUE(SetUpDefaultIniSettings(settings, store.files));
    EXPECT_TRUE(isSetUp(store.files));
}

TEST(SetUpDefaultIniSettings, WritesTheHandlesAndTheGlobalKeys)
{
    const Store store;
    Settings settings = allSettings();
    settings.of<SharedSettings>().PilotCallsign = u"Viper"_s;
    ASSERT_TRUE(SetUpDefaultIniSettings(settings, store.files));
    EXPECT_EQ(store.text(u"Handles", u"Default"), u"F-16 Block 50.tmh"_s);
    EXPECT_EQ(store.text(u"Handles", u"Handle1"), u"F-16 Block 50.tmh"_s);
    EXPECT_EQ(store.text(u"Handles", u"NumHandles"), u"1"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"PilotCallsign"), u"Viper"_s);
    EXPECT_EQ(store.files.hotasIni.text(u"Defaults", u"DownloadMode"), u"1"_s);
}

TEST(FirstStart, AnAbsentStoreEndsUpWithEveryGlobalKeyColoursAndHandles)
{
    const Store store;
    Settings settings = allSettings();
    EXPECT_TRUE(GetMumPosition(settings, store.files).isEmpty());
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    ASSERT_EQ(settings.of<ShellSettings>().FirstTimeUsed, 1);
    ASSERT_TRUE(SetUpDefaultIniSettings(settings, store.files));
    // 52 global keys (two of them colours), the other 14 colours, 3 of the handles.
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s).count('='), 69);
    EXPECT_EQ(store.text(u"FileLocations", u"ShowTips"), u"(absent)"_s);
}

TEST(GetMumPosition, ReadsThePlaceTheTesterAndThreeUnsupportedKeysOnly)
{
    const Store store;
    store.folder.write(u"Zeph.ini"_s,
                       "[Miscellaneous]\nMumTopAtStartup=150\nMumLeftAtStartup=300\n"
                       "MumWidthAtStartup=9000.5\nMumHeightAtStartup=6000\nMumWindowstate=0\n"
                       "DefaultToDX8KeyTester=1\nUndoMax=99\n[Unsupported]\nTurnOffFontCheck=1\n"
                       "SynchroniseModeOnStartup=1\nForeignLanguageKBInputFix=1\nUseHLPnotCHM=1\n");
    Settings settings = allSettings();
    EXPECT_TRUE(GetMumPosition(settings, store.files).isEmpty());
    EXPECT_EQ(mumPlace(settings.of<ShellSettings>()),
              (WindowPlace{ 300, 150, 9000.5, 6000, WindowState::Normal }));
    EXPECT_EQ(settings.of<SharedSettings>().DefaultToDX8KeyTester, 1);
    EXPECT_EQ(settings.of<SharedSettings>().TurnOffFontCheck, 1);
    EXPECT_EQ(settings.of<ToolchainSettings>().SynchroniseModeOnStartup, 1);
    EXPECT_EQ(settings.of<DocumentSettings>().ForeignLanguageKBInputFix, 1);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 20);
    EXPECT_EQ(settings.of<SharedSettings>().UseHLPnotCHM, 0);
}

TEST(GetMumPosition, AnyStateButZeroIsMaximised)
{
    Settings settings = allSettings();
    EXPECT_EQ(mumPlace(settings.of<ShellSettings>()).state, WindowState::Maximised);
    settings.of<ShellSettings>().MumWindowstate = -1;
    EXPECT_EQ(mumPlace(settings.of<ShellSettings>()).state, WindowState::Maximised);
    settings.of<ShellSettings>().MumWindowstate = 0;
    EXPECT_EQ(mumPlace(settings.of<ShellSettings>()).state, WindowState::Normal);
}

TEST(SaveMumPosition, WritesTheFiveKeys)
{
    const Store store;
    Settings settings = allSettings();
    ASSERT_TRUE(SaveMumPosition(settings, store.files,
                                { 300, 150.5, 12000, 9000, WindowState::Normal }, screen));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s),
              "[Miscellaneous]\r\nMumTopAtStartup=150.5\r\nMumLeftAtStartup=300\r\n"
              "MumWidthAtStartup=12000\r\nMumHeightAtStartup=9000\r\nMumWindowstate=0\r\n");
}

TEST(SaveMumPosition, LiesOnTheScreenAndIsNotLargerThanIt)
{
    Settings settings = allSettings();
    ASSERT_TRUE(takeMumPlace(settings.of<ShellSettings>(),
                             { -60, -75, 15480, 11640, WindowState::Maximised }, screen));
    EXPECT_EQ(settings.of<ShellSettings>().MumLeftAtStartup, 0);
    EXPECT_EQ(settings.of<ShellSettings>().MumTopAtStartup, 0);
    EXPECT_EQ(settings.of<ShellSettings>().MumWidthAtStartup, 15360);
    EXPECT_EQ(settings.of<ShellSettings>().MumHeightAtStartup, 11520);
    EXPECT_EQ(settings.of<ShellSettings>().MumWindowstate, 2);
}

TEST(SaveMumPosition, ClosingWhileMinimisedLeavesTheLastPositionUnchanged)
{
    const Store store;
    const QByteArray before = "[Miscellaneous]\r\nMumTopAtStartup=5\r\n";
    store.folder.write(u"Zeph.ini"_s, before);
    Settings settings = allSettings();
    settings.of<ShellSettings>().MumTopAtStartup = 5;
    ASSERT_TRUE(
        SaveMumPosition(settings, store.files, { 1, 2, 3, 4, WindowState::Minimised }, screen));
    EXPECT_EQ(settings.of<ShellSettings>().MumTopAtStartup, 5);
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s), before);
}

TEST(SaveMumPosition, LargeTwipsStayPlainDecimals)
{
    Settings settings = allSettings();
    ASSERT_TRUE(takeMumPlace(settings.of<ShellSettings>(),
                             { 1234567, 0, 10, 10, WindowState::Normal }, screen));
    EXPECT_EQ(settings.of<ShellSettings>().MumLeftAtStartup, 1234567);
}

TEST(EndOfTheEditor, WritesTheTesterOptions)
{
    const Store store;
    Settings settings = allSettings();
    settings.of<EditorSettings>().OpenSingleFileOnly = 1;
    settings.of<ToolchainSettings>().RunKeyTest = 0;
    ASSERT_TRUE(saveTesterOptions(settings, store.files));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s),
              "[Miscellaneous]\r\nDefaultToDX8KeyTester=0\r\nOpenSingleFileOnly=1\r\n"
              "RunKeyTest=0\r\n");
}

TEST(EndOfTheEditor, WritesTheIndentAndMacroOptionsAndTileFiles)
{
    const Store store;
    Settings settings = allSettings();
    settings.of<EditorSettings>().TileFiles = 1;
    settings.of<EditorSettings>().IndentSpaces = 7;
    ASSERT_TRUE(SaveIndentStuff(settings, store.files));
    EXPECT_EQ(store.text(u"Miscellaneous", u"TileFiles"), u"1"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"IndentSpaces"), u"7"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"IndentAsWell"), u"0"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroSaveUpdateMacros"), u"1"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroSaveIdentifyJF"), u"1"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroWithMouse"), u"1"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"MacroHighlightedInMacroFile"), u"0"_s);
}

TEST(SaveForRestore, KeepsFilesThatExistAndEmptiesTheOthers)
{
    const Store store;
    Settings settings = allSettings();
    settings.of<EditorSettings>().RestoreJoyFile = store.folder.write(u"a.tmj"_s, "x");
    settings.of<EditorSettings>().RestoreMacroFile = store.folder.file(u"gone.tmm"_s);
    ASSERT_TRUE(SaveForRestore(settings, store.files));
    EXPECT_EQ(store.text(u"Miscellaneous", u"RestoreJoyFile"), u"a.tmj");
    EXPECT_EQ(store.text(u"Miscellaneous", u"RestoreMacroFile"), QString());
    EXPECT_EQ(settings.of<EditorSettings>().RestoreMacroFile, QString());
}

TEST(SaveForRestore, ANameThatTheStoreCannotHoldIsEmptiedToo)
{
    const Store store;
    store.folder.write(u"Zeph.ini"_s, "[Miscellaneous]\nRestoreJoyFile=/other.tmj\n");
    Settings settings = allSettings();
    settings.of<EditorSettings>().RestoreJoyFile = store.folder.write(u"Жук.tmj"_s, "x");
    ASSERT_TRUE(SaveForRestore(settings, store.files));
    EXPECT_EQ(store.text(u"Miscellaneous", u"RestoreJoyFile"), QString());
}

TEST(SaveFilesFolder, GoesIntoTheSharedFileAndKeepsWhatOthersWrote)
{
    const Store store;
    store.folder.write(u"HOTAS.ini"_s, "[Compiler]\r\nStatus=OKAY\r\n");
    ASSERT_TRUE(saveFilesFolder(store.files, u"C:\\Zeph\\Files\\"_s));
    EXPECT_EQ(store.folder.read(u"HOTAS.ini"_s),
              "[Compiler]\r\nStatus=OKAY\r\n[Files]\r\nFiles=C:\\Zeph\\Files\\\r\n");
}

TEST(ResetAxes, HaveTheirDefaultsAndComeBackAsTheyWereSaved)
{
    const Store store;
    Settings settings = allSettings();
    EXPECT_TRUE(GetResetAxes(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetProfile, u"Default"_s);
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetCalibrate, 0);
    EXPECT_EQ(settings.of<ToolchainSettings>().UseResetProfile, 0);
    settings.of<ToolchainSettings>().ResetProfile = u"Rudder only"_s;
    settings.of<ToolchainSettings>().ResetCalibrate = 1;
    settings.of<ToolchainSettings>().UseResetProfile = 1;
    ASSERT_TRUE(SaveResetProfiles(settings, store.files));
    EXPECT_EQ(store.text(u"Apps", u"ResetProfile"), u"Rudder only"_s);
    EXPECT_EQ(store.text(u"Apps", u"ResetCalibrate"), u"1"_s);
    EXPECT_EQ(store.text(u"Apps", u"UseResetProfile"), u"1"_s);
    Settings again = allSettings();
    EXPECT_TRUE(GetResetAxes(again, store.files).isEmpty());
    EXPECT_EQ(again.of<ToolchainSettings>().ResetProfile, u"Rudder only"_s);
    EXPECT_EQ(again.of<ToolchainSettings>().ResetCalibrate, 1);
    EXPECT_EQ(again.of<ToolchainSettings>().UseResetProfile, 1);
}
