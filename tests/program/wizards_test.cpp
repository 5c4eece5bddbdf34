// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The two wizards from outside: every page forth and back, left by Cancel from each, and a pair of
// files that a new pilot makes with them.

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::HasSubstr;

namespace {

struct Wizard {
    QString entry;
    QString title;
    int pages;
};

const Wizard macroWizard{ u"mnuMacroWizard"_s, u"The Macro file wizard"_s, 14 };
const Wizard joystickWizard{ u"mnuJoystickWizard"_s, u"The Joystick file wizard"_s, 10 };

QString isOnPage(const Wizard &wizard, int page)
{
    return u"text LabelPage Page %1 of %2"_s.arg(page).arg(wizard.pages);
}

QStringList open(const Wizard &wizard)
{
    return { u"trigger "_s + wizard.entry, u"window "_s + wizard.title, isOnPage(wizard, 1) };
}

/// From one page to another, counted from 1.
QStringList turn(const Wizard &wizard, int from, int to)
{
    QStringList steps;
    for (int page = from + 1; page <= to; ++page) {
        steps << u"press CommandAll_1"_s << isOnPage(wizard, page);
    }
    return steps;
}

QStringList thereAndBackAtEachPage(const Wizard &wizard)
{
    QStringList steps = open(wizard);
    for (int page = 1; page < wizard.pages; ++page) {
        steps << turn(wizard, page, page + 1) << u"press CommandAll_0"_s << isOnPage(wizard, page)
              << turn(wizard, page, page + 1);
    }
    return steps << u"press CommandAll_1"_s << u"gone "_s + wizard.title;
}

QStringList cancelAtEachPage(const Wizard &wizard)
{
    QStringList steps;
    for (int page = 1; page <= wizard.pages; ++page) {
        steps << open(wizard) << turn(wizard, 1, page) << u"press CommandAll_2"_s
              << u"gone "_s + wizard.title;
    }
    return steps;
}

QStringList makeMacroFile()
{
    const Wizard &wizard = macroWizard;
    return open(wizard) + turn(wizard, 1, 2)
        + QStringList{ u"press BTNinFrame_0"_s, u"text Panel_1 New macro file created"_s,
                       u"press BTNinFrame_1"_s, u"file Files/Wiz.tmm"_s, u"text Panel_1 saved"_s }
    + turn(wizard, 2, 3)
        + QStringList{ u"press BTNinFrame_2"_s, u"press cmdOK"_s, u"text MacroText Rem ####"_s }
    + turn(wizard, 3, 6)
        + QStringList{ u"press BTNinFrame_3"_s, u"retype Combo1Edit Weapons"_s, u"press cmdOK"_s,
                       u"text MacroText Weapons"_s }
    + turn(wizard, 6, 9)
        + QStringList{ u"retype ComboMacrosEdit Fire gun"_s,
                       u"retype Text1 SPC"_s,
                       u"press Command1_4"_s,
                       u"text MacroText Fire_gun = SPC"_s,
                       u"retype ComboMacrosEdit Gear_toggle"_s,
                       u"retype Text1 g"_s,
                       u"press Command1_4"_s,
                       u"text MacroText Gear_toggle = g"_s }
    + turn(wizard, 9, 12)
        + QStringList{ u"press BTNinFrame_4"_s, u"text LabelFile Wiz.tmm, saved"_s }
    + turn(wizard, 12, 13) + QStringList{ u"press BTNinFrame_5"_s, u"done"_s }
    + turn(wizard, 13, 14) + QStringList{ u"press CommandAll_1"_s, u"gone "_s + wizard.title };
}

QStringList makeJoystickFile()
{
    const Wizard &wizard = joystickWizard;
    return open(wizard) + turn(wizard, 1, 2)
        + QStringList{ u"press BTNinFrame_0"_s, u"file Files/Wiz.tmm"_s,
                       u"text MacroText Fire_gun"_s }
    + turn(wizard, 2, 3)
        + QStringList{ u"press BTNinFrame_1"_s, u"text Panel_1 New joystick file created"_s }
    + turn(wizard, 3, 4)
        + QStringList{ u"press BTNinFrame_2"_s, u"file Files/Wiz.tmj"_s, u"text Panel_1 saved"_s }
    + turn(wizard, 4, 5)
        + QStringList{ u"press BTNinFrame_3"_s, u"press CMD_UseInsert_0"_s,
                       u"text JoystickText USE MDEF Wiz.tmm"_s }
    + turn(wizard, 5, 7)
        + QStringList{ u"press BTNinFrame_6"_s, u"press BTN_1"_s, u"text JoystickText BTN S2"_s,
                       u"type JoystickText Gear_toggle\\nBTN TG1 /H Fire_gun\\n"_s }
    + turn(wizard, 7, 8) + QStringList{ u"press BTNinFrame_7"_s, u"usable SSTab3 1"_s }
    + turn(wizard, 8, 9)
        + QStringList{ u"press BTNinFrame_5"_s, u"box File successfully compiled!"_s, u"press OK"_s,
                       u"gone File successfully compiled!"_s }
    + turn(wizard, 9, 10) + QStringList{ u"press CommandAll_1"_s, u"gone "_s + wizard.title };
}

} // namespace

TEST(ProgramWizards, TurnTheirPagesAndLeaveTheFilesAloneWhenTheyAreCancelled)
{
    Program program;
    program.settle();
    const QByteArray joystick = program.read(sample);
    const QByteArray macros = program.read(sampleMacros);
    QStringList script{ u"text MacroText ="_s };
    for (const Wizard &wizard : { macroWizard, joystickWizard }) {
        script << thereAndBackAtEachPage(wizard) << cancelAtEachPage(wizard);
    }
    // Were a file modified, closing would ask.
    program.run(script << u"close"_s, { program.file(sample) });
    EXPECT_EQ(program.read(sample), joystick);
    EXPECT_EQ(program.read(sampleMacros), macros);
}

TEST(ProgramWizards, LeaveAPairThatCompiles)
{
    Program program;
    program.settle();
    const QStringList notes =
        program.run(QStringList{ u"text Panel_1 Ready"_s } + makeMacroFile() + makeJoystickFile()
                    << u"close"_s);
    EXPECT_THAT(lines(notes), testing::Contains(HasSubstr("Wiz.tmj compiled successfully.")));
    const QByteArray macros = program.read(u"Files/Wiz.tmm"_s);
    EXPECT_THAT(macros.toStdString(), HasSubstr("Weapons\r\n"));
    EXPECT_THAT(macros.toStdString(), HasSubstr("\r\nFire_gun = SPC\r\nGear_toggle = g\r\n"));
    const QByteArray joystick = program.read(u"Files/Wiz.tmj"_s);
    EXPECT_THAT(joystick.toStdString(), HasSubstr("USE MDEF Wiz.tmm"));
    EXPECT_THAT(joystick.toStdString(), HasSubstr("BTN S2 Gear_toggle\r\nBTN TG1 /H Fire_gun\r\n"));
}
