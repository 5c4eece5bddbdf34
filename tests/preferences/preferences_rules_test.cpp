// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences_rules.h"

#include "preferences/default_options.h"
#include "preferences/preferences_keys.h"
#include "settings/global_settings.h"
#include "tests/support/temp_folder.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace zeph;

namespace {

struct NumberCase {
    QStringView key;
    QStringView typed;
    qint16 taken;
};

std::ostream &operator<<(std::ostream &out, const NumberCase &each)
{
    return out << each.key.toString().toStdString() << " '" << each.typed.toString().toStdString()
               << "'";
}

class NumberFields : public testing::TestWithParam<NumberCase>
{
};

struct TextCase {
    QStringView key;
    QString typed;
    QString taken;
};

class TextFields : public testing::TestWithParam<TextCase>
{
};

} // namespace

TEST_P(NumberFields, AreTakenByTheirRule)
{
    EXPECT_EQ(takenNumber(GetParam().typed, numberRuleOf(GetParam().key)), GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, NumberFields,
    testing::Values(
        NumberCase{ u"UndoMax", u"5", 10 }, NumberCase{ u"UndoMax", u"10", 10 },
        NumberCase{ u"UndoMax", u"250", 250 }, NumberCase{ u"UndoMax", u"30000", 30000 },
        NumberCase{ u"UndoMax", u"40000", 30000 }, NumberCase{ u"UndoMax", u"-7", 10 },
        NumberCase{ u"UndoMax", u"", 10 }, NumberCase{ u"UndoMax", u"many", 10 },
        NumberCase{ u"UndoMax", u"99999999999999999999", 30000 },
        NumberCase{ u"StatusMonitoringInterval", u"61", 3 },
        NumberCase{ u"StatusMonitoringInterval", u"60", 60 },
        NumberCase{ u"StatusMonitoringInterval", u"0", 0 },
        NumberCase{ u"StatusMonitoringInterval", u"-1", 3 },
        NumberCase{ u"StatusMonitoringInterval", u"", 3 },
        NumberCase{ u"StatusMonitoringInterval", u"7 s", 7 },
        NumberCase{ u"AutoSaveTime", u"0", 1 }, NumberCase{ u"AutoSaveTime", u"-3", 1 },
        NumberCase{ u"AutoSaveTime", u"abc", 1 }, NumberCase{ u"AutoSaveTime", u" 15 ", 15 },
        NumberCase{ u"AutoSaveTime", u"2.5", 2 }, NumberCase{ u"DefaultDLYvalue", u"100", 100 },
        NumberCase{ u"DefaultDLYvalue", u"", 60 }, NumberCase{ u"DefaultDLYvalue", u"-1", 0 },
        NumberCase{ u"DefaultDLYvalue", u"40000", 32767 }, NumberCase{ u"IndentSpaces", u"8", 8 },
        NumberCase{ u"IndentSpaces", u"", 5 }, NumberCase{ u"IndentSpaces", u"500", 80 }));

TEST(AutoSaveFields, AnEmptyFieldGives10AndTurnsTheTickOff)
{
    EXPECT_EQ(takenAutoSave(u"", true), (AutoSaveFields{ 10, 0 }));
    EXPECT_EQ(takenAutoSave(u"  ", true), (AutoSaveFields{ 10, 0 }));
}

TEST(AutoSaveFields, AValueBelow1Gives1AndTheTickStays)
{
    EXPECT_EQ(takenAutoSave(u"0", true), (AutoSaveFields{ 1, 1 }));
    EXPECT_EQ(takenAutoSave(u"-20", false), (AutoSaveFields{ 1, 0 }));
    EXPECT_EQ(takenAutoSave(u"25", true), (AutoSaveFields{ 25, 1 }));
}

TEST_P(TextFields, AreTakenByTheirRule)
{
    EXPECT_EQ(takenText(GetParam().key, GetParam().typed, u"before"_s).toStdString(),
              GetParam().taken.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, TextFields,
    testing::Values(TextCase{ u"GamesCaption", {}, u"&Games"_s },
                    TextCase{ u"GamesCaption", u"   "_s, u"&Games"_s },
                    TextCase{ u"GamesCaption", u"Eat thi&s!"_s, u"Eat thi&s!"_s },
                    TextCase{ u"PilotCallsign", {}, u"buddy"_s },
                    TextCase{ u"PilotCallsign", u" Viper "_s, u"Viper"_s },
                    TextCase{ u"ValidUser", {}, u"User unknown"_s },
                    TextCase{ u"WinZipFilePath", {}, {} },
                    TextCase{ u"WinZipFilePath", u"C:\\Zip\\wz.exe"_s, u"C:\\Zip\\wz.exe"_s },
                    // What the store could not give back leaves the setting alone.
                    TextCase{ u"BackUpFolder", u"/home/\u65e5\u672c"_s, u"before"_s },
                    TextCase{ u"BackUpFolder", QString(500, u'x'), u"before"_s },
                    TextCase{ u"BackUpFolder", QString(499, u'x'), QString(499, u'x') }));

TEST(GamesCaptions, AreFifteenAndBeginWithTheFallBack)
{
    EXPECT_EQ(gamesCaptions().size(), 15U);
    EXPECT_EQ(gamesCaptions().front(), u"&Games");
    EXPECT_EQ(gamesCaptions().back(), u"Air&borne!");
}

TEST(FilesDirectory, IsTheExplorerOfWindowsOnTheFilesFolder)
{
    EXPECT_EQ(filesDirectoryCommand(u"C:\\WINDOWS"_s, u"C:\\HOTAS\\Files\\"_s),
              u"C:\\WINDOWS\\explorer.exe C:\\HOTAS\\Files\\");
}

TEST(PreferencesKeys, StandEachOnceAndKnowTheStoresOwnSection)
{
    QStringList seen;
    for (const PreferencesKey &key : preferencesKeys()) {
        const QString name = key.key.toString();
        EXPECT_FALSE(seen.contains(name)) << name.toStdString();
        seen.append(name);
        const auto setting = std::ranges::find(settingsTable(), key.key, &Setting::key);
        if (setting != settingsTable().end()) {
            EXPECT_EQ(setting->section, key.section) << name.toStdString();
        } else {
            // The toolchain's own options and the entries of the lists are no global settings.
            EXPECT_THAT((std::array{ PreferencesTab::DefaultOptions, PreferencesTab::Apps,
                                     PreferencesTab::Favourites, PreferencesTab::Games }),
                        testing::Contains(key.tab))
                << name.toStdString();
        }
    }
}

TEST(PreferencesKeys, NoneIsOfTheSectionThatNoWindowShows)
{
    EXPECT_TRUE(std::ranges::none_of(preferencesKeys(), [](const PreferencesKey &key) {
        return key.section == u"Unsupported" || key.key == u"AlwaysShowCompileDownload";
    }));
}

TEST(PreferencesKeys, EveryNumberHasARuleAndItsDefaultSatisfiesIt)
{
    for (const PreferencesKey &key : preferencesKeys()) {
        if (key.kind == FieldKind::Number) {
            const auto setting = std::ranges::find(settingsTable(), key.key, &Setting::key);
            EXPECT_EQ(takenNumber(setting->missing, numberRuleOf(key.key)),
                      setting->missing.toInt())
                << key.key.toString().toStdString();
        }
    }
}

TEST(DefaultOptions, AbsentKeysHaveTheToolsDefaults)
{
    const test::TempFolder folder;
    const DefaultOptions options = GetDefaultOptions(ProfileFile(folder.file(u"HOTAS.ini"_s)));
    EXPECT_EQ(options.POVhat, 1);
    EXPECT_EQ(options.MicrostickMouse, 1);
    EXPECT_EQ(options.POVUD, 0);
    EXPECT_EQ(options.MicrostickUD, 0);
    EXPECT_EQ(options.TG1enabled, 1);
    EXPECT_EQ(options.S2enabled, 1);
    EXPECT_EQ(options.MDEFrequired, 1);
    EXPECT_EQ(options.DownloadMode, 1);
    EXPECT_EQ(options.RCSType, 0);
}

TEST(DefaultOptions, SavingChangesTheNineKeysAndNothingElse)
{
    const test::TempFolder folder;
    const ProfileFile file(folder.write(
        u"HOTAS.ini"_s,
        "; Thrustmaster\r\n[Defaults]\r\nPOVhat=2\r\nOther=x\r\n[TMMODE]\r\nAxes=1\r\n"));
    DefaultOptions options = GetDefaultOptions(file);
    EXPECT_EQ(options.POVhat, 2);
    options.POVhat = 4;
    options.RCSType = 1;
    options.TG1enabled = 0;
    ASSERT_TRUE(SaveDefaultOptions(options, file));
    EXPECT_EQ(GetDefaultOptions(file), options);
    const QByteArray bytes = folder.read(u"HOTAS.ini"_s);
    EXPECT_TRUE(bytes.startsWith("; Thrustmaster\r\n[Defaults]\r\nPOVhat=4\r\nOther=x\r\n"));
    EXPECT_TRUE(bytes.endsWith("[TMMODE]\r\nAxes=1\r\n"));
}

TEST(DefaultOptions, ANumberThatDoesNotFitHasItsDefault)
{
    const test::TempFolder folder;
    const ProfileFile file(
        folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=70000\r\nS2enabled=99999\r\n"));
    EXPECT_EQ(GetDefaultOptions(file), DefaultOptions());
}
