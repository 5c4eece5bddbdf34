// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QFile>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const QStringList firstRun = { u"window Welcome to Zeph"_s,
                               u"type txtFirstName Ann"_s,
                               u"type txtCallsign Gust"_s,
                               u"type txtLastName Lee"_s,
                               u"press cmdNames"_s,
                               u"press cmdHotas"_s,
                               u"press Option_Experience_3"_s,
                               u"press cmdExperience"_s,
                               u"press cmdFinish"_s,
                               u"gone Welcome"_s };

} // namespace

TEST(ProgramStart, AnAbsentStoreIsAFirstRunAndThenHoldsEveryGlobalKey)
{
    Program program;
    const QStringList notes = program.run(QStringList{ u"maybe-ok WARNING"_s } + firstRun
                                          + QStringList{ u"gone Tip of the Day"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Not(Contains(HasSubstr("Tip of the Day"))));
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"FirstTimeUsed"_s), u"5");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"ValidUser"_s), u"Ann \"Gust\" Lee");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"PilotCallsign"_s), u"Gust");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"UndoMax"_s), u"20");
    EXPECT_EQ(program.setting(u"Colours"_s, u"BackgroundColour"_s), u"14285565");
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontName"_s), u"Arial");
    EXPECT_EQ(program.setting(u"Handles"_s, u"NumHandles"_s), u"1");
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"ShowTips"_s), u"(absent)");
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"AlwaysShowCompileDownload"_s), u"(absent)");
    EXPECT_TRUE(program.setting(u"Files"_s, u"Files"_s, u"HOTAS.ini"_s)
                    .startsWith(program.file(u"Files"_s)));
    for (const QString &folder : { u"Rtf"_s, u"Files"_s, u"Layouts"_s, u"Temp"_s, u"Backup"_s }) {
        EXPECT_TRUE(program.exists(folder)) << folder.toStdString();
    }
}

TEST(ProgramStart, TheRunAfterTheFirstShowsATip)
{
    Program program;
    program.run(QStringList{ u"maybe-ok WARNING"_s } + firstRun + QStringList{ u"close"_s });
    const QStringList notes =
        program.run({ u"maybe-ok WARNING"_s, u"window Tip of the Day"_s, u"press OK"_s,
                      u"gone Tip"_s, u"text Panel_1 Ready! Welcome to Zeph, Gust!"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("window Tip of the Day"));
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"ShowTips"_s), u"1");
}

TEST(ProgramStart, AFirstRunThatIsClosedEarlyKeepsTheNamesAndTheColoursThatWereChosenSince)
{
    Program program;
    program.run({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"type txtFirstName Ann"_s,
                  u"type txtLastName Lee"_s, u"type txtCallsign Gust"_s, u"press cmdNames"_s,
                  u"press cmdHotas"_s, u"text lblExperience What's"_s, u"dismiss Welcome"_s,
                  u"gone Welcome"_s, u"trigger mnuAppsPreferences"_s, u"window Preferences"_s,
                  u"tab SSTab1 1"_s, u"choose TextFontSize 14"_s, u"press cmdOK"_s,
                  u"gone Preferences"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"FirstTimeUsed"_s), u"1");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"ValidUser"_s), u"Ann \"Gust\" Lee");
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontSize"_s), u"14");

    const QStringList notes =
        program.run({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"value txtFirstName"_s,
                      u"value txtLastName"_s, u"value txtCallsign"_s, u"press cmdNames"_s,
                      u"press cmdHotas"_s, u"press Option_Experience_3"_s, u"press cmdExperience"_s,
                      u"press cmdFinish"_s, u"gone Welcome"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("txtFirstName=Ann"));
    EXPECT_THAT(lines(notes), Contains("txtLastName=Lee"));
    EXPECT_THAT(lines(notes), Contains("txtCallsign=Gust"));
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"ValidUser"_s), u"Ann \"Gust\" Lee");
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontSize"_s), u"14");
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"FirstTimeUsed"_s), u"5");
}

TEST(ProgramStart, TheProgramEndsWithTheWelcomeWhenItsMainWindowIsClosedMeanwhile)
{
    Program program;
    const auto run = program.start({ u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s,
                                     u"type txtFirstName Ann"_s, u"close"_s, u"gone Untitled"_s,
                                     u"dismiss Welcome"_s },
                                   u"closed.log"_s);
    ASSERT_TRUE(run->waitForFinished());
    EXPECT_EQ(run->exitCode(), 0);
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"ValidUser"_s), u"Ann");
}

TEST(ProgramStart, TheFirstRunsLastPageChoosesDarkColoursAndAFontInWhichSlashesLineUp)
{
    Program program;
    const QStringList notes = program.run(
        { u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"type txtFirstName Ann"_s,
          u"press cmdNames"_s, u"press cmdHotas"_s, u"press Option_Experience_3"_s,
          u"press cmdExperience"_s, u"choose cboFont 1"_s, u"press Option_Colours_1"_s,
          u"press cmdFinish"_s, u"gone Welcome"_s, u"close"_s });
    const QString chosen = notes.filter(u"cboFont="_s).value(0).section(u'|', 1);
    ASSERT_FALSE(chosen.isEmpty());
    EXPECT_EQ(program.setting(u"Colours"_s, u"TextFontName"_s), chosen);
    EXPECT_EQ(program.setting(u"Colours"_s, u"BackgroundColour"_s),
              QString::number(30 + 32 * 256 + 36 * 65536));
}

TEST(ProgramStart, AHotasFolderIsRememberedAndItsFileKeepsItsOptions)
{
    Program program;
    program.settle();
    program.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=1\r\nRCSType=0\r\n");
    program.write(u"Thrustmaster/HOTAS.ini"_s,
                  "[Defaults]\r\nPOVhat=3\r\nRCSType=1\r\nTG1enabled=x\r\n");
    const QString folder = program.file(u"Thrustmaster"_s);
    program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsPreferences"_s, u"window Preferences"_s,
                  u"press cmdBrowseHotas"_s, u"file "_s + folder,
                  u"text HotasFolder Thrustmaster"_s, u"press cmdOK"_s, u"gone Preferences"_s,
                  u"close"_s });
    const QString ini = u"Thrustmaster/HOTAS.ini"_s;
    EXPECT_EQ(program.setting(u"Defaults"_s, u"POVhat"_s, ini), u"3");
    EXPECT_EQ(program.setting(u"Defaults"_s, u"RCSType"_s, ini), u"1");
    EXPECT_EQ(program.setting(u"Defaults"_s, u"TG1enabled"_s, ini), u"x");
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"HotasFolder"_s),
              QDir::toNativeSeparators(u"Thrustmaster/"_s));

    const QStringList notes = program.run(
        { u"text Panel_1 Ready"_s, u"trigger mnuAppsPreferences"_s, u"window Preferences"_s,
          u"note HotasFolder"_s, u"press cmdOK"_s, u"gone Preferences"_s, u"close"_s });
    EXPECT_THAT(lines(notes),
                Contains("HotasFolder=" + program.file(u"Thrustmaster/"_s).toStdString()));
}

TEST(ProgramStart, ACommandLineThatNamesNoFileIsToldAndDropped)
{
    Program program;
    program.settle();
    const QStringList notes =
        program.run({ u"box I can't find that file buddy"_s, u"press OK"_s,
                      u"text Panel_1 Ready! Welcome to Zeph, buddy!"_s, u"close"_s },
                    { program.file(u"Files/nothing.tmj"_s) });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("nothing.tmj")));
}

TEST(ProgramStart, AFileOfAnyEndingOpensAsTheJoystickFile)
{
    for (const QByteArray &single : { QByteArray("0"), QByteArray("1") }) {
        Program program;
        program.settle("OpenSingleFileOnly=" + single + "\r\n");
        program.write(u"notes.txt"_s, "Rem mine\r\n");
        program.run({ u"text JoystickText Rem mine"_s, u"close"_s },
                    { program.file(u"notes.txt"_s) });
    }
}

TEST(ProgramStart, AFurtherInstanceWorksOnItsOwnStoreAndTakesItAway)
{
    Program program;
    program.settle();
    const auto first = program.start({ u"text Panel_1 Ready"_s, u"window Untitled.tmj[*] - Zeph"_s,
                                       u"pause 3000"_s, u"close"_s },
                                     u"first.log"_s);
    while (!program.exists(u"first.log"_s) || program.noted(u"first.log"_s).size() < 2) {
        ASSERT_FALSE(first->waitForFinished(20));
    }
    const auto second = program.start({ u"window Untitled.tmj[*] - Zeph - secondary window"_s,
                                        u"pause 300"_s, u"type JoystickText x"_s, u"close"_s,
                                        u"box  Save Untitled.tmj now?"_s, u"press No"_s },
                                      u"second.log"_s);
    while (!program.exists(u"second.log"_s) || program.noted(u"second.log"_s).isEmpty()) {
        ASSERT_FALSE(second->waitForFinished(20));
    }
    EXPECT_TRUE(program.exists(u"Zeph.2"_s));
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_THAT(lines(program.noted(u"second.log"_s)),
                Contains("window Untitled.tmj[*] - Zeph - secondary window"));
    EXPECT_FALSE(program.exists(u"Zeph.2"_s));
    ASSERT_TRUE(first->waitForFinished());
    EXPECT_EQ(first->exitCode(), 0);
}

TEST(ProgramStart, ACrashedFurtherInstancesStoreIsClearedByTheNextFirstInstance)
{
    Program program;
    program.settle();
    const auto first =
        program.start({ u"window Untitled.tmj[*] - Zeph"_s, u"pause 60000"_s }, u"first.log"_s);
    while (!program.exists(u"first.log"_s) || program.noted(u"first.log"_s).isEmpty()) {
        ASSERT_FALSE(first->waitForFinished(20));
    }
    const auto second = program.start(
        { u"window Untitled.tmj[*] - Zeph - secondary window"_s, u"kill"_s }, u"second.log"_s);
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_TRUE(program.exists(u"Zeph.2"_s));
    first->kill();
    ASSERT_TRUE(first->waitForFinished());
    const QStringList notes = program.run({ u"window Untitled.tmj[*] - Zeph"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("window Untitled.tmj[*] - Zeph"));
    EXPECT_FALSE(program.exists(u"Zeph.2"_s));
}

TEST(ProgramStart, With997FurtherInstancesTheNextStartEndsWithAWord)
{
    Program program;
    program.settle();
    // Until the next one has ended.
    program.setEnvironment(u"ZEPH_PATIENCE_MS"_s, u"60000"_s);
    const auto first = program.start(
        { u"window Untitled.tmj[*] - Zeph"_s, u"pause 60000"_s, u"close"_s }, u"first.log"_s);
    while (!program.exists(u"first.log"_s) || program.noted(u"first.log"_s).isEmpty()) {
        ASSERT_FALSE(first->waitForFinished(20));
    }
    const QByteArray mark = program.read(u"Zeph.lock"_s);
    for (int number = 2; number <= 998; ++number) {
        program.write(u"Zeph.%1.lock"_s.arg(number), mark);
    }
    const auto next = program.start({ u"box Exiting now ..."_s, u"press OK"_s }, u"next.log"_s);
    ASSERT_TRUE(next->waitForFinished());
    EXPECT_THAT(lines(program.noted(u"next.log"_s)),
                Contains(HasSubstr("Sorry, you've got too many windows open. Far too many !!!")));
    first->kill();
    ASSERT_TRUE(first->waitForFinished());
}

TEST(ProgramStart, ClosingWhileMinimisedLeavesTheLastPosition)
{
    Program program;
    program.settle("MumTopAtStartup=300\r\nMumLeftAtStartup=450\r\nMumWidthAtStartup=9000\r\n"
                   "MumHeightAtStartup=6000\r\n");
    program.run({ u"window Untitled.tmj[*] - Zeph"_s, u"minimise"_s, u"pause 200"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"MumTopAtStartup"_s), u"300");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"MumLeftAtStartup"_s), u"450");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"MumWidthAtStartup"_s), u"9000");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"MumHeightAtStartup"_s), u"6000");
}

TEST(ProgramStart, AFileIsOpenedFromTheCommandLineWithItsPartner)
{
    Program program;
    program.settle();
    program.write(u"Files/a.tmj"_s, "USE MDEF b\r\n");
    program.write(u"Files/b.tmm"_s, "Gun = g\r\n");
    const QStringList notes =
        program.run({ u"text MacroText Gun"_s, u"text JoystickText USE"_s, u"close"_s },
                    { program.file(u"Files/a.tmj"_s) });
    EXPECT_THAT(lines(notes), Contains("MacroText=Gun = g\\n"));
}

TEST(ProgramStart, ABadNumberInTheStoreIsToldOnceAndTheDefaultHolds)
{
    Program program;
    program.settle("UndoMax=99999\r\n");
    const QStringList notes =
        program.run({ u"modal"_s, u"press OK"_s, u"text Panel_1 Ready"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("UndoMax")));
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"UndoMax"_s), u"20");
}

TEST(ProgramStart, ALetterThatTheFilesCannotHoldIsToldInWelcome)
{
    Program program;
    const QStringList notes = program.run(
        { u"maybe-ok WARNING"_s, u"window Welcome to Zeph"_s, u"type txtLastName \u0141ee"_s,
          u"text lblNameNote can't hold"_s, u"usable cmdNames 0"_s, u"retype txtLastName Lee"_s,
          u"usable cmdNames 1"_s, u"dismiss Welcome"_s, u"gone Welcome"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("can't hold the character \"\u0141\"")));
}

TEST(ProgramStart, AStoreOfTenMegabytesOfLineEndsStartsInUnderTwoSeconds)
{
    Program program;
    program.settle(QByteArray("\r\n").repeated(5'000'000) + "UndoMax=21\r\n");
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    const QStringList notes = program.run(
        { u"text Panel_1 Ready! Welcome to Zeph, buddy!"_s, u"time ready"_s, u"close"_s });
    const qint64 ready = notes.filter(u"ready at "_s).value(0).section(u' ', -1).toLongLong();
    EXPECT_GT(ready, begin);
    EXPECT_LT(ready - begin, 2000);
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"UndoMax"_s), u"21");
}
