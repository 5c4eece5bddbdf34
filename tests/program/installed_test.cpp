// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A program that others have installed, and one that is started from somewhere else.

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDir>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

struct ProgramInstalled : testing::Test {
    Program program;
};

/// The user has a home of the test's own.
struct ProgramAtHome : ProgramInstalled {
    void SetUp() override
    {
#ifdef Q_OS_WIN
        GTEST_SKIP()
            << "no variable moves the user's own folder, and rights are told in other ways";
#endif
    }

    const QString mine = u".local/share/Zeph/"_s;

    bool iHave(const QString &name) const { return program.home().exists(mine + name); }
    QByteArray my(const QString &name) const { return program.home().read(mine + name); }
};

} // namespace

TEST_F(ProgramAtHome, AFirstStartFillsTheUsersOwnFolderWithoutOtherPeoplesFiles)
{
    program.settle("ValidUser=Somebody Else\r\n");
    program.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=3\r\n");
    for (const QString &name : { u"Recovery/1/joystick.txt"_s, u"Rtf/theirs.tmj"_s,
                                 u"Backup/theirs.tmj"_s, u"Temp/theirs.txt"_s, u"Zeph.2"_s }) {
        program.write(name, "another person's");
    }
    program.installForOthers();
    program.run({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"value txtFirstName"_s,
                  u"dismiss Welcome"_s, u"gone Welcome"_s, u"close"_s });
    for (const QString &name :
         { u"Tips.txt"_s, u"KeyCodes.txt"_s, u"Info/ZephInfo.ini"_s, u"HOTASCompiler.exe"_s }) {
        EXPECT_EQ(my(name), program.read(name)) << name.toStdString();
    }
    EXPECT_TRUE(iHave(u"Help"_s));
    EXPECT_FALSE(my(u"Zeph.ini"_s).contains("Somebody"));
    EXPECT_FALSE(my(u"HOTAS.ini"_s).contains("POVhat=3"));
    for (const QString &name : { u"Recovery/1"_s, u"Rtf/theirs.tmj"_s, u"Backup/theirs.tmj"_s,
                                 u"Temp/theirs.txt"_s, u"Zeph.2"_s }) {
        EXPECT_FALSE(iHave(name)) << name.toStdString();
    }
    EXPECT_TRUE(program.read(u"Zeph.ini"_s).contains("Somebody")) << "theirs stays theirs";
}

TEST_F(ProgramAtHome, AFolderThatAPackageSharesIsLeftAloneEvenWhereItCanBeWritten)
{
    program.write(u"Package.ini"_s, "[Package]\nFile=zeph_<version>_amd64.deb\nShared=1\n");
    program.setEnvironment(u"HOME"_s, program.home().path());
    program.setEnvironment(u"XDG_DATA_HOME"_s, program.home().file(u".local/share"_s));
    program.run({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"dismiss Welcome"_s,
                  u"gone Welcome"_s, u"close"_s });
    EXPECT_TRUE(iHave(u"Zeph.ini"_s));
    EXPECT_TRUE(iHave(u"Tips.txt"_s));
    EXPECT_FALSE(iHave(u"Package.ini"_s)) << "it tells of the program's folder, not of mine";
    for (const QString &name : { u"Zeph.ini"_s, u"HOTAS.ini"_s, u"Rtf"_s, u"Temp"_s }) {
        EXPECT_FALSE(program.exists(name)) << name.toStdString();
    }
}

TEST_F(ProgramAtHome, AnUpgradeBringsDataUpToDateAndNamesTheFilesThatTheUserChanged)
{
    program.installForOthers();
    const QStringList closing = { u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s,
                                  u"dismiss Welcome"_s, u"gone Welcome"_s };
    program.run(closing + QStringList{ u"close"_s });
    program.home().write(mine + u"KeyCodes.txt"_s, "mine");
    const QByteArray untouched = my(u"Info/ZephInfo.ini"_s);
    program.write(u"KeyCodes.txt"_s, "the new program's");
    program.write(u"Tips.txt"_s, "A new tip\r\n");
    program.run(closing
                + QStringList{ u"text Panel_1 I'm up to date now, but you've changed these, so I "
                               u"kept yours: KeyCodes.txt"_s,
                               u"close"_s });
    EXPECT_EQ(my(u"KeyCodes.txt"_s), "mine");
    EXPECT_EQ(my(u"Tips.txt"_s), "A new tip\r\n");
    EXPECT_EQ(my(u"Info/ZephInfo.ini"_s), untouched);
    program.run(closing + QStringList{ u"text Panel_1 Ready! Welcome to Zeph"_s, u"close"_s });
}

TEST_F(ProgramAtHome, WhereNoFolderCanBeWrittenOneBoxSaysJustThat)
{
    program.settle();
    program.installForOthers();
    program.setEnvironment(u"HOME"_s, u"/nowhere"_s);
    const QStringList notes = program.run({ u"modal"_s, u"press OK"_s, u"gone I can't"_s,
                                            u"text Panel_1 Ready! Welcome to Zeph"_s, u"close"_s });
    EXPECT_THAT(lines(notes.filter(u"box "_s)),
                testing::ElementsAre(testing::StartsWith("box I can't write anything|")));
}

TEST_F(ProgramAtHome, ATildeInASettingIsTheHomeFolder)
{
    program.setEnvironment(u"HOME"_s, program.home().path());
    QDir().mkpath(program.home().file(u"My backups"_s));
    program.settle();
    program.write(u"Zeph.ini"_s,
                  program.read(u"Zeph.ini"_s)
                      .replace("ShowTips=0\r\n", "ShowTips=0\r\nBackUpFolder=~/My backups/\r\n"));
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
    program.run({ u"text JoystickText BTN"_s, u"type JoystickText x"_s, u"trigger mnuFileSave"_s,
                  u"text Panel_1 saved successfully."_s, u"close"_s },
                { path });
    EXPECT_EQ(program.home().read(u"My backups/a.tmj"_s), "xBTN S1 a");
}

TEST_F(ProgramInstalled, FromAnotherFolderSettingsMeanTheProgramsAndTheCommandLineThatFolders)
{
    program.settle("RestoreStatus=1\r\nRestoreJoyFile=Files/a.tmj\r\n");
    program.write(u"Files/a.tmj"_s, "Rem the program's");
    program.write(u"elsewhere/Files/a.tmj"_s, "Rem of elsewhere");
    program.startIn(program.file(u"elsewhere"_s));
    program.run({ u"text JoystickText Rem the program's"_s, u"close"_s });
    program.run({ u"text JoystickText Rem of elsewhere"_s, u"close"_s }, { u"Files/a.tmj"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RestoreJoyFile"_s),
              QDir::toNativeSeparators(u"elsewhere/Files/a.tmj"_s));
}
