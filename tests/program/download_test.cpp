// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const QString opened = u"text MacroText ="_s;
const QString download = u"trigger DownloadArray1_0"_s;
const QString hotas = u"HOTAS.ini"_s;

/// A program with the sample pair, whose downloads do not end in the Key Tester.
struct ProgramDownload : testing::Test {
    Program program;

    ProgramDownload() { program.settle("RunKeyTest=0\r\n"); }

    QStringList run(const QStringList &script)
    {
        return program.run(QStringList{ opened } + script, { program.file(sample) });
    }
    /// Ticks of one second, as on a pilot's machine: the status window comes at two of them.
    void tickOnceASecond() const { program.setPatience(45000, 1000); }
    /// Makes the compiler slow.
    void delay(int milliseconds)
    {
        program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, QString::number(milliseconds));
    }
    QString remembered(const QString &section, const QString &key) const
    {
        return program.setting(section, key, hotas);
    }
    QByteArray writeRecorder(const QString &name, const QString &record = u"record"_s) const
    {
        return program.writeRecorder(name, record).toUtf8();
    }
    void prependToSample(const QByteArray &lines) const
    {
        program.write(sample, lines + program.read(sample));
    }
};

const QStringList accept = { u"box File successfully compiled!"_s, u"press OK"_s };

} // namespace

TEST_F(ProgramDownload, AnAbsentProfileStopsOnlyTheProfileStep)
{
    program.settle("RunKeyTest=0\r\n[Apps]\r\nUseResetProfile=1\r\nResetProfile=Gone\r\n");
    run(QStringList{ download, u"box Cannot find profile in HOTAS Profiles folder"_s,
                     u"press OK"_s }
        + accept + QStringList{ u"text Panel_1 Compiled successfully"_s, u"close"_s });
    EXPECT_EQ(remembered(u"StandIn"_s, u"LoadedProfile"_s), u"(absent)");
}

TEST_F(ProgramDownload, TheSamplePairReachesTheCougarInProgrammedMode)
{
    const QStringList notes =
        run(QStringList{ u"type JoystickText Rem edited\\n"_s, download } + accept
            + QStringList{ u"text Panel_1 Compiled successfully. (Memory used:"_s,
                           u"type JoystickText Rem after\\n"_s, u"text JoystickText Rem after"_s,
                           u"close"_s, u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr(program.file(sample).toStdString()
                                   + " compiled successfully.\\n\\nCompile time: ")));
    EXPECT_THAT(lines(notes), Contains(HasSubstr("s.\\nDownload time: ")));
    EXPECT_TRUE(program.read(sample).startsWith("Rem edited\r\n"));
    EXPECT_EQ(remembered(u"StandIn"_s, u"LoadedFile"_s), program.file(sample));
    EXPECT_EQ(remembered(u"TMMODE"_s, u"Buttons"_s), u"1");
}

TEST_F(ProgramDownload, WithTheEnableTickOffTheModeStaysAndTheTicksAreKept)
{
    program.settle("RunKeyTest=1\r\n");
    run(QStringList{ u"trigger DownloadArray1_1"_s, u"trigger DownloadArray1_3"_s, u"pause 50"_s,
                     u"trigger DownloadArray1_3"_s, u"trigger DownloadArray1_4"_s, u"pause 50"_s,
                     download }
        + accept + QStringList{ u"close"_s });
    EXPECT_EQ(remembered(u"StandIn"_s, u"LoadedFile"_s), program.file(sample));
    EXPECT_EQ(remembered(u"TMMODE"_s, u"Buttons"_s), u"(absent)");
    EXPECT_EQ(remembered(u"Defaults"_s, u"DownloadMode"_s), u"0");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RunKeyTest"_s), u"0");
    EXPECT_EQ(program.setting(u"Launcher"_s, u"NumlockDownloadMode"_s), u"0");
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RunAppsWithDownload"_s), u"1");
}

TEST_F(ProgramDownload, AnErrorInTheJoystickFileIsExplainedAndItsLineSelected)
{
    prependToSample("BTN TG9 a\r\n");
    run({ download, u"window Help on compiler errors"_s,
          u"text Panel_1 Compiler error at line 1: ERROR 1002"_s,
          u"selection RichTextCodes ERROR 1002"_s, u"selection JoystickText BTN TG9"_s,
          u"type JoystickText Rem mended\\n"_s, u"text JoystickText Rem mended"_s, u"close"_s,
          u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_EQ(remembered(u"StandIn"_s, u"LoadedFile"_s), u"(absent)");
}

TEST_F(ProgramDownload, AnErrorInTheMacroFileSelectsItsLineThere)
{
    program.settle("RunKeyTest=0\r\nTileFiles=1\r\n");
    program.write(sampleMacros, "Broken = DLY(60\r\n" + program.read(sampleMacros));
    const QStringList notes =
        run({ download, u"window Help on compiler errors"_s,
              u"text Panel_1 Compiler error at line 1: ERROR 1013"_s, u"note LabelFile"_s,
              u"selection MacroText Broken = DLY(60"_s, u"type JoystickText Rem free\\n"_s,
              u"text JoystickText Rem free"_s, u"close"_s, u"box  Save Sample flight.tmj now?"_s,
              u"press No"_s });
    EXPECT_THAT(lines(notes), Contains("LabelFile=File: Sample flight.tmm"));
}

TEST_F(ProgramDownload, AnErrorWithoutALineLeavesTheTextEditable)
{
    program.setEnvironment(u"ZEPH_STANDIN_FAIL"_s, u"1002:0"_s);
    run({ download, u"text Panel_1 Compiler error: ERROR 1002"_s,
          u"window Help on compiler errors"_s, u"type JoystickText Rem free\\n"_s,
          u"text JoystickText Rem free"_s, u"close"_s, u"box  Save Sample flight.tmj now?"_s,
          u"press No"_s });
}

TEST_F(ProgramDownload, ASilentCompilerGivesControlBackWithTwoMessagesAndAnEditableText)
{
    program.silenceTools();
    const QStringList notes = run(
        { download, u"box Now this is taking rather a long time buddy, isn't it?!"_s, u"press OK"_s,
          u"box Unknown result"_s, u"press OK"_s, u"text Panel_1 Control returned to you"_s,
          u"type JoystickText Rem free\\n"_s, u"text JoystickText Rem free"_s, u"close"_s,
          u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("with the download and the Compiler's communication")));
    EXPECT_THAT(lines(notes), Contains(HasSubstr("exit the download function")));
}

TEST_F(ProgramDownload, WhileItWaitsTheTextIsReadOnlyAndAllElseGoesOn)
{
    program.settle("RunKeyTest=0\r\nTileFiles=1\r\n");
    delay(1500);
    const QStringList notes =
        run(QStringList{
                download,
                u"text Panel_1 Waiting for compiler to download"_s,
                u"type JoystickText Rem refused\\n"_s,
                u"trigger mnuEditSelectAll"_s,
                u"pause 30"_s,
                u"trigger mnuEditCut"_s,
                u"pause 30"_s,
                u"type MacroText Rem taken\\n"_s,
                u"text MacroText Rem taken"_s,
                u"trigger mnuHelpTip"_s,
                u"window Tip of the Day"_s,
                u"note JoystickText"_s,
                // An entry can be chosen only as long as no verdict stands in its way.
                u"trigger mnuViewLineNumbers"_s,
            }
            + accept
            // The text is free once the verdict's own loop has ended.
            + QStringList{ u"pause 500"_s, u"type JoystickText Rem free\\n"_s,
                           u"text JoystickText Rem free"_s, u"close"_s,
                           u"box  Save Sample flight.tmm now?"_s, u"press No"_s,
                           u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes), Not(Contains(HasSubstr("Rem refused"))));
    QString during;
    for (const QString &note : notes) {
        if (note.startsWith(u"JoystickText=") && during.isEmpty()) {
            during = note;
        }
    }
    EXPECT_TRUE(during.contains(u"BTN TG1")) << during.toStdString();
}

TEST_F(ProgramDownload, ADownloadOverTwoSecondsShowsTheStatusWindowAndClosesItAtTheEnd)
{
    tickOnceASecond();
    delay(2500);
    run({ download, u"window Compile/Download status"_s, u"box File successfully compiled!"_s,
          u"gone Compile/Download status"_s, u"press OK"_s, u"close"_s });
}

TEST_F(ProgramDownload, ACompileDuringADownloadsWaitTellsBothOutcomes)
{
    delay(600);
    const QStringList notes =
        run(QStringList{ download, u"text Panel_1 Waiting for compiler to download"_s,
                         u"trigger mnuAppsCompile"_s }
            + accept + accept
            + QStringList{ u"type JoystickText Rem free\\n"_s, u"text JoystickText Rem free"_s,
                           u"close"_s, u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    int told = 0;
    for (const QString &note : notes) {
        told += note.startsWith(u"box File successfully compiled!") ? 1 : 0;
    }
    EXPECT_EQ(told, 2);
}

TEST_F(ProgramDownload, TwentyFivePressesInOneWaitMakeOneDownloadAndOneStartOfItsApplication)
{
    delay(1500);
    prependToSample("USE ZEPH RUN_APP " + writeRecorder(u"Tools/first"_s) + "\r\n");
    QStringList presses(25, download);
    run(QStringList{ download, u"text Panel_1 Waiting for compiler to download"_s } + presses
        + QStringList{ u"text Panel_1 I'm still busy with the download: once is enough"_s } + accept
        + QStringList{ u"pause 500"_s, u"type JoystickText Rem free\\n"_s,
                       u"text JoystickText Rem free"_s, u"close"_s,
                       u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_EQ(program.recorded(u"record"_s, 1).count('\n'), 1);
}

TEST_F(ProgramDownload, TheFirstOneByAStandInTellsThatNothingReachedAStickUntilTickedAway)
{
    program.write(u"Zeph.ini"_s,
                  program.read(u"Zeph.ini"_s).replace("TellStandIn=0", "TellStandIn=1"));
    const QStringList told = { u"box Nothing reached your stick"_s, u"press OK"_s };
    run(QStringList{ u"text Panel_6 Stand-in tools"_s, download } + accept + told
        + QStringList{ u"done"_s, download } + accept + QStringList{ u"close"_s });
    run(QStringList{ download } + accept
        + QStringList{ u"box Nothing reached your stick"_s, u"flip Tick"_s, u"press OK"_s,
                       u"done"_s, u"trigger mnuHelpAbout_2"_s,
                       u"text lblStandIns nothing reaches a stick"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"TellStandIn"_s), u"0");
    run(QStringList{ download } + accept
        + QStringList{ u"done"_s, u"trigger MnuDiagArray_0"_s,
                       u"text Panel_1 That's the stand-in"_s, u"close"_s });
}

TEST_F(ProgramDownload, AThirdCommandDuringTheWaitIsDropped)
{
    delay(600);
    run(QStringList{ download, u"text Panel_1 Waiting for compiler to download"_s,
                     u"trigger mnuAppsCompile"_s,
                     u"text Panel_1 OK: the compile comes right after the download"_s,
                     u"trigger mnuAxesModeArray_1"_s, u"text Panel_1 ask me again"_s }
        + accept + accept + QStringList{ u"close"_s });
    EXPECT_EQ(remembered(u"TMMODE"_s, u"Axes"_s), u"(absent)");
}

TEST_F(ProgramDownload, TheFilesOfTheVerdictAreThoseThatWereSentWhateverIsOpenByThen)
{
    program.write(sampleMacros, "Broken = DLY(60\r\n" + program.read(sampleMacros));
    delay(1000);
    const QStringList notes =
        run({ download, u"text Panel_1 Waiting for compiler to download"_s,
              u"trigger mnuFileNewMacro"_s, u"text Panel_1 New macro file created"_s,
              u"window Help on compiler errors"_s,
              u"text Panel_1 (in Sample flight.tmm, which isn't open any more)"_s,
              u"note LabelFile"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("LabelFile=File: Sample flight.tmm"));
}

TEST_F(ProgramDownload, ATextOnItsWayIsLockedForNewOpenAndAlignmentFromEitherTab)
{
    delay(1500);
    const QString refused = u"text Panel_1 Sample flight.tmj is on its way to the Cougar"_s;
    run(QStringList{ download, u"text Panel_1 Waiting for compiler to download"_s,
                     u"trigger mnuFileNewJoystick"_s, refused, u"tab TabStrip1 1"_s,
                     u"text Panel_1 Sample flight.tmm"_s, u"trigger mnuAlignSlash"_s, refused,
                     u"trigger mnuHelpTip"_s, u"window Tip of the Day"_s, u"press cmdOK"_s,
                     u"trigger mnuFileOpen"_s, refused }
        + accept + QStringList{ u"text JoystickText BTN TG1"_s, u"close"_s });
}

TEST_F(ProgramDownload, AHotasIniInUtf16IsToldAndLeftAlone)
{
    const QByteArray utf16("\xFF\xFE[\0D\0]\0\r\0\n\0", 12);
    program.write(hotas, utf16);
    const QStringList notes = run(
        { download, u"box Unable to run the Thrustmaster software"_s, u"press OK"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("UTF-16")));
    EXPECT_EQ(program.read(hotas), utf16);
}

TEST_F(ProgramDownload, ClosingTheProgramDuringTheWaitEndsIt)
{
    program.silenceTools();
    run({ download, u"text Panel_1 Waiting for compiler to download"_s, u"close"_s });
}

TEST_F(ProgramDownload, RunAppLinesStartTheirApplicationsInTheFilesOrder)
{
    // Each writes to a file of its own: on Windows one of two that write at a time fails.
    const QByteArray first = writeRecorder(u"Tools/first app"_s, u"first"_s);
    const QByteArray second = writeRecorder(u"Tools/second"_s, u"second"_s);
    prependToSample("use  zeph\trun_app " + first
                    + " -a \"b c\" WINDOW_STYLE = 1 Rem trainer\r\nUSE ZEPH RUN_APP " + second
                    + "\r\n");
    run(QStringList{ download } + accept + QStringList{ u"pause 500"_s, u"close"_s });
    const QByteArray root = program.root().toUtf8();
    EXPECT_EQ(program.recorded(u"first"_s, 1).toStdString(),
              (first + ";-a;b c;" + root + ";\n").toStdString());
    EXPECT_EQ(program.recorded(u"second"_s, 1).toStdString(),
              (second + ';' + root + ";\n").toStdString());
    EXPECT_TRUE(program.exists(u"Temp/Original.txt"_s));
}

TEST_F(ProgramDownload, WithTheIgnoreTickNoApplicationRuns)
{
    program.settle("RunKeyTest=0\r\nRunAppsWithDownload=1\r\n");
    prependToSample("USE ZEPH RUN_APP " + writeRecorder(u"Tools/first"_s) + "\r\n");
    run(QStringList{ download } + accept + QStringList{ u"pause 300"_s, u"close"_s });
    EXPECT_FALSE(program.exists(u"record"_s));
}

TEST_F(ProgramDownload, AnApplicationThatIsNotThereIsToldAndTheTextIsEditable)
{
    prependToSample("USE ZEPH RUN_APP /no/such/app\r\n");
    const QStringList notes =
        run(QStringList{ download } + accept
            + QStringList{ u"box Zeph"_s, u"press OK"_s, u"type JoystickText Rem free\\n"_s,
                           u"text JoystickText Rem free"_s, u"close"_s,
                           u"box  Save Sample flight.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("/no/such/app: No such file or directory")));
}

TEST_F(ProgramDownload, AMissingNumLockHelperIsToldBeforeTheSuccess)
{
    run(QStringList{ u"trigger DownloadArray1_3"_s, download, u"box Where is it?"_s, u"press OK"_s }
        + accept + QStringList{ u"close"_s });
    EXPECT_EQ(program.setting(u"Launcher"_s, u"NumlockDownloadMode"_s), u"1");
}

TEST_F(ProgramDownload, AnEmptyTextHasNothingToTransfer)
{
    program.run({ download, u"box Nothing to transfer ..."_s, u"press OK"_s, u"close"_s });
}

TEST_F(ProgramDownload, AnUnsavedFileMayBeSentAsItStandsOnTheDisk)
{
    const QStringList notes =
        program.run({ u"type JoystickText BTN S1 a"_s, download, u"window Save file as ..."_s,
                      u"press Cancel"_s, u"box Hang on a minute ..."_s, u"press Yes"_s,
                      u"text Panel_1 Compiler error: ERROR "_s, u"close"_s,
                      u"box  Save Untitled.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("you won't be sending the currently edited file")));
}
