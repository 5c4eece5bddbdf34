// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A file that another program changes while it is open.

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/core/base.h"

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

struct ProgramChanged : testing::Test {
    static inline const QString question = u"box a.tmj has changed on the disk"_s;
    static inline const QString answered = u"gone a.tmj has changed"_s;

    Program program;

    ProgramChanged() { program.settle(); }

    QStringList run(const QStringList &script)
    {
        const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
        return program.run(
            QStringList{ u"text JoystickText BTN"_s, u"type JoystickText x"_s } + script, { path });
    }
    QByteArray onDisk() const { return program.read(u"Files/a.tmj"_s); }
};

} // namespace

TEST_F(ProgramChanged, TheReturningFocusBringsTheQuestionOnce)
{
    run({ u"leave"_s, u"write Files/a.tmj other"_s, u"return"_s, question, u"press Not now"_s,
          answered, u"leave"_s, u"return"_s, u"pause 300"_s, u"trigger mnuEditSelectAll"_s,
          u"leave"_s, u"write Files/a.tmj third"_s, u"return"_s, question, u"press Load it anew"_s,
          answered, u"text JoystickText third"_s, u"close"_s });
    EXPECT_EQ(onDisk(), "third");
}

TEST_F(ProgramChanged, OursIsKeptAndTheNextSaveOverwritesTheOther)
{
    run({ u"leave"_s, u"write Files/a.tmj other"_s, u"return"_s, question, u"press Keep ours"_s,
          answered, u"text JoystickText xBTN S1 a"_s, u"trigger mnuFileSave"_s,
          u"text Panel_1 saved successfully."_s, u"close"_s });
    EXPECT_EQ(onDisk(), "xBTN S1 a");
}

TEST_F(ProgramChanged, OursThatIsKeptIsAskedAboutAtTheExit)
{
    run({ u"trigger mnuEditUndo"_s, u"done"_s, u"leave"_s, u"write Files/a.tmj other"_s,
          u"return"_s, question, u"press Keep ours"_s, answered, u"close"_s,
          u"box  Save a.tmj now?"_s, u"press No"_s });
    EXPECT_EQ(onDisk(), "other");
}

TEST_F(ProgramChanged, AnAutosaveLeavesItAloneAndKeepsTheRecoveryFile)
{
    program.settle("AutoSaveEnabled=1\r\nAutoSaveTime=1\r\n");
    run({ u"write Files/a.tmj other"_s, u"hasten Timer1 1500"_s,
          u"text Panel_1 because another program has changed it. Your text is safe in the "
          u"recovery file"_s,
          u"pause 4000"_s, u"kill"_s });
    EXPECT_EQ(onDisk(), "other");
    program.settle();
    program.run({ u"modal"_s, u"press Yes"_s, u"text JoystickText xBTN S1 a"_s, u"close"_s,
                  u"box  Save a.tmj now?"_s, u"press No"_s });
}

TEST_F(ProgramChanged, ItIsNeitherCompiledNorSentBeforeTheQuestionIsAnswered)
{
    run({ u"trigger mnuEditUndo"_s, u"done"_s, u"write Files/a.tmj other"_s,
          u"trigger mnuAppsCompile"_s, question, u"press Not now"_s, answered, u"done"_s,
          u"trigger DownloadArray1_0"_s, question, u"press Not now"_s, answered, u"done"_s,
          u"pause 300"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Compiler"_s, u"FileName"_s, u"HOTAS.ini"_s), u"(absent)");
    EXPECT_EQ(program.setting(u"StandIn"_s, u"LoadedFile"_s, u"HOTAS.ini"_s), u"(absent)");
    EXPECT_EQ(onDisk(), "other");
}
