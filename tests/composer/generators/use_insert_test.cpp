// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_insert.h"

#include <gmock/gmock.h>

#include <vector>

using namespace zeph;

namespace use_insert_rows {

using enum UseInsert;

namespace {

struct Written {
    UseInsert insert;
    UseFields fields;
    const char16_t *text;
    bool startsLine;
};

constexpr bool startsLine = true;
constexpr bool withinLine = false;

HardwareStartup startup(bool emulation, bool userAxes, bool autoCalibration)
{
    HardwareStartup result;
    result.setEmulation(emulation);
    result.setAutoCalibration(autoCalibration);
    result.setUserAxes(userAxes);
    return result;
}

// clang-format off
const std::vector<Written> written = {
    { MacroFile, { .macroFile = u"Falcon.tmm"_s }, u"USE MDEF Falcon.tmm ", startsLine },
    { MacroFile, { .macroFile = u"My macros 2"_s }, u"USE MDEF My macros 2 ", startsLine },
    { MacroFile, {}, u"USE MDEF  ", startsLine },

    { Rate, { .rate = u"60"_s, .rateOfFile = true }, u"USE RATE (60)", startsLine },
    { Rate, { .rate = u"60"_s }, u"RATE (60)", withinLine },
    { Rate, { .rate = u"0"_s }, u"RATE (0)", withinLine },
    { Rate, { .rate = u"0"_s, .rateOfFile = true }, u"USE RATE (0)", startsLine },
    { Rate, { .rate = u" "_s }, u"RATE ( )", withinLine },
    { Rate, { .rate = u"32.4"_s }, u"RATE (32.4)", withinLine },

    { DirectXButton, {}, u"USE H1U AS DX1 ", startsLine },
    { DirectXButton, { .directXControl = u"S1"_s, .directXButton = 2 }, u"USE S1 AS DX2 ", startsLine },
    { DirectXButton, { .directXControl = u"T10"_s, .directXButton = 28 }, u"USE T10 AS DX28 ", startsLine },
    { DirectXButton, { .allDirectXButtons = true }, u"USE ALL_DIRECTX_BUTTONS ", startsLine },
    { DirectXButton, { .directXControl = u"S1"_s, .directXButton = 2, .allDirectXButtons = true },
      u"USE ALL_DIRECTX_BUTTONS ", startsLine },

    { ShiftButton, { .shiftControl = u"S4"_s }, u"SHIFTBTN (S4) ", withinLine },
    { ShiftButton, { .shiftControl = u"S4"_s, .shiftOfFile = true }, u"USE S4 AS SHIFTBTN", startsLine },
    { ShiftButton, { .directXControl = u"T1"_s, .shiftControl = u"TG2"_s }, u"SHIFTBTN (TG2) ", withinLine },

    { UseS3Lock, {}, u"USE S3_LOCK ", startsLine },
    { S3Lock, {}, u"S3_LOCK ", withinLine },
    { S3Unlock, {}, u"S3_UNLOCK ", withinLine },

    { HatSensitivity, { .hatSensitivity = u"10"_s }, u"USE HAT1_SENSITIVITY (10) ", startsLine },
    { HatSensitivity, { .hat = u"HAT4"_s, .hatSensitivity = u"0"_s }, u"USE HAT4_SENSITIVITY (0) ", startsLine },
    { HatSensitivity, { .hatSensitivity = u"1"_s, .t1Sensitivity = u"2"_s }, u"USE HAT1_SENSITIVITY (1) ", startsLine },
    { T1Sensitivity, { .t1Sensitivity = u"10"_s }, u"USE T1_SENSITIVITY (10) ", startsLine },
    { T1Sensitivity, { .hatSensitivity = u"1"_s, .t1Sensitivity = u"2"_s }, u"USE T1_SENSITIVITY (2) ", startsLine },

    { ReverseToggles, {}, u"REVERSE_TOGGLES ", withinLine },
    { ReverseToggles, { .reverseWithS3In = true }, u"/I REVERSE_TOGGLES ", withinLine },
    { ReverseToggles, { .resetWithS3In = true }, u"REVERSE_TOGGLES ", withinLine },
    { ResetToggles, {}, u"RESET_TOGGLES ", withinLine },
    { ResetToggles, { .resetWithS3In = true }, u"/I RESET_TOGGLES ", withinLine },
    { ResetToggles, { .reverseWithS3In = true }, u"RESET_TOGGLES ", withinLine },

    { KeyboardAzerty, {}, u"USE KEYBOARD AZERTY ", startsLine },
    { StickOff, {}, u"STICK_OFF ", withinLine },
    { ChordedFdfu, {}, u"USE CHORDED_FDFU ", startsLine },
    { EmptyBuffers, {}, u"EMPTY_BUFFERS ", withinLine },

    { Profile, { .profile = u"Default.tmc"_s }, u"USE PROFILE Default.tmc (AUTO)", startsLine },
    { Profile, { .profile = u"My stick.TMC"_s, .autoProfile = false }, u"USE PROFILE My stick.TMC (CUSTOM)", startsLine },

    { NullCharacter, { .nullCharacter = u"^"_s }, u"USE NULLCHR ^", startsLine },
    { NullCharacter, { .nullCharacter = u"("_s }, u"USE NULLCHR (", startsLine },
    { NullCharacter, { .nullCharacter = u" "_s }, u"USE NULLCHR  ", startsLine },

    { Graphic, { .graphic = u"My picture.bmp"_s }, u"USE ZEPH GRAPHIC My picture.bmp", startsLine },
    { Graphic, { .graphic = u"a%1b%2.jpg"_s }, u"USE ZEPH GRAPHIC a%1b%2.jpg", startsLine },
    { Readme, { .readme = u"Read me.rtf"_s }, u"USE ZEPH README Read me.rtf", startsLine },
    { Readme, { .graphic = u"a.bmp"_s, .readme = u"a.txt"_s }, u"USE ZEPH README a.txt", startsLine },

    { Startup, {}, u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_WINDOWS, CALIBRATION_AUTO)", startsLine },
    { Startup, { .startup = startup(false, false, true) },
      u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_WINDOWS, CALIBRATION_AUTO)", startsLine },
    { Startup, { .startup = startup(true, false, false) },
      u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_WINDOWS, CALIBRATION_MANUAL)", startsLine },
    { Startup, { .startup = startup(true, true, false) },
      u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_USER, CALIBRATION_MANUAL)", startsLine },
    { Startup, { .startup = startup(false, false, false) },
      u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_WINDOWS, CALIBRATION_MANUAL)", startsLine },
    { Startup, { .startup = startup(false, true, false) },
      u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_USER, CALIBRATION_MANUAL)", startsLine },

    { Application, { .application = uR"(C:\Tools\trainer.exe)"_s }, uR"(USE ZEPH RUN_APP C:\Tools\trainer.exe)", startsLine },
    { Application, { .application = uR"("C:\My tools\a.exe" -x)"_s, .windowStyle = WindowStyle::Hidden },
      uR"(USE ZEPH RUN_APP "C:\My tools\a.exe" -x WINDOW_STYLE = 0)", startsLine },
    { Application, { .application = u"a.exe"_s, .windowStyle = WindowStyle::NormalFocus },
      u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 1", startsLine },
    { Application, { .application = u"a.exe"_s, .windowStyle = WindowStyle::MinimisedFocus },
      u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 2", startsLine },
    { Application, { .application = u"a.exe"_s, .windowStyle = WindowStyle::MaximisedFocus },
      u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 3", startsLine },
    { Application, { .application = u"a.exe"_s, .windowStyle = WindowStyle::NormalNoFocus },
      u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 4", startsLine },
    { Application, {}, u"USE ZEPH RUN_APP ", startsLine },
    { Application, { .windowStyle = WindowStyle::Hidden }, u"USE ZEPH RUN_APP  WINDOW_STYLE = 0", startsLine },
};
// clang-format on

struct Refused {
    UseInsert insert;
    UseFields fields;
    const char16_t *title;
    const char16_t *text;
};

// clang-format off
const std::vector<Refused> refused = {
    { Rate, {}, u"Missing value", u"Please enter a rate value" },
    { Rate, { .rateOfFile = true }, u"Missing value", u"Please enter a rate value" },
    { HatSensitivity, { .t1Sensitivity = u"10"_s }, u"Missing value", u"Please enter a Sensitivity value" },
    { T1Sensitivity, { .hatSensitivity = u"10"_s }, u"Missing value", u"Please enter a Sensitivity value" },
    { Profile, { .hotasFolder = uR"(C:\HOTAS\)"_s }, u"No profiles found",
      uR"(You don't have any Profiles present in C:\HOTAS\. You need to use the CCP to create some.)" },
    { Profile, { .autoProfile = false, .hotasFolder = u"/opt/%1/"_s }, u"No profiles found",
      u"You don't have any Profiles present in /opt/%1/. You need to use the CCP to create some." },
    { NullCharacter, {}, u"I've got a problem ...",
      u"You haven't assigned a character to use as the Null Character." },
    { Graphic, { .readme = u"a.txt"_s }, u"I've got a problem ...", u"You haven't selected an image file." },
    { Readme, { .graphic = u"a.bmp"_s }, u"I've got a problem ...", u"You haven't selected a ReadMe file." },
};
// clang-format on

QString textOf(UseInsert insert, const UseFields &fields)
{
    return generateUse(insert, fields).value().text();
}

} // namespace

TEST(UseInsert, EachButtonWritesItsStatement)
{
    for (const Written &row : written) {
        SCOPED_TRACE(QString::fromUtf16(row.text).toStdString());
        const Generated made = generateUse(row.insert, row.fields);
        ASSERT_TRUE(made);
        EXPECT_EQ(made->text(), QStringView(row.text));
        EXPECT_EQ(made->startsLine, row.startsLine);
    }
}

TEST(UseInsert, AStatementIsOnePieceThatIsPaintedAsTyped)
{
    for (const Written &row : written) {
        const Generated made = generateUse(row.insert, row.fields);
        ASSERT_TRUE(made);
        ASSERT_EQ(made->pieces.size(), 1);
        EXPECT_FALSE(made->pieces[0].colour);
    }
}

TEST(UseInsert, AMissingValueIsRefusedByABoxThatNamesIt)
{
    for (const Refused &row : refused) {
        SCOPED_TRACE(QString::fromUtf16(row.text).toStdString());
        const Generated made = generateUse(row.insert, row.fields);
        ASSERT_FALSE(made);
        EXPECT_EQ(made.error().title, QStringView(row.title));
        EXPECT_EQ(made.error().text, QStringView(row.text));
        EXPECT_EQ(made.error().icon, BoxIcon::Exclamation);
    }
}

TEST(UseInsert, TheRowsNameEveryButton)
{
    for (int index = 0; index < useInsertCount; ++index) {
        EXPECT_THAT(written, testing::Contains(testing::Field(&Written::insert, UseInsert(index))))
            << index;
    }
}

// The order of the page's button array.
TEST(UseInsert, TheButtonsHaveTheirIndices)
{
    EXPECT_EQ(int(MacroFile), 0);
    EXPECT_EQ(int(UseS3Lock), 4);
    EXPECT_EQ(int(ReverseToggles), 9);
    EXPECT_EQ(int(StickOff), 12);
    EXPECT_EQ(int(NullCharacter), 15);
    EXPECT_EQ(int(Startup), 19);
    EXPECT_EQ(int(Application), 20);
    EXPECT_EQ(useInsertCount, 21);
}

TEST(UseInsert, ARateOf0IsLegalAndOnlyAnEmptyBoxIsRefused)
{
    EXPECT_EQ(textOf(Rate, { .rate = u"0"_s }), u"RATE (0)");
    EXPECT_FALSE(generateUse(Rate, { .rate = u""_s }));
}

TEST(UseInsert, TheShiftButtonOfABodyEndsWithABlankAndThatOfTheFileDoesNot)
{
    EXPECT_EQ(textOf(ShiftButton, { .shiftControl = u"S4"_s }), u"SHIFTBTN (S4) ");
    EXPECT_EQ(textOf(ShiftButton, { .shiftControl = u"S4"_s, .shiftOfFile = true }),
              u"USE S4 AS SHIFTBTN");
}

TEST(UseInsert, Style6WritesNoClauseAndStyle0WritesOne)
{
    UseFields fields{ .application = u"a.exe"_s, .windowStyle = WindowStyle::MinimisedNoFocus };
    EXPECT_EQ(textOf(Application, fields), u"USE ZEPH RUN_APP a.exe");
    fields.windowStyle = WindowStyle::Hidden;
    EXPECT_EQ(textOf(Application, fields), u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 0");
}

TEST(UseInsert, WithoutAnyProfileTheStatementCannotBeWritten)
{
    EXPECT_FALSE(generateUse(Profile, {}));
}

TEST(UseInsert, OnlyAMissingApplicationIsAskedAbout)
{
    const auto question = questionBeforeUse(Application, {});
    ASSERT_TRUE(question);
    EXPECT_EQ(question->title, u"What should I insert here buddy?");
    EXPECT_EQ(question->text,
              u"You haven't selected an application to run with the USE ZEPH RUN_APP statement. "
              "Would you like me to go ahead anyway and insert the statement?");
    EXPECT_EQ(question->icon, BoxIcon::Question);
    EXPECT_FALSE(questionBeforeUse(Application, { .application = u"a.exe"_s }));
    for (int index = 0; index < int(Application); ++index)
        EXPECT_FALSE(questionBeforeUse(UseInsert(index), {})) << index;
}

TEST(HardwareStartup, AutomaticCalibrationTakesTheUsersAxesAway)
{
    HardwareStartup startup;
    startup.setAutoCalibration(false);
    startup.setUserAxes(true);
    EXPECT_TRUE(startup.userAxes());
    startup.setAutoCalibration(true);
    EXPECT_FALSE(startup.userAxes());
    EXPECT_FALSE(startup.mayHaveUserAxes());
    startup.setUserAxes(true);
    EXPECT_FALSE(startup.userAxes());
}

TEST(HardwareStartup, ManualCalibrationAllowsTheUsersAxesAgainAndDoesNotChooseThem)
{
    HardwareStartup startup;
    startup.setAutoCalibration(false);
    startup.setUserAxes(true);
    startup.setAutoCalibration(true);
    startup.setAutoCalibration(false);
    EXPECT_TRUE(startup.mayHaveUserAxes());
    EXPECT_FALSE(startup.userAxes());
    startup.setUserAxes(true);
    EXPECT_TRUE(startup.userAxes());
}

} // namespace use_insert_rows
