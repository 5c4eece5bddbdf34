// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/settings/settings_moments.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "platform/fakes/scripted_dialogs.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "shell/settings/shell_settings.h"
#include "tests/settings/store.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

#include <gmock/gmock.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace zeph;
using test::Store;

namespace {

/// The settings of all rooms, with their defaults.
struct All : Settings {
    All() { addAllSettings(*this); }

    QList<const SettingKey *> keys() const
    {
        QList<const SettingKey *> keys;
        for (const SettingsGroup *group : groups()) {
            keys += group->keys();
        }
        return keys;
    }
};

/// The headers in which rooms have their settings.
QStringList sourcesOfStructs()
{
    QStringList sources;
    for (QDirIterator files(QStringLiteral(ZEPH_SOURCE_DIR "/src"), { u"*.h"_s }, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) {
            const QString source = QString::fromUtf8(file.readAll());
            if (source.contains(QRegularExpression(u"^    static std::span<const SettingRow<"_s,
                                                   QRegularExpression::MultilineOption))) {
                sources.append(source);
            }
        }
    }
    return sources;
}

bool isNumber(const SettingKey &key)
{
    const SettingValue value = defaultOf(key);
    return std::holds_alternative<int>(value) || std::holds_alternative<double>(value);
}

/// Changes the file of a store on the disk.
void put(const Store &store, const QByteArray &bytes)
{
    store.folder.write(u"Zeph.ini"_s, bytes);
}

} // namespace

TEST(AllSettings, StoresSectionsAndKeysAreUnique)
{
    QSet<QString> names;
    for (const SettingKey *key : All().keys()) {
        const QString name = (QString::number(int(key->store)) + u'/' + key->section.toString()
                              + u'/' + key->key.toString())
                                 .toLower();
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        names.insert(name);
    }
}

TEST(AllSettings, EveryFieldOfEveryRoomHasARowUnderItsOwnName)
{
    const QRegularExpression field(u"^    (?:QString|bool|int|double|ColorRef) (\\w+);"_s,
                                   QRegularExpression::MultilineOption);
    QStringList fields;
    for (const QString &source : sourcesOfStructs()) {
        for (auto match = field.globalMatch(source); match.hasNext();) {
            fields.append(match.next().captured(1));
        }
    }
    QStringList keys;
    for (const SettingKey *key : All().keys()) {
        keys.append(key->key.toString());
    }
    fields.sort();
    keys.sort();
    EXPECT_GT(fields.size(), 70);
    EXPECT_EQ(fields, keys);
}

TEST(AllSettings, EveryDefaultIsWithinItsOwnRange)
{
    for (const SettingKey *key : All().keys()) {
        SCOPED_TRACE(key->key.toString().toStdString());
        const SettingValue missing = defaultOf(*key);
        if (isNumber(*key)) {
            const double number = std::holds_alternative<int>(missing) ? std::get<int>(missing)
                                                                       : std::get<double>(missing);
            EXPECT_LT(key->range.least, key->range.most);
            EXPECT_GE(number, key->range.least);
            EXPECT_LE(number, key->range.most);
        } else if (const auto *colour = std::get_if<ColorRef>(&missing)) {
            EXPECT_LE(*colour, 0xFFFFFFU);
        }
        if (const auto *firstRun = std::get_if<ColorRef>(&key->firstRun)) {
            EXPECT_LE(*firstRun, 0xFFFFFFU);
        }
    }
}

TEST(AllSettings, SixteenKeysAreColoursAndOnlyTheyHaveFirstRunValues)
{
    int colours = 0;
    for (const SettingKey *key : All().keys()) {
        const bool isColour = key->section == u"Colours";
        colours += isColour;
        EXPECT_EQ(key->step == SettingsStep::Colours, isColour);
        EXPECT_TRUE(isColour || std::holds_alternative<std::monostate>(key->firstRun))
            << key->key.toString().toStdString();
        EXPECT_EQ(key->buffer(), isColour ? 50 : 500);
    }
    EXPECT_EQ(colours, 16);
}

TEST(AllSettings, PlacesOfTheGlobalSaveAreTakenOnce)
{
    QSet<int> places;
    for (const SettingKey *key : All().keys()) {
        if (key->isSaved()) {
            EXPECT_FALSE(places.contains(key->saved.place)) << key->key.toString().toStdString();
            places.insert(key->saved.place);
        }
    }
}

TEST(AllSettings, ANewFileHasItsKeysInThisOrder)
{
    const Store store;
    All settings;
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    QByteArray names;
    for (const QByteArray &line : store.folder.read(u"Zeph.ini"_s).split('\n')) {
        names += line.split('=').first().trimmed() + ' ';
    }
    EXPECT_EQ(names.simplified().toStdString(),
              "[FileLocations] WinZipFilePath BackUpFolder GamesCaption FirstTimeUsed "
              "HOTASStatusBarErrors "
              "[Miscellaneous] AutoSaveEnabled AutoSaveTime RestoreStatus RestoreJoyFile "
              "RestoreMacroFile HideDownloadStatusWindow UpdateModified StatusDetectOnStartup "
              "StatusMonitoringInterval PureWindows BackUpDateInfo CreateBackup OKtoShowToolTips "
              "OpenBothOnToolbar SaveBothOnToolbar AddCRtoREM ButtonsOnStatusBar MacroFrameWidth "
              "HighlightLineOnUndo UndoMax UndoClearOnSave CompTabsAddCr ValidUser PilotCallsign "
              "MumTopAtStartup MumLeftAtStartup MumWidthAtStartup MumHeightAtStartup "
              "MumWindowstate DefaultToDX8KeyTester OpenSingleFileOnly RunAppsWithDownload "
              "RunKeyTest IndentSpaces IndentAsWell MacroSaveUpdateMacros MacroSaveIdentifyJF "
              "MacroWithMouse MacroHighlightedInMacroFile LineNumbers CurrentLineMark "
              "[Apps] ImageFilePath TextFilePath [Joystick Analyser] JoyIDnumber "
              "[Composer] DefaultDLYvalue "
              "[Colours] JoystickTextDefaultColour MacroTextDefaultColour");
}

TEST(AllSettings, AFileOfAnEarlierVersionLoads)
{
    const Store store;
    put(store,
        "[FileLocations]\r\nFirstTimeUsed=5\r\n[Miscellaneous]\r\nUndoMax=3\r\n"
        "IndentSpaces=500\r\nAutoSaveEnabled=-1\r\nPureWindows=7\r\n"
        "MumTopAtStartup=1234,5\r\nOldKey=x\r\n[Joystick Analyser]\r\nJoyIDnumber=16\r\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ShellSettings>().FirstTimeUsed, 5);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 10);
    EXPECT_EQ(settings.of<EditorSettings>().IndentSpaces, 80);
    EXPECT_TRUE(settings.of<EditorSettings>().AutoSaveEnabled);
    EXPECT_TRUE(settings.of<ToolchainSettings>().PureWindows);
    EXPECT_EQ(settings.of<ShellSettings>().MumTopAtStartup, 1234.5);
    EXPECT_EQ(settings.of<ToolchainSettings>().JoyIDnumber, 15);
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    EXPECT_EQ(store.text(u"Miscellaneous", u"UndoMax"), u"10");
    EXPECT_EQ(store.text(u"Miscellaneous", u"AutoSaveEnabled"), u"1");
    EXPECT_EQ(store.text(u"Miscellaneous", u"PureWindows"), u"1");
    EXPECT_EQ(store.text(u"Miscellaneous", u"OldKey"), u"x");
}

TEST(ReadSettings, AnAbsentStoreReadsAsAFirstRun)
{
    const Store store;
    All settings;
    settings.of<ShellSettings>().FirstTimeUsed = 4;
    settings.of<SharedSettings>().ShowTips = 0;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ShellSettings>().FirstTimeUsed, 1);
    EXPECT_EQ(settings.of<SharedSettings>().ShowTips, 1);
    EXPECT_EQ(settings.of<MenuSettings>().GamesCaption, u"&Games"_s);
    EXPECT_EQ(settings.of<SharedSettings>().PilotCallsign, u"buddy"_s);
    EXPECT_EQ(settings.of<SharedSettings>().ValidUser, u"User unknown"_s);
    EXPECT_EQ(settings.of<ShellSettings>().MumWidthAtStartup, 13320);
    EXPECT_EQ(settings.of<ShellSettings>().MumHeightAtStartup, 8895);
    EXPECT_EQ(settings.of<ShellSettings>().MumWindowstate, 2);
    EXPECT_EQ(settings.of<EditorSettings>().AutoSaveTime, 10);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 20);
    EXPECT_EQ(settings.of<EditorSettings>().DefaultDLYvalue, 60);
    EXPECT_EQ(settings.of<DefaultOptions>().DownloadMode, 1);
    EXPECT_EQ(settings.of<EditorSettings>().BackUpFolder, QString());
    EXPECT_FALSE(store.folder.exists(u"Zeph.ini"_s));
}

TEST(ReadSettings, AValueOfEachKindIsTaken)
{
    const Store store;
    put(store,
        "[FileLocations]\r\nBackUpFolder=C:\\Backup\\\r\nFirstTimeUsed=3\r\n"
        "[Miscellaneous]\r\nUndoMax=30000 levels\r\nPilotCallsign=\" Viper \"\r\n");
    store.folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nDownloadMode=0\r\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<EditorSettings>().BackUpFolder, u"C:\\Backup\\"_s);
    EXPECT_EQ(settings.of<ShellSettings>().FirstTimeUsed, 3);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 30000);
    EXPECT_EQ(settings.of<SharedSettings>().PilotCallsign, u" Viper "_s);
    EXPECT_EQ(settings.of<DefaultOptions>().DownloadMode, 0);
}

TEST(ReadSettings, AnEmptyTextIsEmptyAndAnEmptyNumberTheDefault)
{
    const Store store;
    put(store, "[FileLocations]\nGamesCaption=\n[Miscellaneous]\nUndoMax=\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<MenuSettings>().GamesCaption, QString());
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 20);
}

TEST(ReadSettings, ANumberWithoutDigitsIsZero)
{
    const Store store;
    put(store, "[Miscellaneous]\nIndentSpaces=many\nUndoMax=many\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<EditorSettings>().IndentSpaces, 0);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 10) << "the nearest end of the range";
}

TEST(ReadSettings, ANumberBeyond16BitsIsToldAndTheDefaultTaken)
{
    const Store store;
    put(store, "[Miscellaneous]\nUndoMax=32768\nIndentSpaces=-32769\nAutoSaveTime=32767\n");
    All settings;
    settings.of<DocumentSettings>().UndoMax = 5;
    const auto problems = readGlobalSettings(settings, store.files);
    const QString file = store.files.store.path();
    EXPECT_EQ(problems,
              (SettingProblems{ { file, u"Miscellaneous"_s, u"UndoMax"_s, u"32768"_s },
                                { file, u"Miscellaneous"_s, u"IndentSpaces"_s, u"-32769"_s } }));
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 20);
    EXPECT_EQ(settings.of<EditorSettings>().IndentSpaces, 5);
    EXPECT_EQ(settings.of<EditorSettings>().AutoSaveTime, 32767);
}

TEST(ReadSettings, TextsThatHaveToBeNumbersAreToldWhenTheyAreNone)
{
    const Store store;
    put(store,
        "[Miscellaneous]\nMumTopAtStartup=top\nMumLeftAtStartup=-15\n"
        "[Unsupported]\nRegainControlAfter=99999999999\nCheckForCompletionTime=250\n");
    All settings;
    const auto problems = readGlobalSettings(settings, store.files);
    ASSERT_EQ(problems.size(), 2);
    EXPECT_EQ(problems[0].key, u"MumTopAtStartup"_s);
    EXPECT_EQ(problems[1].key, u"RegainControlAfter"_s);
    EXPECT_EQ(settings.of<ShellSettings>().MumTopAtStartup, 0);
    EXPECT_EQ(settings.of<ShellSettings>().MumLeftAtStartup, -15);
    EXPECT_EQ(settings.of<ToolchainSettings>().RegainControlAfter, 45000);
    EXPECT_EQ(settings.of<ToolchainSettings>().CheckForCompletionTime, 250);
}

TEST(ReadSettings, ALongTextIsCutToTheBuffer)
{
    const Store store;
    put(store,
        "[Miscellaneous]\nValidUser=" + QByteArray(700, 'v')
            + "\n[Colours]\nTextFontName=" + QByteArray(700, 'f') + "\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<SharedSettings>().ValidUser.size(), 499);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName.size(), 49);
}

TEST(ReadSettings, ColoursAreAStepOfTheirOwn)
{
    const Store store;
    put(store, "[Colours]\nBTNColour=255\n[Miscellaneous]\nUndoMax=30\n");
    All settings;
    settings.of<ColourSettings>().BTNColour = 7;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, 7U);
    settings.of<DocumentSettings>().UndoMax = 7;
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, 255U);
    EXPECT_EQ(settings.of<DocumentSettings>().UndoMax, 7);
}

TEST(ReadColours, AKeyDeletedByHandIsNotItsFirstRunColour)
{
    const Store store;
    All settings;
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    for (const ColorRef colour :
         { settings.of<ColourSettings>().BackgroundColour, settings.of<ColourSettings>().BTNColour,
           settings.of<ColourSettings>().SlashColour, settings.of<ColourSettings>().RAWColour,
           settings.of<ColourSettings>().MiscellaneousColour,
           settings.of<ColourSettings>().MacroBackgroundColour,
           settings.of<ColourSettings>().RemStatements }) {
        EXPECT_EQ(colour, 16744448U);
    }
    EXPECT_EQ(settings.of<ColourSettings>().JoystickTextDefaultColour, 0U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroTextDefaultColour, 0U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroListBackground, 16777215U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroListText, 0U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroHeadingsBackground, 8388608U);
    EXPECT_EQ(settings.of<ColourSettings>().MacroHeadingsText, 12648447U);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, u"Arial"_s);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 8);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontBold, 0);
}

TEST(ReadColours, AColourThatIsNoNumberIsToldAndTheDefaultTaken)
{
    const Store store;
    put(store, "[Colours]\nSlashColour=red\nRAWColour=\nBTNColour=12abc\nTextFontSize=big\n");
    All settings;
    settings.of<ColourSettings>().SlashColour = 1;
    const auto problems = readColours(settings, store.files);
    ASSERT_EQ(problems.size(), 4);
    EXPECT_EQ(problems[0].key, u"BTNColour"_s);
    EXPECT_EQ(problems[0].text, u"12abc"_s);
    EXPECT_EQ(problems[1].key, u"SlashColour"_s);
    EXPECT_EQ(problems[2].key, u"RAWColour"_s);
    EXPECT_EQ(problems[3].key, u"TextFontSize"_s);
    EXPECT_EQ(settings.of<ColourSettings>().SlashColour, 16744448U);
    EXPECT_EQ(settings.of<ColourSettings>().RAWColour, 16744448U);
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, 16744448U);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 8);
}

TEST(TellProblems, AllAreToldInOneBox)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    tellProblems(dialogs,
                 { { u"/a/Zeph.ini"_s, u"Colours"_s, u"BTNColour"_s, u"red"_s },
                   { u"/a/HOTAS.ini"_s, u"Defaults"_s, u"DownloadMode"_s, u"70000"_s } });
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const QString text = dialogs.boxes()[0].text;
    for (const QString &part : { u"/a/Zeph.ini"_s, u"BTNColour"_s, u"red"_s, u"/a/HOTAS.ini"_s,
                                 u"DownloadMode"_s, u"70000"_s }) {
        EXPECT_TRUE(text.contains(part)) << part.toStdString();
    }
    EXPECT_TRUE(dialogs.unexpected().isEmpty());
}

TEST(TellProblems, NoneAreNoBox)
{
    ScriptedDialogs dialogs;
    tellProblems(dialogs, {});
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST(SaveGlobalSettings, WritesExactlyItsKeys)
{
    const Store store;
    ASSERT_TRUE(saveGlobalSettings(All(), store.files));
    const auto absent = [&store](QStringView section, QStringView key) {
        return store.text(section, key) == u"(absent)"_s;
    };
    for (const QStringView key : { u"WinZipFilePath", u"BackUpFolder", u"FirstTimeUsed",
                                   u"GamesCaption", u"HOTASStatusBarErrors" }) {
        EXPECT_FALSE(absent(u"FileLocations", key)) << key.toString().toStdString();
    }
    for (const QStringView key : { u"AutoSaveEnabled",
                                   u"AutoSaveTime",
                                   u"RestoreStatus",
                                   u"RestoreJoyFile",
                                   u"RestoreMacroFile",
                                   u"HideDownloadStatusWindow",
                                   u"UpdateModified",
                                   u"StatusDetectOnStartup",
                                   u"StatusMonitoringInterval",
                                   u"PureWindows",
                                   u"BackUpDateInfo",
                                   u"CreateBackup",
                                   u"OKtoShowToolTips",
                                   u"OpenBothOnToolbar",
                                   u"SaveBothOnToolbar",
                                   u"AddCRtoREM",
                                   u"ButtonsOnStatusBar",
                                   u"MacroFrameWidth",
                                   u"HighlightLineOnUndo",
                                   u"UndoMax",
                                   u"UndoClearOnSave",
                                   u"CompTabsAddCr",
                                   u"ValidUser",
                                   u"PilotCallsign",
                                   u"MumTopAtStartup",
                                   u"MumLeftAtStartup",
                                   u"MumWidthAtStartup",
                                   u"MumHeightAtStartup",
                                   u"MumWindowstate",
                                   u"DefaultToDX8KeyTester",
                                   u"OpenSingleFileOnly",
                                   u"RunAppsWithDownload",
                                   u"RunKeyTest",
                                   u"IndentSpaces",
                                   u"IndentAsWell",
                                   u"MacroSaveUpdateMacros",
                                   u"MacroSaveIdentifyJF",
                                   u"MacroWithMouse",
                                   u"MacroHighlightedInMacroFile",
                                   u"LineNumbers",
                                   u"CurrentLineMark" }) {
        EXPECT_FALSE(absent(u"Miscellaneous", key)) << key.toString().toStdString();
    }
    EXPECT_FALSE(absent(u"Apps", u"ImageFilePath"));
    EXPECT_FALSE(absent(u"Apps", u"TextFilePath"));
    EXPECT_FALSE(absent(u"Joystick Analyser", u"JoyIDnumber"));
    EXPECT_FALSE(absent(u"Colours", u"JoystickTextDefaultColour"));
    EXPECT_FALSE(absent(u"Colours", u"MacroTextDefaultColour"));
    EXPECT_EQ(store.text(u"Composer", u"DefaultDLYvalue"), u"60"_s);
    EXPECT_EQ(store.files.hotasIni.text(u"Defaults", u"DownloadMode"), u"1"_s);
    // 5 + 41 + 2 + 1 + 2 + 1 keys.
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s).count('='), 52);
    EXPECT_EQ(store.folder.read(u"HOTAS.ini"_s).count('='), 1);
}

TEST(SaveGlobalSettings, AnAbsentShowTipsReadsOneAndIsNotAdded)
{
    const Store store;
    store.folder.write(u"Zeph.ini"_s, "[FileLocations]\nFirstTimeUsed=2\n");
    All settings;
    settings.of<SharedSettings>().ShowTips = 0;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<SharedSettings>().ShowTips, 1);
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    EXPECT_FALSE(store.folder.read(u"Zeph.ini"_s).contains("ShowTips"));
}

TEST(SaveGlobalSettings, LeavesOutWhatOthersWriteOrNobodyDoes)
{
    const Store store;
    ASSERT_TRUE(saveGlobalSettings(All(), store.files));
    EXPECT_EQ(store.text(u"FileLocations", u"ShowTips"), u"(absent)"_s);
    EXPECT_EQ(store.text(u"FileLocations", u"AlwaysShowCompileDownload"), u"(absent)"_s);
    EXPECT_EQ(store.text(u"Miscellaneous", u"TileFiles"), u"(absent)"_s);
    EXPECT_EQ(store.text(u"Unsupported", u"VersionURL"), u"(absent)"_s);
    EXPECT_EQ(store.text(u"Colours", u"BTNColour"), u"(absent)"_s);
    EXPECT_EQ(store.text(u"Launcher", u"NumlockDownloadMode"), u"(absent)"_s);
}

TEST(SaveGlobalSettings, WhatWasSavedIsReadBack)
{
    const Store store;
    All saved;
    saved.of<EditorSettings>().BackUpFolder = u" C:\\Été\\ "_s;
    saved.of<DocumentSettings>().UndoMax = 77;
    saved.of<DefaultOptions>().DownloadMode = 0;
    saved.of<ColourSettings>().JoystickTextDefaultColour = colorRef(1, 2, 3);
    ASSERT_TRUE(saveGlobalSettings(saved, store.files));
    All read;
    EXPECT_TRUE(readGlobalSettings(read, store.files).isEmpty());
    EXPECT_TRUE(readColours(read, store.files).isEmpty());
    EXPECT_EQ(read.of<EditorSettings>().BackUpFolder, u" C:\\Été\\ "_s);
    EXPECT_EQ(read.of<DocumentSettings>().UndoMax, 77);
    EXPECT_EQ(read.of<DefaultOptions>().DownloadMode, 0);
    EXPECT_EQ(read.of<ColourSettings>().JoystickTextDefaultColour, colorRef(1, 2, 3));
}

TEST(SaveGlobalSettings, AnOldFileKeepsWhatThisVersionDoesNotKnow)
{
    const Store store;
    put(store,
        "; kept since the first version\r\n[FileLocations]\r\nOldOption=yes\r\n"
        "FirstTimeUsed=4\r\n\r\n[Gone]\r\nFeature=1\r\n");
    All settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ShellSettings>().FirstTimeUsed, 4);
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    const QByteArray now = store.folder.read(u"Zeph.ini"_s);
    EXPECT_TRUE(now.startsWith("; kept since the first version\r\n[FileLocations]\r\n"
                               "OldOption=yes\r\nFirstTimeUsed=4\r\n"));
    EXPECT_TRUE(now.contains("\r\n\r\n[Gone]\r\nFeature=1\r\n"));
    EXPECT_EQ(store.text(u"Miscellaneous", u"UndoMax"), u"20"_s);
}

TEST(SaveGlobalSettings, AFailureIsToldAndTheOtherFileIsWritten)
{
    Store store;
    store.files.store = ProfileFile(store.folder.file(u"gone/Zeph.ini"_s));
    const auto saved = saveGlobalSettings(All(), store.files);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().path, store.folder.file(u"gone/Zeph.ini"_s));
    EXPECT_EQ(store.files.hotasIni.text(u"Defaults", u"DownloadMode"), u"1"_s);
}

TEST(SaveSettings, WritesOnlyWhatIsAsked)
{
    const Store store;
    All settings;
    settings.of<SharedSettings>().ShowTips = 0;
    ASSERT_TRUE(saveSettings(settings, store.files, { &SharedSettings::ShowTips }));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s), "[FileLocations]\r\nShowTips=0\r\n");
    EXPECT_FALSE(store.folder.exists(u"HOTAS.ini"_s));
}

TEST(SaveColours, WritesAllSixteen)
{
    const Store store;
    All settings;
    ASSERT_TRUE(SaveColourScheme(settings, store.files));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s).count('='), 16);
    EXPECT_EQ(store.text(u"Colours", u"MacroListBackground"), u"16777215"_s);
    EXPECT_EQ(store.text(u"Colours", u"TextFontSize"), u"8"_s);
}

TEST(NumberSettings, AreNumbersOrTheirDefaults)
{
    const Store store;
    put(store,
        "[Miscellaneous]\nMumTopAtStartup=1234,5\n[Unsupported]\nRegainControlAfter= 60000 \n"
        "CheckForCompletionTime=soon\n");
    All settings;
    EXPECT_EQ(readGlobalSettings(settings, store.files).size(), 1);
    EXPECT_EQ(settings.of<ShellSettings>().MumTopAtStartup, 1234.5);
    EXPECT_EQ(settings.of<ToolchainSettings>().RegainControlAfter, 60000);
    EXPECT_EQ(settings.of<ToolchainSettings>().CheckForCompletionTime, 1000);
    put(store, "[Unsupported]\nCheckForCompletionTime=nan\n");
    EXPECT_EQ(readGlobalSettings(settings, store.files).size(), 1);
    EXPECT_EQ(settings.of<ToolchainSettings>().CheckForCompletionTime, 1000);
    put(store, "[Unsupported]\nCheckForCompletionTime=2147483647\n");
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.of<ToolchainSettings>().CheckForCompletionTime, 2147483647);
}
