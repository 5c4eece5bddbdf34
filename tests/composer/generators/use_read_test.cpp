// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_insert.h"

#include "compilation.h"
#include "composer/generators/use_lists.h"

#include <vector>

using namespace zeph;

namespace use_read_rows {

using enum UseInsert;

namespace {

struct Input {
    UseInsert insert;
    /// Only what the statement tells differs from the fields' first values.
    UseFields fields;
};

using Inputs = std::vector<Input>;

void addControls(Inputs &inputs)
{
    for (const QStringView name : useControls) {
        const QString control = name.toString();
        for (int button = 1; button <= language::lastDirectXButton; ++button)
            inputs.push_back(
                { DirectXButton, { .directXControl = control, .directXButton = button } });
        for (const bool ofFile : { false, true })
            inputs.push_back({ ShiftButton, { .shiftControl = control, .shiftOfFile = ofFile } });
    }
    inputs.push_back({ DirectXButton, { .allDirectXButtons = true } });
}

void addNumbers(Inputs &inputs)
{
    for (int number = 0; number <= 300; ++number) {
        const QString value = QString::number(number);
        for (const bool ofFile : { false, true })
            inputs.push_back({ Rate, { .rate = value, .rateOfFile = ofFile } });
        for (const QStringView hat : language::wordsOf<language::HatRole>())
            inputs.push_back(
                { HatSensitivity, { .hat = hat.toString(), .hatSensitivity = value } });
        inputs.push_back({ T1Sensitivity, { .t1Sensitivity = value } });
    }
}

void addFiles(Inputs &inputs)
{
    const QStringList names{
        u"a"_s,   u"My file"_s, u"two  blanks"_s, u"\"quoted one\""_s, u"(1"_s,       u"b (2)"_s,
        u"x,y"_s, u"Remark"_s,  u"[a] <b>{c"_s,   u"F-16 Block 50"_s,  u"USE MDEF"_s, u"%1"_s
    };
    for (const QString &name : names) {
        inputs.push_back({ MacroFile, { .macroFile = name } });
        inputs.push_back({ MacroFile, { .macroFile = name + u".tmm"_s } });
        inputs.push_back({ Graphic, { .graphic = name + u".bmp"_s } });
        inputs.push_back({ Readme, { .readme = name + u".rtf"_s } });
        for (const bool automatic : { false, true })
            inputs.push_back(
                { Profile, { .profile = name + u".tmc"_s, .autoProfile = automatic } });
        for (const WindowStyleRow &row : windowStyles)
            inputs.push_back({ Application,
                               { .application = u"C:\\Program Files\\"_s + name + u".exe -x /y"_s,
                                 .windowStyle = row.style } });
    }
    for (const WindowStyleRow &row : windowStyles)
        inputs.push_back({ Application, { .windowStyle = row.style } });
    inputs.push_back({ MacroFile, {} });
}

void addSwitches(Inputs &inputs)
{
    for (char16_t character = u'!'; character <= u'~'; ++character)
        inputs.push_back({ NullCharacter, { .nullCharacter = QString(QChar(character)) } });
    for (const bool on : { false, true }) {
        inputs.push_back({ ReverseToggles, { .reverseWithS3In = on } });
        inputs.push_back({ ResetToggles, { .resetWithS3In = on } });
    }
    for (const UseInsert insert :
         { UseS3Lock, S3Lock, S3Unlock, KeyboardAzerty, StickOff, ChordedFdfu, EmptyBuffers })
        inputs.push_back({ insert, {} });
    for (int bits = 0; bits < 8; ++bits) {
        HardwareStartup startup;
        startup.setEmulation((bits & 1) != 0);
        startup.setAutoCalibration((bits & 2) != 0);
        startup.setUserAxes((bits & 4) != 0);
        inputs.push_back({ Startup, { .startup = startup } });
    }
}

Inputs allInputs()
{
    Inputs inputs;
    addControls(inputs);
    addNumbers(inputs);
    addFiles(inputs);
    addSwitches(inputs);
    return inputs;
}

// Every field another value than at first.
UseFields otherFields()
{
    HardwareStartup startup;
    startup.setEmulation(false);
    startup.setAutoCalibration(false);
    startup.setUserAxes(true);
    return { .macroFile = u"m"_s,
             .rate = u"1"_s,
             .rateOfFile = true,
             .directXControl = u"S2"_s,
             .directXButton = 7,
             .allDirectXButtons = true,
             .shiftControl = u"S3"_s,
             .shiftOfFile = true,
             .hat = u"HAT3"_s,
             .hatSensitivity = u"2"_s,
             .t1Sensitivity = u"3"_s,
             .reverseWithS3In = true,
             .resetWithS3In = true,
             .profile = u"p.tmc"_s,
             .autoProfile = false,
             .hotasFolder = u"h"_s,
             .nullCharacter = u"n"_s,
             .graphic = u"g"_s,
             .readme = u"r"_s,
             .startup = startup,
             .application = u"a"_s,
             .windowStyle = WindowStyle::NormalFocus };
}

QString textOf(const Input &input)
{
    return generateUse(input.insert, input.fields).value().text();
}

// What a statement gives when the page shows its first values.
UseFields readAs(UseInsert insert, QStringView statement)
{
    const auto reading = readUse(statement);
    EXPECT_TRUE(reading) << statement.toString().toStdString();
    if (!reading)
        return {};
    EXPECT_EQ(reading->insert, insert) << statement.toString().toStdString();
    return reading->fields;
}

} // namespace

TEST(UseRead, WhateverIsWrittenCompiles)
{
    test::Compilation all;
    for (const Input &input : allInputs()) {
        const Statement statement = generateUse(input.insert, input.fields).value();
        if (input.insert != MacroFile) {
            all.add((statement.startsLine ? QString() : u"BTN S1 "_s) + statement.text());
            continue;
        }
        // Quotes are around the whole name.
        QString name = input.fields.macroFile;
        if (name.startsWith(u'"') && !name.endsWith(u'"'))
            continue;
        name.remove(u'"');
#ifdef Q_OS_WIN
        // No file has such a name.
        if (name.contains(u'<'))
            continue;
#endif
        // Of several such lines in a file the last one counts.
        test::Compilation one;
        one.addMacroFile(name.endsWith(u".tmm") ? name : name + u".tmm"_s);
        one.add(statement.text());
        EXPECT_EQ(one.verdict(), "");
    }
    EXPECT_GT(all.count(), 2500);
    EXPECT_EQ(all.verdict(), "");
}

TEST(UseRead, WhateverIsWrittenComesBackIntoItsFields)
{
    const Inputs inputs = allInputs();
    EXPECT_GT(inputs.size(), 2500U);
    for (const Input &input : inputs) {
        const QString text = textOf(input);
        const auto reading = readUse(text);
        ASSERT_TRUE(reading) << text.toStdString();
        ASSERT_EQ(reading->insert, input.insert) << text.toStdString();
        ASSERT_EQ(reading->fields, input.fields) << text.toStdString();
        ASSERT_EQ(textOf({ reading->insert, reading->fields }), text);
    }
}

TEST(UseRead, WhatThePageShowsOtherwiseDoesNotChangeTheStatement)
{
    const UseFields shown = otherFields();
    for (const Input &input : allInputs()) {
        const QString text = textOf(input);
        const auto reading = readUse(text, shown);
        ASSERT_TRUE(reading) << text.toStdString();
        ASSERT_EQ(textOf({ reading->insert, reading->fields }), text);
    }
}

TEST(UseRead, FieldsOfOtherButtonsStayAsShown)
{
    UseFields expected = otherFields();
    expected.rate = u"60"_s;
    expected.rateOfFile = false;
    EXPECT_EQ(readUse(u"RATE (60)", otherFields())->fields, expected);

    expected = otherFields();
    expected.hat = u"HAT2"_s;
    expected.hatSensitivity = u"10"_s;
    EXPECT_EQ(readUse(u"USE HAT2_SENSITIVITY (10) ", otherFields())->fields, expected);

    EXPECT_EQ(readUse(u"USE ALL_DIRECTX_BUTTONS ", otherFields())->fields, otherFields());
    EXPECT_EQ(readUse(u"STICK_OFF ", otherFields())->fields, otherFields());
}

TEST(UseRead, StatementsAreReadInAnyCaseAndWithAnyBlanks)
{
    EXPECT_EQ(readAs(MacroFile, u"use mdef Falcon.tmm").macroFile, u"Falcon.tmm");
    EXPECT_EQ(readAs(Rate, u"  use\trate( 60 )").rate, u"60");
    const UseFields directX = readAs(DirectXButton, u"use h2l  as dx14");
    EXPECT_EQ(directX.directXControl, u"H2L");
    EXPECT_EQ(directX.directXButton, 14);
    EXPECT_EQ(readAs(ShiftButton, u"shiftbtn(s4)").shiftControl, u"S4");
    EXPECT_TRUE(readAs(ShiftButton, u"use s4 as shiftbtn").shiftOfFile);
    const UseFields hat = readAs(HatSensitivity, u"Use hat3_Sensitivity(12)");
    EXPECT_EQ(hat.hat, u"HAT3");
    EXPECT_EQ(hat.hatSensitivity, u"12");
    EXPECT_EQ(readAs(T1Sensitivity, u"use t1_sensitivity (4)").t1Sensitivity, u"4");
    EXPECT_TRUE(readAs(ReverseToggles, u"/i  reverse_toggles").reverseWithS3In);
    readAs(KeyboardAzerty, u"use  keyboard azerty");
    EXPECT_FALSE(readAs(Startup, u"use hwstartup(emulation_off,axis_mode_windows,calibration_auto)")
                     .startup.emulation());
    const UseFields run = readAs(Application, u"use zeph run_app a.exe window_style=3");
    EXPECT_EQ(run.application, u"a.exe");
    EXPECT_EQ(run.windowStyle, WindowStyle::MaximisedFocus);
}

TEST(UseRead, ACommentBelongsToNoField)
{
    EXPECT_EQ(readAs(MacroFile, u"USE MDEF Falcon.tmm Rem my macros").macroFile, u"Falcon.tmm");
    EXPECT_EQ(readAs(Rate, u"USE RATE (60) rem slow").rate, u"60");
    EXPECT_EQ(readAs(Application, u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 2 REM big").windowStyle,
              WindowStyle::MinimisedFocus);
    readAs(UseS3Lock, u"USE S3_LOCK Rem locked");
}

TEST(UseRead, AProfileIsReadWithoutItsEndingAndMode)
{
    const UseFields shown{ .autoProfile = false };
    const auto reading = readUse(u"USE PROFILE Default", shown);
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->fields.profile, u"Default.tmc");
    EXPECT_FALSE(reading->fields.autoProfile);
    EXPECT_TRUE(readUse(u"USE PROFILE Default (auto)", shown)->fields.autoProfile);
}

TEST(UseRead, TabsBeforeTheStyleAreNotOfTheCommand)
{
    EXPECT_EQ(readAs(Application, u"USE ZEPH RUN_APP\ta.exe -x \t WINDOW_STYLE=1").application,
              u"a.exe -x");
}

TEST(UseRead, TheStyleThatIsWrittenWithoutAClauseMayHaveOne)
{
    const UseFields fields = readAs(Application, u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 6");
    EXPECT_EQ(fields.application, u"a.exe");
    EXPECT_EQ(fields.windowStyle, WindowStyle::MinimisedNoFocus);
}

TEST(UseRead, WhatThePageCannotInsertIsNotRead)
{
    for (const char16_t *statement :
         { u"",
           u"   \n",
           u"Rem USE RATE (60)",
           u"BTN S1 RATE (60)",
           u"RATE",
           u"RATE ()",
           u"RATE (60",
           u"RATE 60",
           u"RATE (60) (61)",
           u"USE RATE ()",
           u"USE RATE (60) a",
           u"USE H1U AS DX0",
           u"USE H1U AS DX29",
           u"USE H1U AS DX",
           u"USE H1M AS DX1",
           u"USE H1UL AS DX1",
           u"USE T11 AS DX1",
           u"USE X1 AS DX1",
           u"USE S1 AS DX1 DX2",
           u"USE S1 IS DX1",
           u"SHIFTBTN",
           u"SHIFTBTN ()",
           u"SHIFTBTN (H1M)",
           u"SHIFTBTN (S4) S1",
           u"USE H1M AS SHIFTBTN",
           u"USE S1 AS",
           u"USE S3_LOCK S3_LOCK",
           u"S3_LOCK S3_UNLOCK",
           u"USE S3_UNLOCK",
           u"USE HAT5_SENSITIVITY (1)",
           u"USE HAT1_SENSITIVITY",
           u"USE HAT1_SENSITIVITY ()",
           u"USE T2_SENSITIVITY (1)",
           u"/O REVERSE_TOGGLES",
           u"/I /I RESET_TOGGLES",
           u"USE KEYBOARD QWERTZ",
           u"USE PROFILE",
           u"USE PROFILE (AUTO)",
           u"USE NULLCHR",
           u"USE ZEPH GRAPHIC",
           u"USE ZEPH README ",
           u"USE ZEPH",
           u"USE ZEPH RUN_APP a.exe WINDOW_STYLE = 2 -x",
           u"USE ZEPH RUN_APP a.exe WINDOW_STYLE 2",
           u"USE ZEPH RUN_APP a.exe WINDOW_STYLE =",
           u"USE HWSTARTUP ()",
           u"USE HWSTARTUP (EMULATION_ON)",
           u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_USER, CALIBRATION_AUTO)",
           u"USE HWSTARTUP (AXIS_MODE_USER, EMULATION_ON, CALIBRATION_MANUAL)",
           u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_USER, CALIBRATION_MANUAL, LOCK)",
           u"USE MTYPE A1",
           u"USE SCREEN_RESOLUTION (1,2)",
           u"USE RATE (60)\nUSE RATE (61)",
           u"USE MDEF a.tmm\n b",
           u"DISABLE THR" }) {
        EXPECT_FALSE(readUse(statement)) << QString::fromUtf16(statement).toStdString();
    }
}

TEST(UseRead, BothEndsOfTheDirectXButtonsAreRead)
{
    EXPECT_EQ(readAs(DirectXButton, u"USE S1 AS DX1").directXButton, 1);
    EXPECT_EQ(readAs(DirectXButton, u"USE S1 AS DX28").directXButton, 28);
}

} // namespace use_read_rows
