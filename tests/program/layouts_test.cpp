// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::HasSubstr;

TEST(ProgramLayouts, TheSheetsOfAFileGoToTheCustomSheet)
{
    Program program;
    program.settle();
    program.write(u"Files/t.tmj"_s, "BTN S1 /U Fire_Gun\r\nBTN T2 Chaff\r\n");
    program.run({ u"trigger mnuAppsJoystickLayout"_s, u"done"_s, u"window Joystick Layout Editor"_s,
                  u"trigger mnuAppsThrottleLayout"_s, u"done"_s, u"window Throttle Layout Editor"_s,
                  u"trigger mnuTransferArray_0"_s, u"window Custom layout editor"_s, u"close"_s,
                  u"box Save layout?"_s, u"press No"_s },
                { program.file(u"Files/t.tmj"_s) });
    EXPECT_THAT(program.read(u"Temp/tmpJoy2.txt"_s).toStdString(),
                HasSubstr("BTN S1 /U Fire_Gun\r\n"));
    EXPECT_TRUE(program.exists(u"Layouts/temp"_s));
}
