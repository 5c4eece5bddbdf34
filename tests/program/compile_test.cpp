// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// The sample pair's line (1-based) at which a text first stands, and the file with it replaced.
int plant(const Program &program, const QString &name, const QByteArray &good,
          const QByteArray &bad)
{
    QByteArray bytes = program.read(name);
    const qsizetype at = bytes.indexOf(good);
    EXPECT_GE(at, 0) << good.constData();
    const int line = int(bytes.left(at).count('\n')) + 1;
    bytes.replace(at, good.size(), bad);
    program.write(name, bytes);
    return line;
}

} // namespace

TEST(ProgramCompile, TheSamplePairCompilesToSuccess)
{
    Program program;
    program.settle();
    const QStringList notes = program.run(
        { u"text MacroText ="_s, u"type JoystickText Rem edited\\n"_s, u"trigger mnuAppsCompile"_s,
          u"box File successfully compiled!"_s, u"press OK"_s,
          u"text Panel_1 Compiled successfully. (Memory used:"_s, u"close"_s },
        { program.file(sample) });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr(program.file(sample).toStdString()
                                   + " compiled successfully.\\n\\nCompile time: ")));
    EXPECT_TRUE(program.read(sample).startsWith("Rem edited\r\n"));
    EXPECT_TRUE(program.exists(u"Rtf/Sample flight.tmj"_s));
}

TEST(ProgramCompile, AnUntitledFileEntersTheSavesOwnSaveAsAndCancellingItEndsTheCompile)
{
    Program program;
    program.settle();
    const QStringList notes =
        program.run({ u"type JoystickText BTN S1 a"_s, u"trigger mnuAppsCompile"_s,
                      u"window Save file as ..."_s, u"press Cancel"_s,
                      u"box Hang on a minute ..."_s, u"press Yes"_s, u"gone Hang on a minute ..."_s,
                      u"close"_s, u"box  Save Untitled.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("The joystick file isn't saved, which it needs to be for me to "
                                   "be able to compile it")));
    EXPECT_FALSE(program.exists(u"Files/Untitled.tmj"_s));
}

TEST(ProgramCompile, AnUntitledFileThatGetsANameIsCompiledUnderIt)
{
    Program program;
    program.settle();
    const QString path = program.file(u"Files/new.tmj"_s);
    const QStringList notes = program.run(
        { u"type JoystickText BTN S1 a"_s, u"trigger mnuAppsCompile"_s, u"file "_s + path,
          u"box File successfully compiled!"_s, u"press OK"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr(path.toStdString() + " compiled successfully.")));
}

TEST(ProgramCompile, AnErrorInTheJoystickFileIsExplainedAndItsLineSelected)
{
    Program program;
    program.settle();
    const int line = plant(program, sample, "BTN TG1", "BTN TG9");
    const QStringList notes = program.run(
        { u"text MacroText ="_s, u"trigger mnuAppsCompile"_s, u"window Help on compiler errors"_s,
          u"text Panel_1 Compiler reported an error at line "_s + QString::number(line)
              + u": ERROR 1002"_s,
          u"text Panel_3 Line no: "_s + QString::number(line), u"note LabelFile"_s,
          u"note LabelLine"_s, u"selection RichTextCodes ERROR 1002"_s,
          u"selection JoystickText BTN TG9"_s, u"close"_s },
        { program.file(sample) });
    EXPECT_THAT(lines(notes), Contains("LabelFile=File: Sample flight.tmj"));
    EXPECT_THAT(lines(notes), Contains("LabelLine=Line: " + std::to_string(line)));
}

TEST(ProgramCompile, AnErrorInTheMacroFileSelectsItsLineThere)
{
    Program program;
    program.settle();
    program.write(sampleMacros, "Broken = DLY(60\r\n" + program.read(sampleMacros));
    const QStringList notes =
        program.run({ u"text MacroText Broken"_s, u"trigger mnuAppsCompile"_s,
                      u"text Panel_1 Compiler reported an error at line 1: ERROR 1013"_s,
                      u"window Help on compiler errors"_s, u"note LabelFile"_s,
                      u"selection RichTextCodes ERROR 1013"_s,
                      u"selection MacroText Broken = DLY(60"_s, u"close"_s },
                    { program.file(sample) });
    EXPECT_THAT(lines(notes), Contains("LabelFile=File: Sample flight.tmm"));
}

TEST(ProgramCompile, WithStatusBarErrorsTheLineIsShownWithoutAWindow)
{
    Program program;
    program.settle("[FileLocations]\r\n");
    program.write(
        u"Zeph.ini"_s,
        program.read(u"Zeph.ini"_s).replace("ShowTips=0", "ShowTips=0\r\nHOTASStatusBarErrors=1"));
    plant(program, sample, "BTN TG1", "BTN TG9");
    program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s, u"text Panel_1 ERROR 1002"_s,
                  u"gone Help on compiler errors"_s, u"selection JoystickText BTN TG9"_s,
                  u"close"_s },
                { program.file(sample) });
}

TEST(ProgramCompile, AVerdictAfterTheSecondTickShowsTheStatusWindowWhichStays)
{
    Program program;
    program.settle();
    // A tick counts as much as its interval: here 1000 ms, as on a pilot's machine, cut to 20 would
    // never reach the 2000 at which the window comes.
    program.setPatience(45000, 1000);
    program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, u"2500"_s);
    program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s,
                  u"window Compile/Download status"_s, u"box File successfully compiled!"_s,
                  u"press OK"_s, u"window Compile/Download status"_s,
                  u"text LabelStatus Compiling Sample flight.tmj: ended at "_s, u"close"_s },
                { program.file(sample) });
}

TEST(ProgramCompile, AVerdictBeforeTheSecondTickCountsShowsNoWindow)
{
    Program program;
    program.settle();
    program.setPatience(45000, 1000);
    program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, u"1500"_s);
    program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s,
                  u"box File successfully compiled!"_s, u"gone Compile/Download status"_s,
                  u"press OK"_s, u"close"_s },
                { program.file(sample) });
}

TEST(ProgramCompile, ASilentCompilerGivesControlBackWithTwoMessages)
{
    Program program;
    program.settle();
    program.silenceTools();
    const QStringList notes =
        program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s,
                      u"box Now this is taking rather a long time buddy, isn't it?!"_s,
                      u"press OK"_s, u"box Unknown result"_s, u"press OK"_s,
                      u"text Panel_1 Control returned to you"_s, u"type JoystickText x"_s,
                      u"close"_s, u"box  Save Sample flight.tmj now?"_s, u"press No"_s },
                    { program.file(sample) });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("I'm going to pass control back to you now")));
}

TEST(ProgramCompile, TypingGoesOnWhileTheCompilerIsWaitedFor)
{
    Program program;
    program.settle();
    program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, u"600"_s);
    program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s,
                  u"type JoystickText Rem typed\\n"_s, u"text JoystickText Rem typed"_s,
                  u"box File successfully compiled!"_s, u"press OK"_s, u"close"_s,
                  u"box  Save Sample flight.tmj now?"_s, u"press No"_s },
                { program.file(sample) });
}

TEST(ProgramCompile, ClosingTheProgramDuringAWaitEndsIt)
{
    Program program;
    program.settle();
    program.silenceTools();
    program.run({ u"text MacroText ="_s, u"trigger mnuAppsCompile"_s, u"pause 100"_s, u"close"_s },
                { program.file(sample) });
}

TEST(ProgramCompile, AStatementOfTheComposerCompilesAndIsFoundAgain)
{
    Program program;
    program.settle();
    // The sample pair without its statement for T1.
    QByteArray pair = program.read(sample);
    const QByteArray own = "BTN T1 /P Air_Brake_Open\r\n       /R Air_Brake_Stop\r\n";
    ASSERT_TRUE(pair.contains(own));
    pair.replace(own, "");
    program.write(sample, pair);
    const QByteArray statement = "BTN T1 /U Fire_Gun \r\n/M Release \r\n";
    const int line = int(pair.count('\n')) + 1;

    const QString place = u"text Panel_3 Line no: "_s;
    const QStringList notes = program.run(
        { u"text MacroText ="_s, u"keys JoystickText Ctrl+End"_s, u"trigger mnuAppsComposer"_s,
          u"window Composer"_s, u"tab SSTabHardware 1"_s, u"press BTN_4"_s,
          u"text JoystickText BTN T1 "_s, u"press SlashButton_0"_s,
          u"text JoystickText BTN T1 /U "_s, u"keys List1_0 Home Return"_s,
          u"press SlashButton_1"_s, u"pause 100"_s, u"keys List1_0 Down Return"_s,
          u"trigger mnuAppsCompile"_s, u"box File successfully compiled!"_s, u"press OK"_s,
          u"done"_s,
          // From the top of the file a second click goes to the statement and writes nothing.
          u"keys JoystickText Ctrl+Home Down Down"_s, place + u'3', u"press BTN_4"_s,
          place + QString::number(line), u"type JoystickText ?"_s,
          u"text JoystickText BTN T1 ?/U Fire_Gun"_s, u"close"_s,
          u"box  Save Sample flight.tmj now?"_s, u"press No"_s },
        { program.file(sample) });
    EXPECT_THAT(lines(notes), Contains(HasSubstr(" compiled successfully.")));
    const QByteArray saved = program.read(sample);
    EXPECT_EQ(saved.count("BTN T1 "), 1);
    EXPECT_TRUE(saved.endsWith(statement)) << saved.right(200).constData();
}
