// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/setting_fields.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "preferences/preferences_keys.h"
#include "settings/shared_settings.h"
#include "tests/settings/store.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gmock/gmock.h>

#include <algorithm>

using namespace zeph;

namespace {

struct NumberCase {
    SettingRef setting;
    QStringView typed;
    int taken;
};

std::ostream &operator<<(std::ostream &out, const NumberCase &each)
{
    return out << each.setting.key().key.toString().toStdString() << " '"
               << each.typed.toString().toStdString() << "'";
}

class NumberFields : public testing::TestWithParam<NumberCase>
{
};

struct TextCase {
    SettingRef setting;
    QString typed;
    QString taken;
};

class TextFields : public testing::TestWithParam<TextCase>
{
};

} // namespace

TEST_P(NumberFields, AreTakenByTheirRule)
{
    EXPECT_EQ(takenNumber(GetParam().typed, GetParam().setting), GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, NumberFields,
    testing::Values(NumberCase{ &DocumentSettings::UndoMax, u"5", 10 },
                    NumberCase{ &DocumentSettings::UndoMax, u"10", 10 },
                    NumberCase{ &DocumentSettings::UndoMax, u"250", 250 },
                    NumberCase{ &DocumentSettings::UndoMax, u"30000", 30000 },
                    NumberCase{ &DocumentSettings::UndoMax, u"40000", 30000 },
                    NumberCase{ &DocumentSettings::UndoMax, u"-7", 10 },
                    NumberCase{ &DocumentSettings::UndoMax, u"", 10 },
                    NumberCase{ &DocumentSettings::UndoMax, u"many", 10 },
                    NumberCase{ &DocumentSettings::UndoMax, u"99999999999999999999", 30000 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"61", 3 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"60", 60 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"0", 0 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"-1", 3 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"", 3 },
                    NumberCase{ &ToolchainSettings::StatusMonitoringInterval, u"7 s", 7 },
                    NumberCase{ &EditorSettings::AutoSaveTime, u"0", 1 },
                    NumberCase{ &EditorSettings::AutoSaveTime, u"-3", 1 },
                    NumberCase{ &EditorSettings::AutoSaveTime, u"abc", 1 },
                    NumberCase{ &EditorSettings::AutoSaveTime, u" 15 ", 15 },
                    NumberCase{ &EditorSettings::AutoSaveTime, u"2.5", 2 },
                    NumberCase{ &EditorSettings::DefaultDLYvalue, u"100", 100 },
                    NumberCase{ &EditorSettings::DefaultDLYvalue, u"", 60 },
                    NumberCase{ &EditorSettings::DefaultDLYvalue, u"-1", 0 },
                    NumberCase{ &EditorSettings::DefaultDLYvalue, u"40000", 32767 },
                    NumberCase{ &EditorSettings::IndentSpaces, u"8", 8 },
                    NumberCase{ &EditorSettings::IndentSpaces, u"", 5 },
                    NumberCase{ &EditorSettings::IndentSpaces, u"500", 80 }));

TEST(AutoSaveFields, AnEmptyFieldGives10AndTurnsTheTickOff)
{
    EXPECT_EQ(takenAutoSave(u"", true), (AutoSaveFields{ 10, false }));
    EXPECT_EQ(takenAutoSave(u"  ", true), (AutoSaveFields{ 10, false }));
}

TEST(AutoSaveFields, AValueBelow1Gives1AndTheTickStays)
{
    EXPECT_EQ(takenAutoSave(u"0", true), (AutoSaveFields{ 1, true }));
    EXPECT_EQ(takenAutoSave(u"-20", false), (AutoSaveFields{ 1, false }));
    EXPECT_EQ(takenAutoSave(u"25", true), (AutoSaveFields{ 25, true }));
}

TEST_P(TextFields, AreTakenByTheirRule)
{
    EXPECT_EQ(takenText(GetParam().setting, GetParam().typed, u"before"_s).toStdString(),
              GetParam().taken.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, TextFields,
    testing::Values(
        TextCase{ &MenuSettings::GamesCaption, {}, u"&Games"_s },
        TextCase{ &MenuSettings::GamesCaption, u"   "_s, u"&Games"_s },
        TextCase{ &MenuSettings::GamesCaption, u"Eat thi&s!"_s, u"Eat thi&s!"_s },
        TextCase{ &SharedSettings::PilotCallsign, {}, u"buddy"_s },
        TextCase{ &SharedSettings::PilotCallsign, u" Viper "_s, u"Viper"_s },
        TextCase{ &SharedSettings::ValidUser, {}, u"User unknown"_s },
        TextCase{ &EditorSettings::WinZipFilePath, {}, {} },
        TextCase{ &EditorSettings::WinZipFilePath, u"C:\\Zip\\wz.exe"_s, u"C:\\Zip\\wz.exe"_s },
        // What the store could not give back leaves the setting alone.
        TextCase{ &EditorSettings::BackUpFolder, u"/home/\u65e5\u672c"_s, u"before"_s },
        TextCase{ &EditorSettings::BackUpFolder, QString(500, u'x'), u"before"_s },
        TextCase{ &EditorSettings::BackUpFolder, QString(499, u'x'), QString(499, u'x') }));

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
        if (key.setting) {
            EXPECT_EQ(key.setting->key().section, key.section) << name.toStdString();
            EXPECT_EQ(key.setting->key().key, key.key);
        } else {
            // The entries of the lists are no settings.
            EXPECT_THAT((std::array{ PreferencesTab::Apps, PreferencesTab::Favourites,
                                     PreferencesTab::Games }),
                        testing::Contains(key.tab))
                << name.toStdString();
        }
    }
}

TEST(PreferencesKeys, AFieldEditsTheSettingWhoseKeysNameItHas)
{
    QWidget page;
    (new QCheckBox(&page))->setObjectName(u"LineNumbers"_s);
    (new QLineEdit(&page))->setObjectName(u"UndoMax"_s);
    (new QLineEdit(&page))->setObjectName(u"BackUpFolder"_s);
    (new QComboBox(&page))->setObjectName(u"JoyIDnumber"_s);
    (new QLabel(&page))->setObjectName(u"TileFiles"_s);
    (new QCheckBox(&page))->setObjectName(u"NoSetting"_s);
    const QList<PreferencesKey> fields = fieldsOf(page, PreferencesTab::Misc);
    ASSERT_EQ(fields.size(), 4);
    EXPECT_EQ(fields[0].setting, SettingRef(&DocumentSettings::LineNumbers));
    EXPECT_EQ(fields[0].kind, FieldKind::Tick);
    EXPECT_EQ(fields[0].tab, PreferencesTab::Misc);
    EXPECT_EQ(fields[1].setting, SettingRef(&DocumentSettings::UndoMax));
    EXPECT_EQ(fields[1].kind, FieldKind::Number);
    EXPECT_EQ(fields[2].kind, FieldKind::Text);
    EXPECT_EQ(fields[3].setting, SettingRef(&ToolchainSettings::JoyIDnumber));
    EXPECT_EQ(fields[3].kind, FieldKind::Choice);
    EXPECT_EQ(fields[3].first, 0);
}

TEST(PreferencesKeys, EveryFlagOfTheSectionUnsupportedIsATickOfZephsPage)
{
    for (const QStringView flag :
         { u"TurnOffFontCheck", u"SynchroniseModeOnStartup", u"ForeignLanguageKBInputFix",
           u"JoyTestConnect", u"UseHLPnotCHM", u"ColourWithTyping", u"AlwaysShowCompileDownload",
           u"DefaultToDX8KeyTester" }) {
        const auto found = std::ranges::find(preferencesKeys(), flag, &PreferencesKey::key);
        ASSERT_NE(found, preferencesKeys().end()) << flag.toString().toStdString();
        EXPECT_EQ(found->tab, PreferencesTab::Zeph) << flag.toString().toStdString();
        EXPECT_EQ(found->kind, FieldKind::Tick) << flag.toString().toStdString();
    }
}

TEST(PreferencesKeys, TheWordOfTheStandInsCanBeAskedForAgain)
{
    const auto found = std::ranges::find(preferencesKeys(), u"TellStandIn", &PreferencesKey::key);
    ASSERT_NE(found, preferencesKeys().end());
    EXPECT_EQ(found->tab, PreferencesTab::Misc);
}

TEST(PreferencesKeys, EveryNumberHasARuleAndItsDefaultSatisfiesIt)
{
    for (const PreferencesKey &key : preferencesKeys()) {
        if (key.kind == FieldKind::Number) {
            const int missing = std::get<int>(defaultOf(key.setting->key()));
            EXPECT_EQ(takenNumber(QString::number(missing), *key.setting), missing)
                << key.key.toString().toStdString();
        }
    }
}

TEST(DefaultOptions, AbsentKeysHaveTheToolsDefaults)
{
    const test::Store store;
    const DefaultOptions options = GetDefaultOptions(store.files);
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
    const test::Store store;
    store.folder.write(
        u"HOTAS.ini"_s,
        "; Thrustmaster\r\n[Defaults]\r\nPOVhat=2\r\nOther=x\r\n[TMMODE]\r\nAxes=1\r\n");
    const DefaultOptions read = GetDefaultOptions(store.files);
    DefaultOptions options = read;
    EXPECT_EQ(options.POVhat, 2);
    options.POVhat = 4;
    options.RCSType = true;
    options.TG1enabled = false;
    ASSERT_TRUE(SaveDefaultOptions(options, read, store.files));
    EXPECT_EQ(GetDefaultOptions(store.files), options);
    const QByteArray bytes = store.folder.read(u"HOTAS.ini"_s);
    EXPECT_TRUE(bytes.startsWith("; Thrustmaster\r\n[Defaults]\r\nPOVhat=4\r\nOther=x\r\n"));
    EXPECT_TRUE(bytes.endsWith("[TMMODE]\r\nAxes=1\r\n"));
}

TEST(DefaultOptions, ANumberThatDoesNotFitHasItsDefault)
{
    const test::Store store;
    store.folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=70000\r\nS2enabled=99999\r\n");
    EXPECT_EQ(GetDefaultOptions(store.files), DefaultOptions());
}

TEST(DefaultOptions, SavingLeavesAloneWhatNobodyChanged)
{
    const test::Store store;
    store.folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=9\r\nTG1enabled=x\r\nS2enabled=1\r\n");
    const DefaultOptions read = GetDefaultOptions(store.files);
    // Another program changes a value meanwhile.
    store.folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=9\r\nTG1enabled=x\r\nS2enabled=0\r\n");
    DefaultOptions options = read;
    options.RCSType = true;
    ASSERT_TRUE(SaveDefaultOptions(options, read, store.files));
    const ProfileFile &file = store.files.hotasIni;
    EXPECT_EQ(file.text(u"Defaults", u"POVhat"), u"9");
    EXPECT_EQ(file.text(u"Defaults", u"TG1enabled"), u"x");
    EXPECT_EQ(file.text(u"Defaults", u"S2enabled"), u"0");
    EXPECT_EQ(file.text(u"Defaults", u"RCSType"), u"1");
    EXPECT_EQ(file.text(u"Defaults", u"MDEFrequired"), u"1") << "absent keys are written";
}

TEST(SettingFields, ATextThatItsFieldCannotShowWholeStaysUnlessItIsTouched)
{
    Settings settings;
    settings.of<SharedSettings>().PilotCallsign = QString(120, u'x');
    settings.of<SharedSettings>().ValidUser = u"Ann"_s;
    QWidget page;
    auto *callsign = new QLineEdit(&page);
    callsign->setObjectName(u"PilotCallsign"_s);
    callsign->setMaxLength(100);
    auto *user = new QLineEdit(&page);
    user->setObjectName(u"ValidUser"_s);
    SettingFields fields(page, PreferencesTab::Zeph);
    fields.show(settings);
    user->setText(u"Bea"_s);
    fields.take(settings);
    EXPECT_EQ(settings.of<SharedSettings>().PilotCallsign.size(), 120);
    EXPECT_EQ(settings.of<SharedSettings>().ValidUser, u"Bea");
    callsign->setText(u"Gust"_s);
    fields.take(settings);
    EXPECT_EQ(settings.of<SharedSettings>().PilotCallsign, u"Gust");
}
