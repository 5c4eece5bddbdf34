// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The Editor's keys, panels and looks, as a pilot meets them.

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// A pair of files, the joystick file in front.
struct ProgramEditor : testing::Test {
    Program program;

    QStringList run(const QStringList &script)
    {
        const QString path =
            program.write(u"Files/a.tmj"_s, "USE MDEF m.tmm\r\nBTN S1 Fire\r\nBTN S2 Gun\r\n");
        program.write(u"Files/m.tmm"_s, "Fire = SPC\r\nGun = g\r\n");
        return program.run(QStringList{ u"text MacroText Fire"_s } + script, { path });
    }
};

} // namespace

TEST_F(ProgramEditor, CtrlGAndCtrlIDoNothingInTheMacroText)
{
    program.settle();
    run({ u"trigger mnuViewMacroFile"_s, u"keys MacroText Ctrl+A Ctrl+G Ctrl+I"_s, u"pause 200"_s,
          u"gone Find and replace"_s, u"font MacroText 0"_s, u"close"_s });
    const QStringList notes = run({ u"keys JoystickText Ctrl+A Ctrl+I"_s, u"font JoystickText 0"_s,
                                    u"keys JoystickText Ctrl+G"_s, u"window Find and replace"_s,
                                    u"close"_s, u"box  Save a.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes.filter(u"font at"_s)), Contains(HasSubstr(" italic")));
}

TEST_F(ProgramEditor, AMacroOfTheFileBeforeIsForgottenByNew)
{
    program.settle();
    run({ u"items List1 Gun"_s, u"keys List1 Home"_s, u"trigger mnuFindInJoyFile"_s,
          u"selection JoystickText Fire"_s, u"keys JoystickText Ctrl+Home"_s,
          u"usable mnuEditCopy 0"_s, u"trigger mnuFileNewMacro"_s,
          u"text Panel_1 New macro file created"_s, u"trigger mnuViewJoystickFile"_s,
          u"trigger mnuFindInJoyFile"_s, u"done"_s, u"usable mnuEditCopy 0"_s, u"close"_s });
}

TEST_F(ProgramEditor, ThePanelSaysHowAnOpeningEnded)
{
    program.settle();
    program.write(u"Files/zero.tmj"_s, QByteArray("BTN\0S1", 6));
    run({ u"trigger mnuFileJoystickLoad"_s, u"file Files/zero.tmj"_s,
          u"box That's no text file buddy"_s, u"press OK"_s, u"done"_s,
          u"text Panel_1 Joystick file not opened"_s, u"trigger mnuFileJoystickLoad"_s,
          u"window Select the joystick file"_s, u"press Cancel"_s, u"done"_s,
          u"text Panel_1 Joystick file not opened"_s, u"trigger mnuFileJoystickLoad"_s,
          u"file "_s + program.file(sample), u"done"_s, u"text Panel_1 Finished"_s, u"close"_s });
}

TEST_F(ProgramEditor, AnEqualsSignInAFilesNameDoesNotFreezeThePanel)
{
    program.settle();
    const QString path = program.write(u"Files/a=b.tmj"_s, "BTN S1 a\r\n");
    program.run({ u"text JoystickText BTN"_s, u"trigger mnuViewMacroFile"_s,
                  u"text Panel_1 Untitled.tmm"_s, u"trigger mnuViewJoystickFile"_s,
                  u"text Panel_1 a=b.tmj"_s, u"trigger mnuViewMacroFile"_s,
                  u"text Panel_1 Untitled.tmm"_s, u"close"_s },
                { path });
}

TEST_F(ProgramEditor, AnAmpersandInAStylesNameIsShownInTheMenu)
{
    program.settle("[Colours]\r\nStyleName1=Black & white\r\n");
    EXPECT_THAT(lines(run({ u"usable mnuStyleArray_0 1"_s, u"close"_s })),
                Contains(HasSubstr("mnuStyleArray_0 is usable: Black && white|")));
}

TEST_F(ProgramEditor, AStartThatRestoresAPairGreets)
{
    program.settle("RestoreStatus=1\r\nRestoreJoyFile=Files/a.tmj\r\n"
                   "RestoreMacroFile=Files/m.tmm\r\n");
    program.write(u"Files/a.tmj"_s, "BTN S1 Fire\r\n");
    program.write(u"Files/m.tmm"_s, "Fire = SPC\r\n");
    program.run({ u"text JoystickText Fire"_s, u"text MacroText Fire"_s,
                  u"text Panel_1 Ready! Welcome to Zeph, buddy!"_s, u"close"_s });
}

TEST_F(ProgramEditor, AStylesFontSizeAndBoldComeBackAtTheSecondOpening)
{
    const QByteArray style = "StyleFontName1=DejaVu Serif\r\nStyleFontSize1=19\r\n"
                             "StyleFontBold1=1\r\n";
    program.settle("[Colours]\r\nTextFontName=DejaVu Sans Mono\r\nTextFontSize=13\r\n" + style);
    run({ u"keys JoystickText Ctrl+Home Shift+End"_s, u"trigger mnuStyleArray_0"_s, u"done"_s,
          u"trigger mnuFileSave"_s, u"text Panel_1 saved successfully."_s, u"close"_s });
    program.settle("[Colours]\r\nTextFontName=DejaVu Sans\r\nTextFontSize=15\r\n" + style);
    const QStringList notes =
        run({ u"font JoystickText 0"_s, u"font JoystickText 16"_s, u"keys JoystickText Ctrl+Home"_s,
              u"type JoystickText x"_s, u"trigger mnuEditUndo"_s, u"usable mnuEditRedo 1"_s,
              u"font JoystickText 1"_s, u"font JoystickText 17"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("JoystickText font at 0: DejaVu Serif 19 bold"));
    EXPECT_THAT(lines(notes), Contains("JoystickText font at 1: DejaVu Serif 19 bold"));
    EXPECT_THAT(lines(notes), Contains("JoystickText font at 16: DejaVu Sans 15"));
    EXPECT_THAT(lines(notes), Contains("JoystickText font at 17: DejaVu Sans 15"));
}
