// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/mouse_statements.h"

#include "compilation.h"
#include "generator_rows.h"
#include "text/mouse_types.h"

using namespace zeph;

namespace mouse_tests {

namespace {

using enum MouseCommand;

constexpr UseOption ud = UseOption::ReverseUd;
constexpr UseOption lr = UseOption::ReverseLr;
constexpr UseOption dir = UseOption::ReverseDir;
constexpr UseOption noButton = UseOption::NoButton;
constexpr UseOptions all = ud | lr | dir | noButton;

const QString missing =
    u"Missing some text buddy: You have left out one of the required parameters I need to create the statement."_s;
const QString noIncrement =
    u"Missing Increment Value: You have left out the Increment value which I need to create the statement."_s;
const QString noStart = u"Missing some text buddy: You haven't provided the Starting value."_s;
const QString noValue =
    u"You're missing the value: You need to enter a value - the textbox is empty"_s;

QString tooFast(const QString &sum)
{
    return u"Invalid values: The Scale value value multiplied by the Increment value must be less "
           u"than 128. In your "
           "case you have: "_s
        + sum;
}

struct AxisRow {
    AxisAsMouseFields fields;
    QString expected;
};

const AxisRow axisRows[] = {
    // Without a starting value.
    { { u"MICROSTICK"_s, u"MOUSE"_s }, u"USE MICROSTICK AS MOUSE (11, 2)"_s },
    { { u"JOYSTICK"_s, u"MOUSE"_s, 2, u"1"_s }, u"USE JOYSTICK AS MOUSE (2, 1)"_s },
    { { u"ROTARIES"_s, u"MOUSE"_s, 12, u"10"_s }, u"USE ROTARIES AS MOUSE (12, 10)"_s },
    { { u"TOEBRAKES"_s, u"MOUSE"_s, 5, u"5"_s }, u"USE TOEBRAKES AS MOUSE (5, 5)"_s },
    { { u"JOYX"_s, u"MOUSEX"_s, 5, u"5"_s }, u"USE JOYX AS MOUSEX (5, 5)"_s },
    { { u"MIY"_s, u"MOUSEY"_s, 5, u"5"_s }, u"USE MIY AS MOUSEY (5, 5)"_s },
    { { u"RNG"_s, u"MOUSEZ"_s, 4, u"2"_s }, u"USE RNG AS MOUSEZ (4, 2)"_s },
    { { u"RNG"_s, u"MOUSEZ"_s, 4, u"2"_s, false, u"9"_s }, u"USE RNG AS MOUSEZ (4, 2)"_s },
    // With one.
    { { u"MICROSTICK"_s, u"MOUSE"_s, 11, u"2"_s, true, u"1"_s },
      u"USE MICROSTICK AS MOUSE (11, 2, 1)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"2"_s, true, u"0"_s }, u"USE THR AS MOUSEY (3, 2, 0)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"2"_s, true, u"x y"_s }, u"USE THR AS MOUSEY (3, 2, x y)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"2"_s, true, u""_s }, noStart },
    // The increment.
    { { u"THR"_s, u"MOUSEY"_s, 3, u""_s }, noIncrement },
    { { u"THR"_s, u"MOUSEY"_s, 3, u""_s, true, u""_s }, noIncrement },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"fast"_s }, u"USE THR AS MOUSEY (3, fast)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"-40"_s }, u"USE THR AS MOUSEY (3, -40)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 3, u"0"_s }, u"USE THR AS MOUSEY (3, 0)"_s },
    // Scale times increment.
    { { u"THR"_s, u"MOUSEY"_s, 11, u"11"_s }, u"USE THR AS MOUSEY (11, 11)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 12, u"11"_s }, tooFast(u"12 x 11 = 132"_s) },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"63"_s }, u"USE THR AS MOUSEY (2, 63)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"64"_s }, tooFast(u"2 x 64 = 128"_s) },
    { { u"THR"_s, u"MOUSEY"_s, 7, u"18"_s }, u"USE THR AS MOUSEY (7, 18)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 7, u"19"_s }, tooFast(u"7 x 19 = 133"_s) },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"63.5"_s }, tooFast(u"2 x 64 = 128"_s) },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"62.5"_s }, u"USE THR AS MOUSEY (2, 62.5)"_s },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"99999999999"_s }, tooFast(u"2 x 2147483647 = 4294967294"_s) },
    { { u"THR"_s, u"MOUSEY"_s, 2, u"64"_s, true, u""_s }, noStart },
    // Nothing chosen.
    { { u""_s, u"MOUSE"_s }, missing },
    { { u"THR"_s, u""_s }, missing },
    // Options.
    { { u"MICROSTICK"_s, u"MOUSE"_s, 11, u"2"_s, true, u"1"_s, all },
      u"USE MICROSTICK AS MOUSE (11, 2, 1) - REVERSE_UD, REVERSE_LR, NO_BUTTON"_s },
    { { u"MICROSTICK"_s, u"MOUSE"_s, 11, u"2"_s, false, {}, noButton },
      u"USE MICROSTICK AS MOUSE (11, 2) - NO_BUTTON"_s },
    { { u"MICROSTICK"_s, u"MOUSE"_s, 11, u"2"_s, false, {}, lr },
      u"USE MICROSTICK AS MOUSE (11, 2) - REVERSE_LR"_s },
    { { u"JOYSTICK"_s, u"MOUSE"_s, 11, u"2"_s, false, {}, ud },
      u"USE JOYSTICK AS MOUSE (11, 2) - REVERSE_UD"_s },
    { { u"JOYSTICK"_s, u"MOUSE"_s, 11, u"2"_s, false, {}, all },
      u"USE JOYSTICK AS MOUSE (11, 2) - REVERSE_UD, REVERSE_LR"_s },
    { { u"JOYSTICK"_s, u"MOUSE"_s, 11, u"2"_s, false, {}, noButton },
      u"USE JOYSTICK AS MOUSE (11, 2)"_s },
    { { u"ANT"_s, u"MOUSEX"_s, 11, u"2"_s, false, {}, dir },
      u"USE ANT AS MOUSEX (11, 2) - REVERSE_DIR"_s },
    { { u"ANT"_s, u"MOUSEX"_s, 11, u"2"_s, false, {}, all },
      u"USE ANT AS MOUSEX (11, 2) - REVERSE_DIR"_s },
    { { u"ANT"_s, u"MOUSEX"_s, 11, u"2"_s, false, {}, ud | lr }, u"USE ANT AS MOUSEX (11, 2)"_s },
};

struct TypeRow {
    MouseTypeFields fields;
    QString expected;
};

const TypeRow typeRows[] = {
    { { u"A1"_s }, u"USE MTYPE A1"_s },
    { { u"A5"_s }, u"USE MTYPE A5"_s },
    { { u"A2"_s, ud }, u"USE MTYPE A2 - REVERSE_UD"_s },
    { { u"A3"_s, lr }, u"USE MTYPE A3 - REVERSE_LR"_s },
    { { u"A4"_s, ud | lr }, u"USE MTYPE A4 - REVERSE_UD, REVERSE_LR"_s },
    { { u"A4"_s, all }, u"USE MTYPE A4 - REVERSE_UD, REVERSE_LR"_s },
    { { u""_s, ud }, missing },
};

struct CommandRow {
    MouseCommand command;
    MouseCommandFields fields;
    QString expected;
    bool startsLine = false;
};

const CommandRow commandRows[] = {
    { LeftButton, {}, u"MOUSE_LB "_s },
    { MiddleButton, {}, u"MOUSE_MB "_s },
    { RightButton, {}, u"MOUSE_RB "_s },
    { DisableMouse, {}, u"DISABLE MOUSE "_s },
    { ButtonStatement, { 0 }, u"BTN T1 /H MOUSE_LB "_s, true },
    { ButtonStatement, { 1 }, u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s, true },
    { MoveX, { 0, u"5"_s }, u"MSX(5) "_s },
    { MoveY, { 0, u"5"_s }, u"MSY(5) "_s },
    { MoveX, { 0, u"+5"_s }, u"MSX(+5) "_s },
    { MoveY, { 0, u"5-"_s }, u"MSY(5-) "_s },
    { MoveX, { 0, u"0"_s }, u"MSX(0) "_s },
    { MoveX, { 0, u"faster"_s }, u"MSX(faster) "_s },
    { MoveX, { 0, u""_s }, noValue },
    { MoveY, { 0, u""_s }, noValue },
    { ZeroMouse, {}, u"USE ZERO_MOUSE "_s, true },
};

template <class Read> void expectUnread(Read read, const QStringList &texts)
{
    for (const QString &text : texts)
        EXPECT_FALSE(read(text)) << text.toStdString();
}

} // namespace

TEST(AxisAsMouse, EachRowGivesItsTextOrRefusal)
{
    for (const AxisRow &row : axisRows) {
        const Generated made = axisAsMouse(row.fields);
        EXPECT_EQ(toldBy(made), row.expected);
        EXPECT_TRUE(!made || made->startsLine);
    }
}

TEST(AxisAsMouse, Scale11WithIncrement11PassesAndScale12WithItIsRefusedWithTheSum)
{
    EXPECT_TRUE(axisAsMouse({ u"MIX"_s, u"MOUSEX"_s, 11, u"11"_s }));
    EXPECT_TRUE(
        toldBy(axisAsMouse({ u"MIX"_s, u"MOUSEX"_s, 12, u"11"_s })).endsWith(u": 12 x 11 = 132"));
}

TEST(AxisAsMouse, NoTicksGiveNoTail)
{
    EXPECT_EQ(toldBy(axisAsMouse({ u"MIX"_s, u"MOUSEX"_s })), u"USE MIX AS MOUSEX (11, 2)");
    EXPECT_EQ(toldBy(mouseTypeStatement({ u"A1"_s })), u"USE MTYPE A1");
}

TEST(AxisAsMouse, ASingleAxisAfterTheMicrostickTakesMouseAndNoButtonAway)
{
    AxisAsMouseFields fields{ u"MICROSTICK"_s, u"MOUSE"_s };
    fields.options = ud | noButton;
    fields = settled(fields);
    EXPECT_EQ(fields.mouseAxis, u"MOUSE");
    EXPECT_EQ(fields.options, ud | noButton);
    fields.axis = u"MIX"_s;
    fields = settled(fields);
    EXPECT_FALSE(std::ranges::count(mouseAxesFor(fields.axis), QStringView(u"MOUSE")));
    EXPECT_EQ(fields.mouseAxis, u"MOUSEX");
    EXPECT_EQ(fields.options, UseOptions());
}

TEST(AxisAsMouse, AnotherSingleAxisKeepsTheMouseAxis)
{
    AxisAsMouseFields fields{ u"MIX"_s, u"MOUSEZ"_s };
    fields.options = dir;
    fields.axis = u"THR"_s;
    EXPECT_EQ(settled(fields).mouseAxis, u"MOUSEZ");
    EXPECT_EQ(settled(fields).options, UseOptions(dir));
    fields.axis = u"ROTARIES"_s;
    EXPECT_EQ(settled(fields).mouseAxis, u"MOUSE");
    EXPECT_EQ(settled(fields).options, UseOptions());
}

TEST(AxisAsMouse, GroupsDriveTheMouseAndSingleAxesOneOfItsAxes)
{
    const QStringList groups{ u"JOYSTICK"_s, u"ROTARIES"_s, u"TOEBRAKES"_s, u"MICROSTICK"_s };
    const QList<QStringView> single{ u"MOUSEX", u"MOUSEY", u"MOUSEZ" };
    int count = 0;
    for (const QStringView axis : mouseDrivers) {
        const language::Words offered = mouseAxesFor(axis);
        const QList<QStringView> list(offered.begin(), offered.end());
        EXPECT_EQ(list, groups.contains(axis) ? QList<QStringView>{ u"MOUSE" } : single);
        ++count;
    }
    EXPECT_EQ(count, 14);
}

TEST(AxisAsMouse, NoButtonIsForTheMicrostickAsMouseAlone)
{
    for (const QStringView axis : mouseDrivers) {
        for (const QStringView mouse : mouseAxesFor(axis)) {
            const bool isIt = axis == u"MICROSTICK" && mouse == u"MOUSE";
            EXPECT_EQ(axisAsMouseOptions(axis, mouse).testFlag(noButton), isIt);
        }
    }
}

TEST(AxisAsMouse, EveryCombinationCompilesAndIsReadBack)
{
    test::Compilation compilation;
    const auto tryOne = [&compilation](const AxisAsMouseFields &fields) {
        const Generated made = axisAsMouse(fields);
        if (fields.scale * fields.increment.toInt() > 127) {
            EXPECT_FALSE(made);
            return;
        }
        ASSERT_TRUE(made);
        compilation.add(made->text());
        const std::optional<AxisAsMouseFields> read = readAxisAsMouse(made->text());
        ASSERT_TRUE(read) << made->text().toStdString();
        EXPECT_EQ(read->axis, fields.axis);
        EXPECT_EQ(read->mouseAxis, fields.mouseAxis);
        EXPECT_EQ(read->scale, fields.scale);
        EXPECT_EQ(read->increment, fields.increment);
        EXPECT_EQ(read->hasStart, fields.hasStart);
        EXPECT_EQ(read->start, fields.hasStart ? fields.start : QString());
        EXPECT_EQ(read->options, settled(fields).options);
        EXPECT_EQ(toldBy(axisAsMouse(*read)), made->text());
    };
    for (const QStringView axis : mouseDrivers) {
        for (const QStringView mouse : mouseAxesFor(axis)) {
            for (int bits = 0; bits < 16; ++bits) {
                UseOptions options;
                options.setFlag(ud, bits & 1);
                options.setFlag(lr, bits & 2);
                options.setFlag(dir, bits & 4);
                options.setFlag(noButton, bits & 8);
                for (int scale = firstScale; scale <= lastScale; ++scale) {
                    for (const QString &increment :
                         { u"1"_s, u"10"_s, u"11"_s, u"-3"_s, u" 4 "_s }) {
                        for (const bool hasStart : { false, true })
                            tryOne({ axis.toString(), mouse.toString(), scale, increment, hasStart,
                                     u"7"_s, options });
                    }
                }
            }
        }
    }
    // One of the 55 pairs of scale and increment is too fast.
    EXPECT_EQ(compilation.count(), (4 + 10 * 3) * 16 * (11 * 5 - 1) * 2);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(AxisAsMouse, IsReadAsPilotsWriteIt)
{
    const auto text = [](QStringView statement) {
        const std::optional<AxisAsMouseFields> read = readAxisAsMouse(statement);
        return read ? toldBy(axisAsMouse(*read)) : u"no"_s;
    };
    EXPECT_EQ(text(u"use microstick as mouse(11,2,1)-no_button Rem T1"),
              u"USE MICROSTICK AS MOUSE (11, 2, 1) - NO_BUTTON");
    EXPECT_EQ(text(u"USE\tRNG  AS MOUSEZ ( 4 , 2)"), u"USE RNG AS MOUSEZ (4, 2)");
}

TEST(AxisAsMouse, WhatThePageCannotMakeIsNotRead)
{
    expectUnread(readAxisAsMouse,
                 { u""_s, u"USE MICROSTICK AS MOUSE"_s, u"USE MICROSTICK AS MOUSE ()"_s,
                   u"USE MICROSTICK AS MOUSE (11)"_s, u"USE MICROSTICK AS MOUSE (11, 2, 1, 1)"_s,
                   u"USE MICROSTICK AS MOUSE (1, 2)"_s, u"USE MICROSTICK AS MOUSE (13, 2)"_s,
                   u"USE MICROSTICK AS MOUSE (x, 2)"_s, u"USE MICROSTICK AS MOUSE (11, )"_s,
                   u"USE MICROSTICK AS MOUSE (11, 2, )"_s, u"USE MICROSTICK AS MOUSEX (11, 2)"_s,
                   u"USE MIX AS MOUSE (11, 2)"_s, u"USE HAT1 AS MOUSE (11, 2)"_s,
                   u"USE MIX AS MOUSEX (11, 2"_s, u"USE MIX AS MOUSEX (11, 2) - NO_BUTTON"_s,
                   u"USE MIX AS MOUSEX (11, 2) - REVERSE_UD"_s,
                   u"USE JOYSTICK AS MOUSE (11, 2) - NO_BUTTON"_s,
                   u"USE MIX AS MOUSEX (11, 2) REVERSE_DIR"_s });
}

TEST(MouseType, EachRowGivesItsTextOrRefusal)
{
    for (const TypeRow &row : typeRows) {
        const Generated made = mouseTypeStatement(row.fields);
        EXPECT_EQ(toldBy(made), row.expected);
        EXPECT_TRUE(!made || made->startsLine);
    }
}

TEST(MouseType, EveryCombinationCompilesAndIsReadBack)
{
    test::Compilation compilation;
    for (const MouseType &type : mouseTypes) {
        for (const UseOptions options : { UseOptions(), UseOptions(ud), UseOptions(lr), ud | lr }) {
            const QString text = mouseTypeStatement({ type.name.toString(), options })->text();
            compilation.add(text);
            const std::optional<MouseTypeFields> read = readMouseType(text);
            ASSERT_TRUE(read) << text.toStdString();
            EXPECT_EQ(read->type, type.name);
            EXPECT_EQ(read->options, options);
            EXPECT_EQ(toldBy(mouseTypeStatement(*read)), text);
        }
    }
    EXPECT_EQ(compilation.count(), 5 * 4);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(MouseType, IsReadInAnyCaseAndFromNothingElse)
{
    EXPECT_EQ(readMouseType(u"use mtype a3 -reverse_ud Rem left on T1")->type, u"A3");
    expectUnread(readMouseType,
                 { u""_s, u"USE MTYPE"_s, u"USE MTYPE A6"_s, u"USE MTYPE A0"_s,
                   u"USE MTYPE A1 REVERSE_UD"_s, u"USE MTYPE A1 - NOHOLD"_s,
                   u"USE MTYPE A1 - REVERSE_DIR"_s, u"USE MTYPE A1 (2)"_s,
                   u"USE MICROSTICK AS MOUSE (11, 2)"_s });
}

TEST(MouseType, TheButtonsBesideTheListAreTold)
{
    using Buttons = std::pair<QString, QString>;
    EXPECT_EQ(buttonsOfMouseType(u"A1"), Buttons(u"T1"_s, u"T6"_s));
    EXPECT_EQ(buttonsOfMouseType(u"A2"), Buttons(u"T6"_s, u"T1"_s));
    EXPECT_EQ(buttonsOfMouseType(u"A3"), Buttons(u"T1"_s, u"n/a"_s));
    EXPECT_EQ(buttonsOfMouseType(u"A4"), Buttons(u"T6"_s, u"n/a"_s));
    EXPECT_EQ(buttonsOfMouseType(u"A5"), Buttons(u"n/a"_s, u"n/a"_s));
    EXPECT_EQ(buttonsOfMouseType(u""), Buttons(u"n/a"_s, u"n/a"_s));
}

TEST(MouseType, SheetsTellA4ByTheRightButtonOnT1)
{
    const QString left = u"LRLR-"_s;
    const QString right = u"RL---"_s;
    const auto letter = [](MouseButton button) {
        return button == MouseButton::Left ? u'L' : button == MouseButton::Right ? u'R' : u'-';
    };
    ASSERT_EQ(std::size(mouseTypes), 5U);
    for (qsizetype at = 0; at < 5; ++at) {
        EXPECT_EQ(letter(mouseTypes[at].t1), left[at]);
        EXPECT_EQ(letter(mouseTypes[at].t6), right[at]);
    }
}

TEST(MouseCommand, EachRowGivesItsTextOrRefusal)
{
    for (const CommandRow &row : commandRows) {
        const Generated made = mouseCommand(row.command, row.fields);
        EXPECT_EQ(toldBy(made), row.expected);
        EXPECT_EQ(made && made->startsLine, row.startsLine);
    }
}

TEST(MouseCommand, ButtonsHaveTheirIndicesCaptionsAndTargets)
{
    const QStringList captions{ u"MOUSE_LB"_s, u"MOUSE_MB"_s, u"MOUSE_RB"_s, u"DISABLE MOUSE"_s,
                                u"Insert"_s,   u"MSX"_s,      u"MSY"_s,      u"Insert"_s };
    const QString targets = u"sssjjssj"_s;
    ASSERT_EQ(captions.size(), mouseCommandCount);
    for (int index = 0; index < mouseCommandCount; ++index) {
        EXPECT_EQ(captionOf(MouseCommand(index)), captions[index]);
        EXPECT_EQ(goesToJoystick(MouseCommand(index)), targets[index] == u'j');
    }
}

TEST(MouseCommand, WhatItInsertsCompilesAndIsReadBack)
{
    test::Compilation compilation;
    for (const CommandRow &row : commandRows) {
        const Generated made = mouseCommand(row.command, row.fields);
        if (!made)
            continue;
        const QString text = made->text();
        compilation.add(row.startsLine ? text : u"BTN S1 "_s + text);
        const std::optional<ReadMouseCommand> read = readMouseCommand(text);
        ASSERT_TRUE(read) << text.toStdString();
        EXPECT_EQ(read->command, row.command);
        EXPECT_EQ(read->fields.statement, row.fields.statement);
        EXPECT_EQ(read->fields.value, row.fields.value);
        EXPECT_EQ(toldBy(mouseCommand(read->command, read->fields)), text);
    }
    EXPECT_EQ(compilation.count(), 13);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(MouseCommand, IsReadInAnyCaseAndFromNothingElse)
{
    EXPECT_EQ(readMouseCommand(u"btn t1 /i/h mouse_rb /o/h mouse_lb Rem")->fields.statement, 1);
    EXPECT_EQ(readMouseCommand(u"use zero_mouse")->command, ZeroMouse);
    expectUnread(readMouseCommand,
                 { u""_s, u"BTN T1 MOUSE_LB"_s, u"BTN T6 /H MOUSE_LB"_s, u"BTN T1 /H MOUSE_LB a"_s,
                   u"MSX()"_s, u"MSZ(5)"_s, u"MSX"_s, u"MSX(5"_s, u"DISABLE THR"_s,
                   u"USE ZERO_MOUSE (1)"_s });
}

} // namespace mouse_tests
