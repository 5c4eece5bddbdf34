// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/global_settings.h"

#include "platform/fakes/scripted_dialogs.h"
#include "tests/settings/store.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <limits>

using namespace zeph;
using test::Store;

namespace {

using G = GlobalSettings;

bool isWholeNumber(QStringView text)
{
    bool good = false;
    (void)text.toLongLong(&good);
    return good;
}

/// Changes the file of a store on the disk.
void put(const Store &store, const QByteArray &bytes)
{
    store.folder.write(u"Zeph.ini"_s, bytes);
}

} // namespace

TEST(SettingsTable, SectionsAndKeysAreUnique)
{
    QSet<QString> names;
    for (const Setting &setting : settingsTable()) {
        const QString name = (setting.section.toString() + u'/' + setting.key.toString()).toLower();
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        names.insert(name);
    }
}

TEST(SettingsTable, EveryFieldOfTheSettingsHasARowUnderItsOwnName)
{
    QFile header(QStringLiteral(ZEPH_SOURCE_DIR "/src/settings/global_settings.h"));
    ASSERT_TRUE(header.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(header.readAll());
    const QString body =
        source.mid(source.indexOf(u"struct GlobalSettings {"_s)).section(u"\n};"_s, 0, 0);
    const QRegularExpression field(u"^    (?:QString|qint16|ColorRef) (\\w+);$"_s,
                                   QRegularExpression::MultilineOption);
    QStringList fields;
    for (auto match = field.globalMatch(body); match.hasNext();) {
        fields.append(match.next().captured(1));
    }
    QStringList keys;
    for (const Setting &setting : settingsTable()) {
        keys.append(setting.key.toString());
    }
    fields.sort();
    keys.sort();
    EXPECT_GT(fields.size(), 70);
    EXPECT_EQ(fields, keys);
}

TEST(SettingsTable, EveryDefaultIsAValueOfItsOwnForm)
{
    for (const Setting &setting : settingsTable()) {
        SCOPED_TRACE(setting.key.toString().toStdString());
        for (const QStringView text : { setting.missing, setting.firstRun }) {
            if (text.isEmpty() || setting.form == SettingForm::Text) {
                continue;
            }
            ASSERT_TRUE(isWholeNumber(text));
            const qint64 number = text.toLongLong();
            const bool isSmall = setting.form == SettingForm::Integer;
            EXPECT_GE(number, isSmall ? std::numeric_limits<qint16>::min() : 0);
            EXPECT_LE(number, isSmall ? std::numeric_limits<qint16>::max() : 0xFFFFFF);
        }
        if (setting.form != SettingForm::Text) {
            EXPECT_FALSE(setting.missing.isEmpty());
        }
    }
}

TEST(SettingsTable, SixteenKeysAreColoursAndOnlyTheyHaveFirstRunValues)
{
    int colours = 0;
    for (const Setting &setting : settingsTable()) {
        const bool isColour = setting.section == u"Colours";
        colours += isColour;
        EXPECT_EQ(setting.step == SettingsStep::Colours, isColour);
        EXPECT_EQ(setting.firstRun.isEmpty(), !isColour) << setting.key.toString().toStdString();
        EXPECT_EQ(setting.buffer(), isColour ? 50 : 500);
    }
    EXPECT_EQ(colours, 16);
}

TEST(ReadSettings, AnAbsentStoreReadsAsAFirstRun)
{
    const Store store;
    G settings;
    settings.FirstTimeUsed = 4;
    settings.ShowTips = 0;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.FirstTimeUsed, 1);
    EXPECT_EQ(settings.ShowTips, 1);
    EXPECT_EQ(settings.GamesCaption, u"&Games"_s);
    EXPECT_EQ(settings.PilotCallsign, u"buddy"_s);
    EXPECT_EQ(settings.ValidUser, u"User unknown"_s);
    EXPECT_EQ(settings.MumWidthAtStartup, u"13320"_s);
    EXPECT_EQ(settings.MumHeightAtStartup, u"8895"_s);
    EXPECT_EQ(settings.MumWindowstate, 2);
    EXPECT_EQ(settings.AutoSaveTime, 10);
    EXPECT_EQ(settings.UndoMax, 20);
    EXPECT_EQ(settings.DefaultDLYvalue, 60);
    EXPECT_EQ(settings.DownloadMode, 1);
    EXPECT_EQ(settings.BackUpFolder, QString());
    EXPECT_FALSE(store.folder.exists(u"Zeph.ini"_s));
}

TEST(ReadSettings, AValueOfEachKindIsTaken)
{
    const Store store;
    put(store,
        "[FileLocations]\r\nBackUpFolder=C:\\Backup\\\r\nFirstTimeUsed=3\r\n"
        "[Miscellaneous]\r\nUndoMax=30000 levels\r\nPilotCallsign=\" Viper \"\r\n");
    store.folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nDownloadMode=0\r\n");
    G settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.BackUpFolder, u"C:\\Backup\\"_s);
    EXPECT_EQ(settings.FirstTimeUsed, 3);
    EXPECT_EQ(settings.UndoMax, 30000);
    EXPECT_EQ(settings.PilotCallsign, u" Viper "_s);
    EXPECT_EQ(settings.DownloadMode, 0);
}

TEST(ReadSettings, AnEmptyTextIsEmptyAndAnEmptyNumberTheDefault)
{
    const Store store;
    put(store, "[FileLocations]\nGamesCaption=\n[Miscellaneous]\nUndoMax=\n");
    G settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.GamesCaption, QString());
    EXPECT_EQ(settings.UndoMax, 20);
}

TEST(ReadSettings, ANumberWithoutDigitsIsZero)
{
    const Store store;
    put(store, "[Miscellaneous]\nUndoMax=many\n");
    G settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.UndoMax, 0);
}

TEST(ReadSettings, ANumberBeyond16BitsIsToldAndTheDefaultTaken)
{
    const Store store;
    put(store, "[Miscellaneous]\nUndoMax=32768\nIndentSpaces=-32769\nAutoSaveTime=32767\n");
    G settings;
    settings.UndoMax = 5;
    const auto problems = readGlobalSettings(settings, store.files);
    const QString file = store.files.store.path();
    EXPECT_EQ(problems,
              (SettingProblems{ { file, u"Miscellaneous"_s, u"UndoMax"_s, u"32768"_s },
                                { file, u"Miscellaneous"_s, u"IndentSpaces"_s, u"-32769"_s } }));
    EXPECT_EQ(settings.UndoMax, 20);
    EXPECT_EQ(settings.IndentSpaces, 5);
    EXPECT_EQ(settings.AutoSaveTime, 32767);
}

TEST(ReadSettings, TextsThatHaveToBeNumbersAreToldWhenTheyAreNone)
{
    const Store store;
    put(store,
        "[Miscellaneous]\nMumTopAtStartup=top\nMumLeftAtStartup=-15\n"
        "[Unsupported]\nRegainControlAfter=99999999999\nCheckForCompletionTime=250\n");
    G settings;
    const auto problems = readGlobalSettings(settings, store.files);
    ASSERT_EQ(problems.size(), 2);
    EXPECT_EQ(problems[0].key, u"MumTopAtStartup"_s);
    EXPECT_EQ(problems[1].key, u"RegainControlAfter"_s);
    EXPECT_EQ(settings.MumTopAtStartup, u"0"_s);
    EXPECT_EQ(settings.MumLeftAtStartup, u"-15"_s);
    EXPECT_EQ(regainControlAfterMs(settings), 45000);
    EXPECT_EQ(checkForCompletionTimeMs(settings), 250);
}

TEST(ReadSettings, ALongTextIsCutToTheBuffer)
{
    const Store store;
    put(store,
        "[Miscellaneous]\nValidUser=" + QByteArray(700, 'v')
            + "\n[Colours]\nTextFontName=" + QByteArray(700, 'f') + "\n");
    G settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    EXPECT_EQ(settings.ValidUser.size(), 499);
    EXPECT_EQ(settings.TextFontName.size(), 49);
}

TEST(ReadSettings, ColoursAreAStepOfTheirOwn)
{
    const Store store;
    put(store, "[Colours]\nBTNColour=255\n[Miscellaneous]\nUndoMax=30\n");
    G settings;
    settings.BTNColour = 7;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.BTNColour, 7U);
    settings.UndoMax = 7;
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    EXPECT_EQ(settings.BTNColour, 255U);
    EXPECT_EQ(settings.UndoMax, 7);
}

TEST(ReadColours, AKeyDeletedByHandIsNotItsFirstRunColour)
{
    const Store store;
    G settings;
    EXPECT_TRUE(readColours(settings, store.files).isEmpty());
    for (const ColorRef colour :
         { settings.BackgroundColour, settings.BTNColour, settings.SlashColour, settings.RAWColour,
           settings.MiscellaneousColour, settings.MacroBackgroundColour, settings.RemStatements }) {
        EXPECT_EQ(colour, 16744448U);
    }
    EXPECT_EQ(settings.JoystickTextDefaultColour, 0U);
    EXPECT_EQ(settings.MacroTextDefaultColour, 0U);
    EXPECT_EQ(settings.MacroListBackground, 16777215U);
    EXPECT_EQ(settings.MacroListText, 0U);
    EXPECT_EQ(settings.MacroHeadingsBackground, 8388608U);
    EXPECT_EQ(settings.MacroHeadingsText, 12648447U);
    EXPECT_EQ(settings.TextFontName, u"Arial"_s);
    EXPECT_EQ(settings.TextFontSize, u"8"_s);
    EXPECT_EQ(settings.TextFontBold, 0);
}

TEST(ReadColours, AColourThatIsNoNumberIsToldAndTheDefaultTaken)
{
    const Store store;
    put(store, "[Colours]\nSlashColour=red\nRAWColour=\nBTNColour=12abc\nTextFontSize=big\n");
    G settings;
    settings.SlashColour = 1;
    const auto problems = readColours(settings, store.files);
    ASSERT_EQ(problems.size(), 4);
    EXPECT_EQ(problems[0].key, u"BTNColour"_s);
    EXPECT_EQ(problems[0].text, u"12abc"_s);
    EXPECT_EQ(problems[1].key, u"SlashColour"_s);
    EXPECT_EQ(problems[2].key, u"RAWColour"_s);
    EXPECT_EQ(problems[3].key, u"TextFontSize"_s);
    EXPECT_EQ(settings.SlashColour, 16744448U);
    EXPECT_EQ(settings.RAWColour, 16744448U);
    EXPECT_EQ(settings.BTNColour, 16744448U);
    EXPECT_EQ(settings.TextFontSize, u"8"_s);
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
    ASSERT_TRUE(saveGlobalSettings(G(), store.files));
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
    G settings;
    settings.ShowTips = 0;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.ShowTips, 1);
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    EXPECT_FALSE(store.folder.read(u"Zeph.ini"_s).contains("ShowTips"));
}

TEST(SaveGlobalSettings, LeavesOutWhatOthersWriteOrNobodyDoes)
{
    const Store store;
    ASSERT_TRUE(saveGlobalSettings(G(), store.files));
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
    G saved;
    saved.BackUpFolder = u" C:\\Été\\ "_s;
    saved.UndoMax = 77;
    saved.DownloadMode = 0;
    saved.JoystickTextDefaultColour = colorRef(1, 2, 3);
    ASSERT_TRUE(saveGlobalSettings(saved, store.files));
    G read;
    EXPECT_TRUE(readGlobalSettings(read, store.files).isEmpty());
    EXPECT_TRUE(readColours(read, store.files).isEmpty());
    EXPECT_EQ(read.BackUpFolder, u" C:\\Été\\ "_s);
    EXPECT_EQ(read.UndoMax, 77);
    EXPECT_EQ(read.DownloadMode, 0);
    EXPECT_EQ(read.JoystickTextDefaultColour, colorRef(1, 2, 3));
}

TEST(SaveGlobalSettings, AnOldFileKeepsWhatThisVersionDoesNotKnow)
{
    const Store store;
    put(store,
        "; kept since the first version\r\n[FileLocations]\r\nOldOption=yes\r\n"
        "FirstTimeUsed=4\r\n\r\n[Gone]\r\nFeature=1\r\n");
    G settings;
    EXPECT_TRUE(readGlobalSettings(settings, store.files).isEmpty());
    EXPECT_EQ(settings.FirstTimeUsed, 4);
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
    const auto saved = saveGlobalSettings(G(), store.files);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().path, store.folder.file(u"gone/Zeph.ini"_s));
    EXPECT_EQ(store.files.hotasIni.text(u"Defaults", u"DownloadMode"), u"1"_s);
}

TEST(SaveSettings, WritesOnlyWhatIsAsked)
{
    const Store store;
    G settings;
    settings.ShowTips = 0;
    ASSERT_TRUE(saveSettings(settings, store.files, { &G::ShowTips }));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s), "[FileLocations]\r\nShowTips=0\r\n");
    EXPECT_FALSE(store.folder.exists(u"HOTAS.ini"_s));
}

TEST(SaveColours, WritesAllSixteen)
{
    const Store store;
    ASSERT_TRUE(SaveColourScheme(G(), store.files));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s).count('='), 16);
    EXPECT_EQ(store.text(u"Colours", u"MacroListBackground"), u"16777215"_s);
    EXPECT_EQ(store.text(u"Colours", u"TextFontSize"), u"8"_s);
}

TEST(NumberSettings, AreNumbersOrTheirDefaults)
{
    G settings;
    settings.MumTopAtStartup = u"1234,5"_s;
    settings.RegainControlAfter = u" 60000 "_s;
    settings.CheckForCompletionTime = u"soon"_s;
    EXPECT_EQ(numberOf(settings, &G::MumTopAtStartup), 1234.5);
    EXPECT_EQ(regainControlAfterMs(settings), 60000);
    EXPECT_EQ(checkForCompletionTimeMs(settings), 1000);
    settings.CheckForCompletionTime = u"nan"_s;
    EXPECT_EQ(checkForCompletionTimeMs(settings), 1000);
    settings.CheckForCompletionTime = u"2147483647"_s;
    EXPECT_EQ(checkForCompletionTimeMs(settings), 2147483647);
}
