// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "preferences/preferences_keys.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QMap>

#include <iterator>

using namespace zeph;
using namespace zeph::test;

namespace {

const QString started = u"text Panel_1 Ready! Welcome to Zeph"_s;
const QString entry = u"trigger mnuAppsPreferences"_s;
const QString opened = u"window Preferences"_s;

bool isInHotasIni(const PreferencesKey &key)
{
    return key.section == u"Defaults";
}

/// A colour for each line of the list of colours that no scheme has; as it is typed, and as the
/// store has it.
QString colourName(int line)
{
    return u"10%1a0"_s.arg(16 + line, 2, 16, QLatin1Char('0'));
}
QString colourStored(int line)
{
    return QString::number(0x10 + (16 + line) * 256 + 0xa0 * 65536);
}

class ProgramPreferences : public testing::Test
{
protected:
    ProgramPreferences()
    {
        program.settle("[Favourites]\r\nFavArrayNum=1\r\nFavName1=Old pair\r\nFavJFPath1=None\r\n"
                       "FavMFPath1=None\r\n[Games]\r\nGameArrayNum=1\r\nGameName1=Falcon\r\n"
                       "GamePath1=falcon.exe\r\nGameDIRPath1=games\r\nGameJF1=old.tmj\r\n"
                       "GameJFmode1=0\r\n");
    }

    QString stored(const PreferencesKey &key) const
    {
        return program.setting(key.section.toString(), key.key.toString(),
                               isInHotasIni(key) ? u"HOTAS.ini"_s : u"Zeph.ini"_s);
    }

    /// What is typed for a key: never what it has, and within its rule.
    QString otherText(const PreferencesKey &key) const
    {
        static const QMap<QString, QString> ofTheirOwn = {
            { u"BackUpFolder"_s, program.file(u"My backups/"_s) },
            { u"ImageFilePath"_s, program.file(u"other.bmp"_s) },
            { u"TextFilePath"_s, program.file(u"other.txt"_s) },
            { u"WinZipFilePath"_s, program.file(u"other/zip"_s) },
            { u"GameDIRPath1"_s, program.file(u"other games"_s) },
            { u"GameJF1"_s, program.file(u"Files/other.tmj"_s) },
            { u"FavJFPath1"_s, program.file(u"Files/Sample flight.tmj"_s) },
            { u"FavMFPath1"_s, program.file(u"Files/Sample flight.tmm"_s) },
            { u"GamesCaption"_s, u"Sc&ramble!"_s },
            { u"FavName1"_s, u"New pair"_s },
            { u"AutoSaveTime"_s, u"23"_s },
            { u"UndoMax"_s, u"77"_s },
            { u"StatusMonitoringInterval"_s, u"9"_s },
            { u"DefaultDLYvalue"_s, u"125"_s },
            { u"IndentSpaces"_s, u"3"_s },
        };
        return ofTheirOwn.value(key.key.toString(), u"other "_s + key.key.toString());
    }

    QStringList stepsFor(const PreferencesKey &key) const
    {
        const QString control = key.control.toString();
        const QString tab = u"tab SSTab1 %1"_s.arg(int(key.tab));
        switch (key.kind) {
        case FieldKind::Tick:
            return { tab, u"flip "_s + control };
        case FieldKind::Number:
        case FieldKind::Text:
            return { tab, u"retype %1 %2"_s.arg(control, otherText(key)) };
        case FieldKind::Choice:
        case FieldKind::Entry:
            return { tab, u"choose %1 2"_s.arg(control) };
        case FieldKind::Amount:
            return { tab, u"choose %1 13"_s.arg(control) };
        case FieldKind::Colour:
            return { tab, u"choose %1 %2"_s.arg(control).arg(key.first),
                     u"press CMD_ChangeColour"_s, u"colour "_s + colourName(key.first) };
        case FieldKind::MakeDefault:
            return { tab, u"press "_s + control, u"text FavNameToLoad New pair"_s };
        }
        return {};
    }

    /// What the store must have for the state that the driver noted of the field.
    QString expected(const PreferencesKey &key, const QMap<QString, QString> &notes) const
    {
        const QString noted = notes.value(key.control.toString());
        switch (key.kind) {
        case FieldKind::Choice:
            return QString::number(2 + key.first);
        case FieldKind::Entry:
            return noted.section(u'|', 1);
        case FieldKind::Amount:
            return u"13"_s;
        case FieldKind::Colour:
            return colourStored(key.first);
        case FieldKind::MakeDefault:
            return u"New pair"_s;
        case FieldKind::Tick:
            return noted;
        default:
            // The store holds what is inside the program's folder relative to it.
            return otherText(key).remove(program.folder() + QDir::separator());
        }
    }

    /// What a field shows. A list's places shift: a font that the system lacks is listed only while
    /// it is the present one.
    static std::string shown(const PreferencesKey &key, const QMap<QString, QString> &notes)
    {
        const QString noted = notes.value(key.control.toString());
        return (key.kind == FieldKind::Entry ? noted.section(u'|', 1) : noted).toStdString();
    }

    static QMap<QString, QString> byControl(const QStringList &noted)
    {
        QMap<QString, QString> result;
        for (const QString &line : noted) {
            result.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
        }
        return result;
    }

    Program program;
};

} // namespace

TEST_F(ProgramPreferences, EverySettingChangedInTheWindowSurvivesARestart)
{
    program.run({ started, entry, opened, u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });
    QMap<QString, QString> before;
    QStringList change = { started, entry, opened };
    QStringList look = { u"window Tip of the Day"_s, u"press cmdOK"_s, u"gone Tip of the Day"_s,
                         entry, opened };
    for (const PreferencesKey &key : preferencesKeys()) {
        before.insert(key.key.toString(), stored(key));
        change.append(stepsFor(key));
        if (key.kind != FieldKind::Colour && key.kind != FieldKind::MakeDefault) {
            look.append(
                { u"tab SSTab1 %1"_s.arg(int(key.tab)), u"value "_s + key.control.toString() });
        }
    }
    change.append({ u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });
    look.append({ u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });

    const auto changed = byControl(program.run(change));
    QMap<QString, QString> after;
    for (const PreferencesKey &key : preferencesKeys()) {
        const QString name = key.key.toString();
        after.insert(name, stored(key));
        EXPECT_EQ(after.value(name).toStdString(), expected(key, changed).toStdString())
            << name.toStdString();
        EXPECT_NE(after.value(name), before.value(name)) << name.toStdString();
    }

    const auto seen = byControl(program.run(look));
    for (const PreferencesKey &key : preferencesKeys()) {
        const QString control = key.control.toString();
        EXPECT_EQ(stored(key), after.value(key.key.toString())) << control.toStdString();
        if (key.kind != FieldKind::Colour && key.kind != FieldKind::MakeDefault) {
            EXPECT_EQ(shown(key, seen), shown(key, changed)) << control.toStdString();
        }
    }
}

TEST_F(ProgramPreferences, TheMainWindowsEndDoesNotLoseWhatStandsInTheWindow)
{
    program.run({ started, entry, opened, u"tab SSTab1 5"_s, u"retype UndoMax 55"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"UndoMax"_s), u"55");
}

TEST_F(ProgramPreferences, WhatAFieldCannotShowStaysAsItIs)
{
    const QByteArray hotas = "[Defaults]\r\nPOVhat=9\r\nRCSType=maybe\r\nTG1enabled=x\r\n";
    program.write(u"HOTAS.ini"_s, hotas);
    program.settle("[Colours]\r\nTextFontName=No Such Font\r\nTextFontSize=73\r\n");
    program.run({ started, entry, opened, u"tab SSTab1 7"_s, u"flip CHK_Default_0"_s,
                  u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });
    const auto kept = [this](const QString &key) {
        return program.setting(u"Defaults"_s, key, u"HOTAS.ini"_s);
    };
    EXPECT_NE(kept(u"POVUD"_s), u"(absent)") << "the one that was touched";
    EXPECT_EQ(kept(u"POVhat"_s), u"9");
    EXPECT_EQ(kept(u"RCSType"_s), u"maybe");
    EXPECT_EQ(kept(u"TG1enabled"_s), u"x");
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontName"_s), u"No Such Font");
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontSize"_s), u"73");
}

TEST_F(ProgramPreferences, AnIndentOfEightyIsWrittenAndAligned)
{
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a\r\n");
    for (const QString &typed : { u"80"_s, u"81"_s }) {
        program.run({ u"text JoystickText BTN"_s, entry, opened, u"tab SSTab1 8"_s,
                      u"retype IndentSpaces "_s + typed, u"press cmdOK"_s, u"gone Preferences"_s,
                      u"close"_s },
                    { path });
        EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"IndentSpaces"_s), u"80");
        program.settle();
    }
    program.settle("IndentSpaces=80\r\nIndentAsWell=1\r\n");
    program.run({ u"text JoystickText BTN"_s, u"trigger mnuAlignSlash"_s, u"done"_s,
                  u"trigger mnuFileSave"_s, u"text Panel_1 saved successfully."_s, u"close"_s },
                { path });
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), QByteArray(80, ' ') + "BTN S1 a\r\n");
}

TEST_F(ProgramPreferences, ALetterThatTheFilesCannotHoldIsToldWhereItIsTyped)
{
    const QString before = program.setting(u"Favourites"_s, u"FavName1"_s);
    const QStringList notes = program.run({ started, entry, opened, u"tab SSTab1 5"_s,
                                            u"retype BackUpFolder /tmp/\u0141\u00f3d\u017a/"_s,
                                            u"text LabelUnwritable can't hold the character"_s,
                                            u"retype BackUpFolder "_s + program.file(u"Backup/"_s),
                                            u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });
    EXPECT_THAT(
        lines(notes),
        testing::Contains(testing::HasSubstr("my files can't hold the character \"\u0141\"")));
}

TEST_F(ProgramPreferences, ACustomApplicationThatIsAFolderIsRefused)
{
    program.settle("[Apps]\r\nCustomAppName1=Mine\r\nCustomAppPath1="
                   + program.file(u"Files"_s).toUtf8() + "\r\nCustomAppUse1=1\r\n");
    const QStringList notes =
        program.run({ started, u"usable mnuCustomApp_1 0"_s, entry, opened, u"tab SSTab1 2"_s,
                      u"usable CustomAppUse_1 0"_s, u"value CustomAppUse_1"_s, u"press cmdOK"_s,
                      u"gone Preferences"_s, u"close"_s });
    EXPECT_THAT(lines(notes), testing::Contains(testing::HasSubstr("is a folder, not a program")));
    EXPECT_THAT(lines(notes), testing::Contains("CustomAppUse_1=0"));
}
