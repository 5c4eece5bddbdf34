// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/core/base.h"

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

TEST(ProgramFind, EnterAfterAHitFindsTheNextAndLeavesTheText)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 Fire\r\nBTN S2 FIRE\r\n");
    const QStringList notes = program.run(
        { u"text JoystickText Fire"_s, u"trigger mnuEditFind"_s, u"retype ComboTextFind fire"_s,
          u"press Command1"_s, u"selection JoystickText Fire"_s, u"type JoystickText \\n"_s,
          u"selection JoystickText FIRE"_s, u"note LabelHitsF"_s, u"note JoystickText"_s,
          u"press CommandPreviousF"_s, u"selection JoystickText Fire"_s, u"close"_s },
        { path });
    EXPECT_THAT(lines(notes), Contains("LabelHitsF=Hit 2 of 2"));
    EXPECT_THAT(lines(notes), Contains("JoystickText=BTN S1 Fire\\nBTN S2 FIRE\\n"));
}

TEST(ProgramFind, ALineThatTheFileLacksIsToldInTheWindowItself)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a\r\nBTN S2 b\r\n");
    const QStringList notes = program.run(
        { u"text JoystickText BTN"_s, u"trigger mnuEditGoto"_s, u"retype LineToFind -2"_s,
          u"press Command7"_s, u"text LabelLines lines"_s, u"retype LineToFind 2"_s,
          u"press Command7"_s, u"text Panel_3 Line no: 2"_s, u"close"_s },
        { path });
    EXPECT_THAT(lines(notes), Contains("LabelLines=a.tmj has lines 1 to 3."));
    EXPECT_THAT(lines(notes), Not(Contains(HasSubstr("box "))));
}

TEST(ProgramFind, ARenameBeginsWithTheMacroAtTheCaretAndRefusesNamesInUse)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/m.tmm"_s, "Fire = SPC\r\nGun = Fire g\r\n");
    const QStringList notes = program.run(
        { u"text MacroText Fire"_s, u"trigger mnuViewMacroFile"_s, u"trigger mnuRenameMacro"_s,
          u"window Rename a macro in both files"_s, u"value Text1"_s, u"retype Text1 gun"_s,
          u"press cmdOK"_s, u"box I can't use that name buddy"_s, u"press OK"_s,
          u"gone I can't use"_s, u"retype Text1 Shoot"_s, u"press cmdOK"_s,
          u"box Replaced 'em all for you. Now buy me a drink"_s, u"press OK"_s, u"done"_s,
          u"note MacroText"_s, u"close"_s, u"box  Save m.tmm now?"_s, u"press No"_s },
        { path });
    EXPECT_THAT(lines(notes), Contains("Text1=Fire"));
    EXPECT_THAT(lines(notes), Contains("MacroText=Shoot = SPC\\nGun = Shoot g\\n"));
}

TEST(ProgramFind, ColouringBothFilesLeavesTabAndSelection)
{
    Program program;
    program.settle();
    const QString path =
        program.write(u"Files/a.tmj"_s, "USE MDEF m.tmm\r\nBTN S1 Fire\r\nBTN S2 a\r\n");
    program.write(u"Files/m.tmm"_s, "Fire = SPC\r\n");
    program.run({ u"text MacroText Fire"_s, u"trigger mnuEditSelectLine"_s,
                  u"selection JoystickText USE MDEF m.tmm"_s,
                  u"trigger mnuViewApplyColourBothFiles"_s, u"done"_s, u"text Panel_1 Done"_s,
                  u"selection JoystickText USE MDEF m.tmm"_s, u"trigger mnuAlignSlash"_s, u"done"_s,
                  u"selection JoystickText USE MDEF m.tmm"_s, u"window a.tmj[*] - Zeph"_s,
                  u"close"_s },
                { path });
}

TEST(ProgramFind, ARenameThatOnlyChangesTheCaseIsDoneAndTheListShowsItAtOnce)
{
    Program program;
    program.settle();
    const QString path =
        program.write(u"Files/a.tmj"_s, "USE MDEF m.tmm\r\nBTN S1 Fire\r\nBTN S2 fire\r\n");
    program.write(u"Files/m.tmm"_s, "Fire = SPC\r\nGun = g\r\n");
    const QStringList notes = program.run({ u"text MacroText Fire"_s,
                                            u"trigger mnuViewMacroFile"_s,
                                            u"items List1 Fire"_s,
                                            u"trigger mnuRenameMacro"_s,
                                            u"window Rename a macro in both files"_s,
                                            u"retype Text1 Fire"_s,
                                            u"press cmdOK"_s,
                                            u"box What?!"_s,
                                            u"press OK"_s,
                                            u"gone What?!"_s,
                                            u"retype Text1 FIRE"_s,
                                            u"press cmdOK"_s,
                                            u"box Replaced 'em all for you. Now buy me a drink"_s,
                                            u"items List1 FIRE"_s,
                                            u"press OK"_s,
                                            u"done"_s,
                                            u"note JoystickText"_s,
                                            u"note MacroText"_s,
                                            u"close"_s,
                                            u"box  Save m.tmm now?"_s,
                                            u"press No"_s,
                                            u"box  Save a.tmj now?"_s,
                                            u"press No"_s },
                                          { path });
    EXPECT_THAT(lines(notes), Contains("List1=FIRE,Gun"));
    EXPECT_THAT(lines(notes), Contains("MacroText=FIRE = SPC\\nGun = g\\n"));
    EXPECT_THAT(lines(notes),
                Contains("JoystickText=USE MDEF m.tmm\\nBTN S1 FIRE\\nBTN S2 FIRE\\n"));
}

TEST(ProgramFind, ARenameWithoutAMacroCannotBeConfirmed)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/m.tmm"_s, "Rem of no macro\r\nFire = SPC\r\n");
    const QStringList notes = program.run(
        { u"text MacroText Fire"_s, u"trigger mnuViewMacroFile"_s, u"trigger mnuRenameMacro"_s,
          u"window Rename a macro in both files"_s, u"value Text1"_s, u"retype Text1 Shoot"_s,
          u"usable cmdOK 0"_s, u"press cmdCancel"_s, u"done"_s, u"close"_s },
        { path });
    EXPECT_THAT(lines(notes), Contains("Text1="));
}
