// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What can and cannot be done while the compiler is waited for, and what the windows say meanwhile.

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// A program with the sample pair whose compiler takes its time.
struct ProgramWaits : testing::Test {
    static inline const QString opened = u"text MacroText ="_s;
    static inline const QString compile = u"trigger mnuAppsCompile"_s;
    static inline const QString download = u"trigger DownloadArray1_0"_s;
    static inline const QStringList accept = { u"box File successfully compiled!"_s,
                                               u"press OK"_s };

    Program program;

    void settle(int delayMs, int tickMs)
    {
        program.settle("RunKeyTest=0\r\n");
        program.setPatience(45000, tickMs);
        program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, QString::number(delayMs));
    }
    QStringList run(const QStringList &script)
    {
        return program.run(QStringList{ opened } + script, { program.file(sample) });
    }
};

} // namespace

TEST_F(ProgramWaits, ReplaceAndRenameLeaveATextOnItsWayAlone)
{
    settle(4000, 20);
    const QString refused = u"text Panel_1 Sample flight.tmj is on its way to the Cougar"_s;
    const QByteArray before = program.read(sample);
    run(QStringList{ u"trigger mnuEditReplace"_s,
                     u"window Find and replace"_s,
                     u"retype ComboTextReplaceFind BTN"_s,
                     u"retype ComboTextReplaceWith NTB"_s,
                     u"press Command3"_s,
                     u"selection JoystickText BTN"_s,
                     download,
                     u"text Panel_1 Waiting for compiler to download"_s,
                     u"press Command6"_s,
                     refused,
                     u"trigger mnuViewMacroFile"_s,
                     u"text Panel_1 Sample flight.tmm"_s,
                     u"press Command5"_s,
                     refused,
                     u"choose Combo1 1"_s,
                     u"keys List1 Home"_s,
                     u"trigger mnuRenameMacro"_s,
                     u"window Rename a macro in both files"_s,
                     u"retype Text1 Quite_new"_s,
                     u"press cmdOK"_s,
                     refused }
        + accept + QStringList{ u"note JoystickText"_s, u"close"_s });
    EXPECT_EQ(program.read(sample), before);
}

TEST_F(ProgramWaits, TheStatusWindowFollowsWhatGoesOnAndSaysWhenItEnded)
{
    settle(2500, 1000);
    const QString status = u"text LabelStatus "_s;
    run(QStringList{ compile, u"window Compile/Download status"_s,
                     status + u"Compiling Sample flight.tmj"_s }
        + accept
        + QStringList{ status + u"Compiling Sample flight.tmj: ended at "_s, u"done"_s, download,
                       status + u"Downloading Sample flight.tmj"_s }
        + accept + QStringList{ u"gone Compile/Download status"_s, u"close"_s });
}

TEST_F(ProgramWaits, ACompileMinimisesFindAndTheSlashPalette)
{
    settle(300, 20);
    run(QStringList{ u"trigger mnuEditFind"_s, u"window Find and replace"_s,
                     u"trigger mnuSlashWindow"_s, u"window Slash Modifiers"_s,
                     u"trigger mnuAppsKeyTester"_s, u"window Key Tester"_s, u"done"_s, compile,
                     u"minimised Find and replace"_s, u"minimised Slash Modifiers"_s,
                     u"minimised Key Tester"_s }
        + accept + QStringList{ u"close"_s });
}

TEST_F(ProgramWaits, TheKeysOfCompileAndDownloadSayInTheMacroTextWhyNothingHappens)
{
    settle(0, 20);
    run({ u"trigger mnuViewMacroFile"_s, u"keys MacroText F11"_s,
          u"text Panel_1 F11 is for the joystick file: select its tab first"_s,
          u"keys MacroText F12"_s, u"text Panel_1 F12 is for the joystick file"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Compiler"_s, u"FileName"_s, u"HOTAS.ini"_s), u"(absent)");
}

TEST_F(ProgramWaits, ALineBeyondTheLargestOldLineNumberIsSelected)
{
    program.settle();
    QByteArray text;
    for (int line = 1; line < 40000; ++line) {
        text += "Rem\r\n";
    }
    const QString path = program.write(u"Files/long.tmj"_s, text + "BTN S99 a\r\nRem\r\n");
    program.run({ u"text JoystickText BTN S99"_s, compile,
                  u"text Panel_1 error at line 40000: ERROR 1002"_s,
                  u"selection JoystickText BTN S99 a"_s, u"text Panel_3 Line no: 40000"_s,
                  u"close"_s },
                { path });
}

TEST_F(ProgramWaits, AQuoteInTheFilesNameIsToldAndNothingIsStarted)
{
    if (!canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    program.write(u"Files/a\"b.tmj"_s, "BTN S1 a\r\n");
    program.settle("RestoreJoyFile=Files/a\"b.tmj\r\n");
    const QString told = u"box That name has a quote in it"_s;
    program.run({ u"text JoystickText BTN"_s, compile, told, u"press OK"_s, u"gone That name"_s,
                  u"done"_s, download, told, u"press OK"_s, u"gone That name"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Compiler"_s, u"FileName"_s, u"HOTAS.ini"_s), u"(absent)");
}

TEST_F(ProgramWaits, AnEntryWhoseProgramIsMissingSaysSoAndComesBackWithIt)
{
    program.settle();
    const QStringList notes =
        program.run({ u"text Panel_1 Ready"_s, u"usable mnuAppsAnalyser 0"_s,
                      u"write Analyser.exe x"_s, u"usable mnuAppsAnalyser 1"_s,
                      u"remove Analyser.exe"_s, u"usable mnuAppsAnalyser 0"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("Analyser.exe is missing: it isn't in ")));
}
