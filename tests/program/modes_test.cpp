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

namespace {

} // namespace

TEST(ProgramModes, TheAxesChangeIsWaitedForAndItsAnswerStands)
{
    Program program;
    program.settle();
    program.run({ u"trigger mnuAxesModeArray_1"_s, u"text Panel_1  Ready"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Axes"_s, u"HOTAS.ini"_s), u"1");
}

TEST(ProgramModes, MenusAndTypingInTheMacroFileGoOnDuringAModeWait)
{
    Program program;
    program.settle();
    program.setEnvironment(u"ZEPH_STANDIN_DELAY_MS"_s, u"1500"_s);
    // Going to the macro file puts its name on the panel: " Ready" after that can only come from a
    // wait that was still going on.
    program.run({ u"text MacroText ="_s, u"trigger mnuViewTileVertically"_s,
                  u"trigger mnuAxesModeArray_0"_s, u"text Panel_1  Changing axis mode"_s,
                  u"type MacroText Rem typed\\n"_s, u"text MacroText Rem typed"_s,
                  u"text Panel_1 Sample flight.tmm"_s, u"trigger mnuHelpAbout_2"_s,
                  u"window About"_s, u"text Panel_1  Ready"_s, u"close"_s, u"modal"_s,
                  u"press No"_s },
                { program.file(sample) });
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Axes"_s, u"HOTAS.ini"_s), u"0");
}

TEST(ProgramModes, ASilentToolGivesControlBackWithAMessage)
{
    Program program;
    program.settle();
    program.silenceTools();
    const QStringList notes =
        program.run({ u"trigger mnuAxesModeArray_1"_s,
                      u"box Now this is taking rather a long time buddy, isn't it?!"_s,
                      u"press OK"_s, u"text Panel_1  Control returned to you"_s, u"close"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("with the TM applications and their "
                                   "communication with your Cougar")));
}
