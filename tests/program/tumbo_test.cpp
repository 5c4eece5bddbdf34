// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;

TEST(ProgramTumbo, WhatItWritesIntoBothFilesCompiles)
{
    Program program;
    program.settle();
    program.write(u"Files/t.tmj"_s, "USE MDEF t\r\n");
    program.write(u"Files/t.tmm"_s, "Fire = SPC\r\n");
    program.run({ u"text MacroText Fire"_s,
                  u"type JoystickText BTN S2 Gear\\nBTN S1"_s,
                  u"trigger mnuAppsTumbo"_s,
                  u"window Tumbo - the Thrustmaster key syntax"_s,
                  u"trigger mnuViewKDKUUSB_1"_s,
                  u"click ToggleButton1"_s,
                  u"click Command1_20"_s,
                  u"done"_s,
                  u"trigger mnuCreatePRraw"_s,
                  u"done"_s,
                  u"click CommandPasteJ_4"_s,
                  u"text JoystickText /P USB(DE1 D04) /R USB(U04 UE1) Rem 'SHF a'"_s,
                  u"click Command1_26"_s,
                  u"done"_s,
                  u"click Command10_0"_s,
                  u"retype ComboMacros Gear"_s,
                  u"click cmdCreateMacro"_s,
                  u"text MacroText Gear = SHF g"_s,
                  u"trigger mnuFileSaveBoth"_s,
                  u"done"_s,
                  u"tab TabStrip1 0"_s,
                  u"trigger mnuAppsCompile"_s,
                  u"box File successfully compiled!"_s,
                  u"press OK"_s,
                  u"close"_s },
                { program.file(u"Files/t.tmj"_s) });
    EXPECT_EQ(program.read(u"Files/t.tmj"_s),
              QByteArray("BTN S2 Gear\r\nBTN S1 /P USB(DE1 D04) /R USB(U04 UE1) Rem 'SHF a'\r\n"
                         "USE MDEF t\r\n"));
    EXPECT_EQ(program.read(u"Files/t.tmm"_s), QByteArray("Fire = SPC\r\nGear = SHF g"));
}
