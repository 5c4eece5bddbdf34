// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/analogue_axis.h"

#include <gtest/gtest.h>

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace analogue_axis_test {

namespace {

using Curve = CurveFields::Form;
using Trim = TrimFields::Type;
using Reverse = ReverseFields::Form;

// What is expected of one set of fields: the text, or for a refusal its title.
struct Row {
    Generated generated;
    QString expected;
    bool startsLine = false;
};

void expectRows(const QList<Row> &rows)
{
    for (int index = 0; index < rows.size(); ++index) {
        const Row &row = rows[index];
        const Generated &generated = row.generated;
        EXPECT_EQ(generated ? generated->text() : generated.error().title, row.expected) << index;
        if (generated) {
            EXPECT_EQ(generated->startsLine, row.startsLine) << row.expected.toStdString();
        }
    }
}

Generated use(const QString &axis, const QString &value)
{
    return generateCurve({ .form = Curve::Configuration, .axis = axis, .value = value });
}

Generated curve(int slash, bool begins, const QString &axis, const QString &value)
{
    return generateCurve({ .form = Curve::Curve,
                           .axis = axis,
                           .value = value,
                           .slash = slash,
                           .beginsWithCurve = begins });
}

Generated button(int event, const QString &axis, const QString &value)
{
    return generateCurve({ .form = Curve::Button, .axis = axis, .value = value, .event = event });
}

Generated trim(Trim type, const QString &axis, const QString &value, bool isNegative = false)
{
    return generateTrim({ .type = type, .axis = axis, .value = value, .isNegative = isNegative });
}

Generated lock(const QString &axis, const QString &value, bool toLast = false)
{
    return generateLock({ .axis = axis, .toLastValue = toLast, .value = value });
}

Generated range(bool use, const QString &from, const QString &to)
{
    return generateThrottleRange({ .isConfiguration = use, .from = from, .to = to });
}

const QString missing = u"Missing some text buddy"_s;

} // namespace

TEST(Curve, WritesEachFormAndHoldsItsLimits)
{
    const QString wrong = u"Ooops!"_s;
    expectRows({
        { use(u"JOYSTICK"_s, u"-2"_s), u"USE CURVE (JOYSTICK, -2)"_s, true },
        { use(u"THR"_s, u"32"_s), u"USE CURVE (THR, 32)"_s, true },
        { use(u"THR"_s, u"33"_s), wrong },
        { use(u"THR"_s, u"-32"_s), u"USE CURVE (THR, -32)"_s, true },
        { use(u"THR"_s, u"-33"_s), wrong },
        { use(u"THR"_s, u"32.4"_s), u"USE CURVE (THR, 32.4)"_s, true },
        { use(u"THR"_s, u"32.6"_s), wrong },
        { use(u"THR"_s, u"-32.5"_s), u"USE CURVE (THR, -32.5)"_s, true },
        { use(u"THR"_s, u"70000"_s), wrong },
        { use(u"THR"_s, u"-99999999999"_s), wrong },
        { use(u"THR"_s, {}), u"USE CURVE (THR, 0)"_s, true },
        { use(u"THR"_s, u"steep"_s), u"USE CURVE (THR, steep)"_s, true },
        { use({}, u"1"_s), missing },
        { curve(0, true, u"THR"_s, u"4"_s), u"CURVE /U (THR, 4)"_s, true },
        { curve(1, true, u"THR"_s, u"4"_s), u"CURVE /M (THR, 4)"_s, true },
        { curve(2, true, u"THR"_s, u"4"_s), u"CURVE /D (THR, 4)"_s, true },
        { curve(3, true, u"THR"_s, u"4"_s), u"CURVE /I (THR, 4)"_s, true },
        { curve(4, false, u"THR"_s, u"0"_s), u"/O (THR, 0)"_s },
        { curve(4, false, u"THR"_s, {}), u"/O (THR, 0)"_s },
        { curve(3, true, u"THR"_s, u"33"_s), wrong },
        { button(0, u"RNG"_s, u"2"_s), u"/P CURVE (RNG, 2)"_s },
        { button(1, u"RNG"_s, u"2"_s), u"/R CURVE (RNG, 2)"_s },
        { button(2, u"RNG"_s, u"2"_s), u"/T CURVE (RNG, 2)"_s },
        { button(3, u"RNG"_s, u"2"_s), u"CURVE (RNG, 2)"_s },
        { button(3, u"RNG"_s, u"-32"_s), u"CURVE (RNG, -32)"_s },
        { button(3, u"RNG"_s, u"-33"_s), wrong },
        { button(0, u"RNG"_s, u"33"_s), wrong },
        { button(0, u"RNG"_s, {}), u"/P CURVE (RNG, 0)"_s },
        { button(0, {}, u"2"_s), missing },
        { curve(0, false, u"MICROSTICK"_s, u"-32"_s), u"/U (MICROSTICK, -32)"_s },
        { curve(0, false, u"MICROSTICK"_s, u"-33"_s), wrong },
        { curve(1, false, u"THR"_s, u"32"_s), u"/M (THR, 32)"_s },
        { curve(2, false, u"THR"_s, u"4"_s), u"/D (THR, 4)"_s },
        { curve(3, false, u"THR"_s, u"4"_s), u"/I (THR, 4)"_s },
        { curve(4, true, u"THR"_s, u"4"_s), u"CURVE /O (THR, 4)"_s, true },
        { curve(0, true, {}, u"4"_s), missing },
    });
    EXPECT_EQ(use(u"THR"_s, u"33"_s).error().text,
              u"The curve value you have entered is invalid. It must lie between -32 and 32."_s);
}

TEST(Curve, ThirtyTwoIsAcceptedAndThirtyThreeRefusedOnBothSides)
{
    EXPECT_TRUE(use(u"THR"_s, u"32"_s));
    EXPECT_TRUE(use(u"THR"_s, u"-32"_s));
    EXPECT_FALSE(use(u"THR"_s, u"33"_s));
    EXPECT_FALSE(use(u"THR"_s, u"-33"_s));
}

TEST(Trim, A127IsAcceptedAnd128AndNegativeValuesRefused)
{
    EXPECT_TRUE(trim(Trim::Fixed, u"THR"_s, u"127"_s));
    EXPECT_FALSE(trim(Trim::Fixed, u"THR"_s, u"128"_s));
    EXPECT_TRUE(trim(Trim::Add, u"THR"_s, u"-5"_s).error().text.contains(u"too small"));
}

TEST(Trim, AFixedZeroHasNoSign)
{
    EXPECT_EQ(trim(Trim::Fixed, u"THR"_s, u"0"_s, true)->text(), u"TRIM (THR, 0)"_s);
}

TEST(Trim, AnEmptyValueIsAddedAsZero)
{
    EXPECT_EQ(trim(Trim::Add, u"THR"_s, {}, true)->text(), u"TRIM (THR, 0)"_s);
}

TEST(ThrottleRange, EqualValuesAreRefused)
{
    EXPECT_FALSE(range(true, u"50"_s, u"50"_s));
    EXPECT_TRUE(range(true, u"49"_s, u"50"_s));
}

TEST(Trim, WritesEachTypeAndHoldsItsLimits)
{
    const QString wrong = u"Incorrect trim value buddy"_s;
    expectRows({
        { trim(Trim::Add, u"JOYY"_s, u"2"_s), u"TRIM (JOYY, 2+)"_s },
        { trim(Trim::Add, u"JOYY"_s, u"2"_s, true), u"TRIM (JOYY, 2-)"_s },
        { trim(Trim::Add, u"JOYY"_s, {}), u"TRIM (JOYY, 0)"_s },
        { trim(Trim::Add, u"JOYY"_s, u"0"_s, true), u"TRIM (JOYY, 0)"_s },
        { trim(Trim::Add, u"JOYY"_s, u"00"_s, true), u"TRIM (JOYY, 00-)"_s },
        { trim(Trim::Add, u"JOYY"_s, u"127"_s), u"TRIM (JOYY, 127+)"_s },
        { trim(Trim::Add, u"JOYY"_s, u"128"_s), wrong },
        { trim(Trim::Add, u"JOYY"_s, u"-5"_s), wrong },
        { trim(Trim::Fixed, u"RDDR"_s, u"2"_s, true), u"TRIM (RDDR, -2)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"2"_s), u"TRIM (RDDR, 2)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"0"_s, true), u"TRIM (RDDR, 0)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"00"_s, true), u"TRIM (RDDR, -00)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"127"_s, true), u"TRIM (RDDR, -127)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"127.5"_s), wrong },
        { trim(Trim::Fixed, u"RDDR"_s, u"127.4"_s), u"TRIM (RDDR, 127.4)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"-1"_s), wrong },
        { trim(Trim::Fixed, u"RDDR"_s, u"-0.4"_s), u"TRIM (RDDR, -0.4)"_s },
        { trim(Trim::Fixed, u"RDDR"_s, u"128"_s), wrong },
        { trim(Trim::Fixed, u"RDDR"_s, {}, true), u"TRIM (RDDR, 0)"_s },
        { trim(Trim::Add, {}, u"2"_s), missing },
        { trim(Trim::ToCurrent, u"JOYSTICK"_s, u"n/a"_s), u"TRIM (JOYSTICK, TO_CURRENT)"_s },
        { trim(Trim::ToCurrent, u"JOYSTICK"_s, u"999"_s), u"TRIM (JOYSTICK, TO_CURRENT)"_s },
        { trim(Trim::ToCurrent, u"JOYSTICK"_s, u"0"_s), u"TRIM (JOYSTICK, 0)"_s },
        { trim(Trim::Remove, u"JOYY"_s, u"0"_s), u"TRIM (JOYY, 0)"_s },
        { trim(Trim::Remove, u"JOYY"_s, u"5"_s, true), u"TRIM (JOYY, 0)"_s },
        { trim(Trim::Hold, u"JOYSTICK"_s, u"n/a"_s), u"HOLDTRIM (JOYSTICK) "_s },
        { trim(Trim::Hold, u"JOYSTICK"_s, u"0"_s), u"HOLDTRIM (JOYSTICK) "_s },
        { trim(Trim::Hold, {}, u"0"_s), missing },
    });
}

TEST(Trim, SaysWhetherAValueIsTooLargeOrTooSmall)
{
    EXPECT_EQ(trim(Trim::Fixed, u"JOYY"_s, u"128"_s).error().text,
              u"The trim value you've entered is too large - it must lie within the range -127 to "
              "127. Note that if you added a '+' or '-' sign to the value, you don't need to."_s);
    EXPECT_EQ(trim(Trim::Add, u"JOYY"_s, u"-5"_s).error().text,
              u"The trim value you've entered is too small - it must lie within the range -127 to "
              "127. Note that if you added a '+' or '-' sign to the value, you don't need to."_s);
}

TEST(Trim, TheBoxFollowsTheOption)
{
    using enum TrimValueBox::Sign;
    EXPECT_EQ(trimValueBox(Trim::Add, u"5"_s), (TrimValueBox{ u"5"_s, true, After }));
    EXPECT_EQ(trimValueBox(Trim::Add, u"n/a"_s), (TrimValueBox{ u"0"_s, true, After }));
    EXPECT_EQ(trimValueBox(Trim::Fixed, u"5"_s), (TrimValueBox{ u"5"_s, true, Before }));
    EXPECT_EQ(trimValueBox(Trim::Fixed, u"n/a"_s), (TrimValueBox{ u"0"_s, true, Before }));
    EXPECT_EQ(trimValueBox(Trim::ToCurrent, u"5"_s), (TrimValueBox{ u"n/a"_s, false, None }));
    EXPECT_EQ(trimValueBox(Trim::Remove, u"5"_s), (TrimValueBox{ u"0"_s, false, None }));
    EXPECT_EQ(trimValueBox(Trim::Hold, {}), (TrimValueBox{ u"n/a"_s, false, None }));
}

TEST(AnalogueAxis, WritesDisableLockSwapAndReverse)
{
    expectRows({
        { generateDisable(u"TOEBRAKES"_s), u"DISABLE TOEBRAKES"_s, true },
        { generateDisable({}), missing },
        { lock(u"THR"_s, u"50"_s), u"LOCK (THR, 50%)"_s },
        { lock(u"THR"_s, {}), u"LOCK (THR, 0%)"_s },
        { lock(u"THR"_s, u"50.5"_s), u"LOCK (THR, 50.5%)"_s },
        { lock(u"THR"_s, {}, true), u"LOCK (THR, LASTVALUE)"_s },
        { lock({}, u"50"_s), missing },
        { lock({}, {}, true), missing },
        { generateLock({ .unlocks = true }), missing },
        { generateDisable(u"THR"_s), u"DISABLE THR"_s, true },
        { generateLock({ .unlocks = true, .axis = u"THR"_s, .value = u"9"_s }), u"UNLOCK (THR)"_s },
        { generateLock({ .unlocks = true, .axis = u"THR"_s, .toLastValue = true }),
          u"UNLOCK (THR)"_s },
        { generateSwap({ true, u"JOYX"_s, u"RDDR"_s }), u"USE SWAP (JOYX, RDDR)"_s, true },
        { generateSwap({ false, u"ROTARIES"_s, u"JOYSTICK"_s }), u"SWAP (ROTARIES, JOYSTICK)"_s },
        { generateSwap({ false, u"JOYX"_s, {} }), missing },
        { generateSwap({ true, {}, u"JOYX"_s }), missing },
        { generateReverse({ Reverse::Configuration, u"THR"_s }), u"USE REVERSE (THR)"_s, true },
        { generateReverse({ Reverse::Reverse, u"THR"_s }), u"REVERSE (THR)"_s },
        { generateReverse({ Reverse::Forward, u"MICROSTICK"_s }), u"FORWARD (MICROSTICK)"_s },
        { generateReverse({ Reverse::Forward, {} }), missing },
    });
}

TEST(AnalogueAxis, TheBoxesOfLockFollowItsChoices)
{
    EXPECT_EQ(lockBoxes({ .value = u"5"_s }), (LockBoxes{ true, true, u"5"_s }));
    EXPECT_EQ(lockBoxes({ .toLastValue = true, .value = u"5"_s }), (LockBoxes{ true, false, {} }));
    EXPECT_EQ(lockBoxes({ .unlocks = true, .value = u"5"_s }), (LockBoxes{ false, false, u"5"_s }));
}

TEST(AnalogueAxis, APairIsSwappedWithAPairOnly)
{
    const auto partners = [](QStringView axis) {
        QStringList names;
        for (const QStringView name : swapPartners(axis))
            names.append(name.toString());
        return names.join(u' ');
    };
    const QString pairs = u"JOYSTICK ROTARIES TOEBRAKES MICROSTICK"_s;
    const QString single = u"JOYX JOYY THR ANT RNG RDDR LBRK RBRK MIX MIY"_s;
    for (size_t index = 0; index < analogueAxes.size(); ++index) {
        const bool isPair = index == 2 || index == 6 || index == 10 || index == 13;
        EXPECT_EQ(partners(analogueAxes[index]), isPair ? pairs : single) << index;
    }
    EXPECT_EQ(partners({}), single);
}

TEST(ThrottleRange, TheSecondValueHasToBeGreater)
{
    const QString wrong = u"This statement will fail to compile buddy"_s;
    expectRows({
        { range(false, u"0"_s, u"90"_s), u"THR_RANGE (0%, 90%)"_s },
        { range(true, u"0"_s, u"90"_s), u"USE THR_RANGE (0%, 90%)"_s, true },
        { range(true, u"89"_s, u"90"_s), u"USE THR_RANGE (89%, 90%)"_s, true },
        { range(true, u"90"_s, u"90"_s), wrong },
        { range(false, u"90"_s, u"90"_s), wrong },
        { range(false, u"91"_s, u"90"_s), wrong },
        { range(false, {}, {}), wrong },
        { range(false, u"a"_s, u"b"_s), wrong },
        { range(false, u"10"_s, {}), wrong },
        { range(false, {}, u"10"_s), u"THR_RANGE (0%, 10%)"_s },
        { range(false, u"89.6"_s, u"90.4"_s), wrong },
        { range(false, u"0.5"_s, u"90.5"_s), u"THR_RANGE (0.5%, 90.5%)"_s },
    });
    EXPECT_EQ(range(true, u"90"_s, u"90"_s).error().text,
              u"The statement is invalid. The text areas either do not both contain numbers or the "
              "first value is actually greater or equal to the second value. See the help file for "
              "further information."_s);
}

TEST(ThrottleRange, TheSampleIsShownWhateverTheValues)
{
    EXPECT_EQ(throttleRangeText({ true, u"90"_s, u"10"_s }), u"USE THR_RANGE (90%, 10%)"_s);
    EXPECT_EQ(throttleRangeText({ false, u"5"_s, u"6"_s }), u"THR_RANGE (5%, 6%)"_s);
}

TEST(AnalogueAxis, BoxesAreFilledAndExamplesShown)
{
    EXPECT_EQ(filledValue({}), u"0"_s);
    EXPECT_EQ(filledValue(u"5"_s), u"5"_s);
    EXPECT_EQ(curveExample(Curve::Configuration), u"USE CURVE (JOYSTICK, -2)"_s);
    EXPECT_EQ(curveExample(Curve::Curve), u"CURVE /I (THR, 4)\n             /O (THR, 0)"_s);
    EXPECT_EQ(curveExample(Curve::Button),
              u"BTN T6 /P CURVE (RNG, 2)\n               /R CURVE (RNG, 0)"_s);
    EXPECT_EQ(QStringView(trimOptions[size_t(Trim::Hold)].example),
              u"                 BTN S4 HOLDTRIM (JOYSTICK)");
}

TEST(AnalogueAxis, TheListsHaveTheirOrder)
{
    QStringList axes;
    for (const QStringView axis : analogueAxes)
        axes.append(axis.toString());
    EXPECT_EQ(axes.join(u' '),
              u"JOYX JOYY JOYSTICK THR ANT RNG ROTARIES RDDR LBRK RBRK TOEBRAKES MIX MIY "
              "MICROSTICK"_s);
    QStringList disabled;
    for (const QStringView axis : disableableAxes)
        disabled.append(axis.toString());
    EXPECT_EQ(disabled.join(u' '), u"THR ANT RNG ROTARIES RDDR LBRK RBRK TOEBRAKES"_s);
}

TEST(ThrottleRange, WhatIsMissingOfTheWizardIsTold)
{
    EXPECT_EQ(noThrottleRangeWizard().title, u"I can't find ThrottleRange.exe buddy"_s);
    EXPECT_EQ(noThrottleRangeValues().title, u"I can't find the wizard's generated data"_s);
    EXPECT_TRUE(
        noThrottleRangeValues().text.endsWith(u"or Klaifi.\n\nExiting this routine now."_s));
}

} // namespace analogue_axis_test
