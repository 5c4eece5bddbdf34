// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/digital_axis.h"

#include <gtest/gtest.h>

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace digital_axis_test {

namespace {

using Fields = DigitalAxisFields;

Fields steps(const QString &axis, const QString &count, const QString &up, const QString &down,
             const QString &centre = {})
{
    return { .type = 1, .axis = axis, .count = count, .keys = { up, down, centre } };
}

Fields sequence(const QString &axis, const QString &count, const QString &keys)
{
    return { .type = 2, .axis = axis, .count = count, .keys = { keys } };
}

Fields held(const QString &axis, const QString &left, const QString &centre, const QString &right)
{
    return { .type = 3, .axis = axis, .keys = { left, centre, right } };
}

Fields pulsed(const QString &axis, const QString &rate, const QString &left, const QString &centre,
              const QString &right)
{
    return { .type = 4, .axis = axis, .count = rate, .keys = { left, centre, right } };
}

Fields banded(int type, const QString &axis, QStringView count, const QStringList &macros = {})
{
    Bands bands(type);
    EXPECT_FALSE(bands.apply(count));
    for (int index = 0; index < macros.size(); ++index)
        bands.setMacro(index, macros[index]);
    return { .type = type, .axis = axis, .bands = bands };
}

enum Slash { None, Up, Middle, Down, In, Out };

Fields with(Slash slash, Fields fields)
{
    fields.slash = slash;
    return fields;
}

Fields half(Fields fields)
{
    fields.withoutAxis = true;
    return fields;
}

Fields forced(Fields fields)
{
    fields.forceMacros = true;
    return fields;
}

Fields moved(Fields fields, int band, Bands::Side side, int percent)
{
    fields.bands.moveBorder(band, side, percent);
    return fields;
}

struct Row {
    Fields fields;
    QString text;
    bool startsLine = true;
};

const QList<Row> &rows()
{
    using enum Bands::Side;
    static const QList<Row> table{
        // Type 1.
        { steps(u"ANT"_s, u"6"_s, u"Right"_s, u"Left"_s, u"Centre"_s),
          u"ANT 1 6 Right Left Centre "_s },
        { steps(u"JOYX"_s, u"6"_s, u"a"_s, u"b"_s), u"JOYX 1 6 a b  "_s },
        { steps(u"JOYY"_s, u"5"_s, u"a"_s, u"b"_s), u"JOYY 1 5 a b  "_s },
        { forced(steps(u"THR"_s, u"6"_s, u"a"_s, u"b"_s)), u"THR 1 6 a b   - FORCE_MACROS"_s },
        { forced(steps(u"THR"_s, u"6"_s, u"a"_s, u"b"_s, u"c"_s)),
          u"THR 1 6 a b c  - FORCE_MACROS"_s },
        { with(Up, steps(u"RNG"_s, u"6"_s, u"a"_s, u"b"_s, u"c"_s)), u"RNG /U 1 6 a b c "_s,
          false },
        { with(Out, half(steps(u"RNG"_s, u"6"_s, u"a"_s, u"b"_s, u"c"_s))), u" /O 1 6 a b c "_s,
          false },
        { half(steps(u"RNG"_s, u"6"_s, u"a"_s, u"b"_s, u"c"_s)), u" 1 6 a b c "_s, false },
        { steps(u"MIX"_s, u"6 steps"_s, u"a"_s, u"b"_s, u"c"_s), u"MIX 1 6 steps a b c "_s },
        { steps(u"MIX"_s, u"many"_s, u"a"_s, u"b"_s, u"c"_s), u"MIX 1 many a b c "_s },
        { steps(u"MIX"_s, u"4.0"_s, u"a"_s, u"b"_s, u"c"_s), u"MIX 1 4.0 a b c "_s },
        { steps(u"MIX"_s, u"6"_s, u"SHF a"_s, u"KD (b)"_s, u"%1"_s),
          u"MIX 1 6 SHF a KD (b) %1 "_s },
        { steps(u"MIX"_s, u"6"_s, u" Fire "_s, u"b"_s, u"c"_s), u"MIX 1 6  Fire  b c "_s },
        { with(Down, steps(u"LBRK"_s, u"4"_s, u"a"_s, u"b"_s)), u"LBRK /D 1 4 a b  "_s, false },
        { forced(with(In, half(steps(u"LBRK"_s, u"4"_s, u"a"_s, u"b"_s)))),
          u" /I 1 4 a b   - FORCE_MACROS"_s, false },
        { steps(u"MIX"_s, u"0"_s, u"a"_s, u"b"_s, u"c"_s), u"MIX 1 0 a b c "_s },
        { steps(u"MIX"_s, u"-2"_s, u"a"_s, u"b"_s, u"c"_s), u"MIX 1 -2 a b c "_s },
        // Type 2.
        { sequence(u"RNG"_s, u"5"_s, u"a b c d e"_s), u"RNG 2 5 a b c d e"_s },
        { forced(sequence(u"RNG"_s, u"5"_s, u"a b c d e"_s)),
          u"RNG 2 5 a b c d e - FORCE_MACROS"_s },
        { half(sequence(u"RNG"_s, u"5"_s, u"a b c d e"_s)), u" 2 5 a b c d e"_s, false },
        { with(Middle, sequence(u"MIY"_s, u"2"_s, u"a b"_s)), u"MIY /M 2 2 a b"_s, false },
        { forced(with(Down, half(sequence(u"MIY"_s, u"2"_s, u"a b"_s)))),
          u" /D 2 2 a b - FORCE_MACROS"_s, false },
        { sequence(u"LBRK"_s, u"1"_s, u"^"_s), u"LBRK 2 1 ^"_s },
        { forced(half(sequence(u"RNG"_s, u"3"_s, u"a b c"_s))), u" 2 3 a b c - FORCE_MACROS"_s,
          false },
        // Type 3.
        { held(u"RDDR"_s, u"Left"_s, u"^"_s, u"Right"_s), u"RDDR 3 Left ^ Right "_s },
        { with(In, held(u"RDDR"_s, u"Left"_s, u"^"_s, u"Right"_s)), u"RDDR /I 3 Left ^ Right "_s,
          false },
        { with(Out, half(held(u"RDDR"_s, u"Left"_s, u"^"_s, u"Right"_s))), u" /O 3 Left ^ Right "_s,
          false },
        { forced(held(u"RDDR"_s, u"a"_s, u"b"_s, u"c"_s)), u"RDDR 3 a b c "_s },
        { half(held(u"RDDR"_s, u"a"_s, u"b"_s, u"c"_s)), u" 3 a b c "_s, false },
        // Type 4.
        { pulsed(u"RNG"_s, u"500"_s, u"Left"_s, u"Centre"_s, u"Right"_s),
          u"RNG 4 500 Left Centre Right "_s },
        { forced(pulsed(u"RBRK"_s, u"0"_s, u"a"_s, u"^"_s, u"b"_s)), u"RBRK 4 0 a ^ b "_s },
        { with(Up, pulsed(u"RBRK"_s, u"60"_s, u"a"_s, u"^"_s, u"b"_s)), u"RBRK /U 4 60 a ^ b "_s,
          false },
        { half(pulsed(u"RBRK"_s, u"60"_s, u"a"_s, u"^"_s, u"b"_s)), u" 4 60 a ^ b "_s, false },
        { with(In, half(pulsed(u"RBRK"_s, u"60"_s, u"a"_s, u"^"_s, u"b"_s))), u" /I 4 60 a ^ b "_s,
          false },
        // Type 5.
        { banded(5, u"THR"_s, u"3", { u"Idle"_s, u"Cruise"_s, u"Burner"_s }),
          u"THR 5 3 (0 33 67 100) Idle Cruise Burner "_s },
        { banded(5, u"THR"_s, u"1", { u"a"_s }), u"THR 5 1 (0 100) a "_s },
        { banded(5, u"THR"_s, u"1"), u"THR 5 1 (0 100) ^ "_s },
        { banded(5, u"THR"_s, u"2", { u"a"_s }), u"THR 5 2 (0 50 100) a ^ "_s },
        { banded(5, u"THR"_s, u"4"), u"THR 5 4 (0 25 50 75 100) ^ ^ ^ ^ "_s },
        { banded(5, u"THR"_s, u"7"), u"THR 5 7 (0 14 29 43 57 71 86 100) ^ ^ ^ ^ ^ ^ ^ "_s },
        { banded(5, u"THR"_s, u"8"), u"THR 5 8 (0 12 25 38 50 62 75 88 100) ^ ^ ^ ^ ^ ^ ^ ^ "_s },
        { forced(banded(5, u"THR"_s, u"1", { u"a"_s })), u"THR 5 1 (0 100) a  - FORCE_MACROS"_s },
        { with(In, banded(5, u"THR"_s, u"1", { u"a"_s })), u"THR /I 5 1 (0 100) a "_s, false },
        { with(Out, half(banded(5, u"THR"_s, u"1", { u"a"_s }))), u" /O 5 1 (0 100) a "_s, false },
        { moved(banded(5, u"THR"_s, u"2"), 0, Low, 20), u"THR 5 2 (20 50 100) ^ ^ "_s },
        { moved(banded(5, u"THR"_s, u"2"), 1, High, 80), u"THR 5 2 (0 50 80) ^ ^ "_s },
        { moved(banded(5, u"THR"_s, u"3"), 0, High, 99), u"THR 5 3 (0 66 67 100) ^ ^ ^ "_s },
        { half(banded(5, u"THR"_s, u"1", { u"a"_s })), u" 5 1 (0 100) a "_s, false },
        { moved(banded(5, u"THR"_s, u"1"), 0, Low, 100), u"THR 5 1 (99 100) ^ "_s },
        { moved(banded(5, u"THR"_s, u"1"), 0, High, 0), u"THR 5 1 (0 1) ^ "_s },
        // Type 6.
        { banded(6, u"THR"_s, u"4", { u"Throttle_up"_s, u"Throttle_down"_s }),
          u"THR 6 4 (0 25 50 75 100) Throttle_up Throttle_down "_s },
        { banded(6, u"THR"_s, u"3", { u"a"_s, u"b"_s, u"c"_s }),
          u"THR 6 3 (0 33 67 100) a b c "_s },
        { banded(6, u"THR"_s, u"3", { u"a"_s, u"b"_s }), u"THR 6 3 (0 33 67 100) a b "_s },
        { banded(6, u"THR"_s, u"3", { u""_s, u""_s, u"c"_s }), u"THR 6 3 (0 33 67 100) ^ ^ c "_s },
        { banded(6, u"THR"_s, u"2"), u"THR 6 2 (0 50 100) ^ ^ "_s },
        { banded(6, u"THR"_s, u"2", { u"a"_s, u"b"_s, u"c"_s }), u"THR 6 2 (0 50 100) a b "_s },
        { forced(banded(6, u"THR"_s, u"2", { u"a"_s, u"b"_s })),
          u"THR 6 2 (0 50 100) a b  - FORCE_MACROS"_s },
        { forced(banded(6, u"THR"_s, u"3", { u"a"_s, u"b"_s, u"c"_s })),
          u"THR 6 3 (0 33 67 100) a b c  - FORCE_MACROS"_s },
        { half(banded(6, u"THR"_s, u"2", { u"a"_s })), u" 6 2 (0 50 100) a ^ "_s, false },
        { with(Middle, half(banded(6, u"THR"_s, u"2", { u"a"_s, u"b"_s }))),
          u" /M 6 2 (0 50 100) a b "_s, false },
    };
    return table;
}

struct LabelRow {
    QStringView axis;
    QStringView up;
    QStringView down;
    QStringView sequence;
    QStringView left;
    QStringView right;
};

constexpr LabelRow labelRows[] = {
    { u"THR", u"Throttle: Back to Forwards character", u"Throttle: Forwards to Back character",
      u"Characters to generate when the Throttle is moved from Back to Forwards (Idle to Full "
      u"Military Power)",
      u"Throttle Back: Held character", u"Throttle Forwards: Held character" },
    { u"RDDR", u"Left Rudder pedal character", u"Right Rudder pedal character",
      u"Characters to generate when moving the Rudders from left pedal forwards, to right pedal "
      u"forwards",
      u"Left rudder pedal: Held character", u"Right rudder pedal: Held character" },
    { u"MIX", u"Microstick X axis: Left to Right character",
      u"Microstick X axis: Right to Left character",
      u"Characters to generate when the Microstick X axis is moved from Left to Right",
      u"Microstick Left: Held character", u"Microstick Right: Held character" },
    { u"MIY", u"Microstick Y axis: Down to Up character",
      u"Microstick Y axis: Up to Down character",
      u"Characters to generate when the Microstick Y axis is moved from Down to Up",
      u"Microstick Down: Held character", u"Microstick Up: Held character" },
    { u"RBRK", u"Right Toebrake down character", u"Right Toebrake up character",
      u"Characters to generate when the Right Toebrake is depressed",
      u"Right Toebrake Up: Held character", u"Right Toebrake Down: Held character" },
    { u"LBRK", u"Left Toebrake down character", u"Left Toebrake up character",
      u"Characters to generate when the Left Toebrake is depressed",
      u"Left Toebrake Up: Held character", u"Left Toebrake Down: Held character" },
    { u"RNG", u"Range knob: CCW to CW character", u"Range: CW to CCW character",
      u"Characters to generate when rotating the RNG knob from CCW to CW looking face on at the "
      u"knob",
      u"Range knob CCW: Held character", u"Range knob CW: Held character" },
    { u"ANT", u"Antenna knob: CCW to CW character", u"Antenna knob: CW to CCW character",
      u"Characters to generate when rotating the ANT knob from CCW to CW looking face on at the "
      u"knob",
      u"Antenna knob CCW: Held character", u"Antenna knob CW: Held character" },
    { u"JOYY", u"Joystick Y axis: Back to Forwards character",
      u"Joystick Y axis: Forwards to Back character",
      u"Characters to generate when the Joystick Y axis is moved from Back to Forwards",
      u"Joystick Back: Held character", u"Joystick Forwards: Held character" },
    { u"JOYX", u"Joystick X axis: Left to Right character",
      u"Joystick X axis: Right to Left character",
      u"Characters to generate when the Joystick X axis is moved from Left to Right",
      u"Joystick Left: Held character", u"Joystick Right: Held character" },
};

struct RefusedRow {
    Fields fields;
    QString title;
};

} // namespace

TEST(DigitalAxis, WritesWhatTheFieldsTell)
{
    for (const Row &row : rows()) {
        const Generated generated = generateDigitalAxis(row.fields);
        ASSERT_TRUE(generated) << row.text.toStdString();
        EXPECT_EQ(generated->text(), row.text);
        EXPECT_EQ(generated->startsLine, row.startsLine) << row.text.toStdString();
    }
}

TEST(DigitalAxis, RefusesWhatLacksTextAndOddCountsWithACentre)
{
    const QString missing = u"Missing some text buddy"_s;
    const QString odd = u"Bands must be even"_s;
    const QList<RefusedRow> table{
        { steps(u"ANT"_s, {}, u"a"_s, u"b"_s), missing },
        { steps(u"ANT"_s, u"6"_s, {}, u"b"_s), missing },
        { steps(u"ANT"_s, u"6"_s, u"a"_s, {}), missing },
        { steps(u"ANT"_s, u"6"_s, {}, {}, u"c"_s), missing },
        { steps(u"ANT"_s, u"5"_s, u"a"_s, {}, u"c"_s), missing },
        { steps(u"ANT"_s, u"5"_s, u"a"_s, u"b"_s, u"c"_s), odd },
        { steps(u"ANT"_s, u"1"_s, u"a"_s, u"b"_s, u"c"_s), odd },
        { steps(u"ANT"_s, u"6.5"_s, u"a"_s, u"b"_s, u"c"_s), odd },
        { steps(u"ANT"_s, u"7 steps"_s, u"a"_s, u"b"_s, u"c"_s), odd },
        { half(with(Out, steps(u"ANT"_s, u"3"_s, u"a"_s, u"b"_s, u"c"_s))), odd },
        { sequence(u"ANT"_s, {}, u"a b"_s), missing },
        { sequence(u"ANT"_s, u"2"_s, {}), missing },
        { held(u"ANT"_s, {}, u"b"_s, u"c"_s), missing },
        { held(u"ANT"_s, u"a"_s, {}, u"c"_s), missing },
        { held(u"ANT"_s, u"a"_s, u"b"_s, {}), missing },
        { pulsed(u"ANT"_s, {}, u"a"_s, u"b"_s, u"c"_s), missing },
        { pulsed(u"ANT"_s, u"60"_s, {}, u"b"_s, u"c"_s), missing },
        { pulsed(u"ANT"_s, u"60"_s, u"a"_s, {}, u"c"_s), missing },
        { pulsed(u"ANT"_s, u"60"_s, u"a"_s, u"b"_s, {}), missing },
        { { .type = 5, .axis = u"ANT"_s, .bands = Bands(5) }, missing },
        { { .type = 6, .axis = u"ANT"_s, .bands = Bands(6) }, missing },
        { sequence({}, u"2"_s, u"a b"_s), missing },
        // Bands of the other type.
        { { .type = 6, .axis = u"ANT"_s, .bands = banded(5, {}, u"2").bands }, missing },
    };
    for (int index = 0; index < table.size(); ++index) {
        const Generated generated = generateDigitalAxis(table[index].fields);
        ASSERT_FALSE(generated) << index << ": " << generated->text().toStdString();
        EXPECT_EQ(generated.error().title, table[index].title) << index;
    }
}

TEST(DigitalAxis, SaysThatBandsMustBeEven)
{
    const Generated generated =
        generateDigitalAxis(steps(u"ANT"_s, u"5"_s, u"a"_s, u"b"_s, u"c"_s));
    ASSERT_FALSE(generated);
    EXPECT_EQ(generated.error().text,
              u"The number of character/macros (ie. Number of bands) must be even when providing a "
              "centre character buddy"_s);
}

TEST(DigitalAxis, AHalfNeedsNoAxis)
{
    EXPECT_EQ(generateDigitalAxis(half(sequence({}, u"2"_s, u"a b"_s)))->text(), u" 2 2 a b"_s);
}

TEST(DigitalAxis, SixStepsWithoutACentreEndWithTwoBlanks)
{
    const Generated generated = generateDigitalAxis(steps(u"ANT"_s, u"6"_s, u"a"_s, u"b"_s));
    EXPECT_TRUE(generated->text().endsWith(u"b  "_s));
}

TEST(DigitalAxis, AnEvenTypeSixNeverWritesACentre)
{
    Fields fields = banded(6, u"THR"_s, u"4", { u"a"_s, u"b"_s });
    fields.bands.setMacro(Bands::centre, u"c"_s);
    EXPECT_EQ(generateDigitalAxis(fields)->text(), u"THR 6 4 (0 25 50 75 100) a b "_s);
}

TEST(DigitalAxis, OneBandHasTwoBorders)
{
    EXPECT_EQ(generateDigitalAxis(banded(5, u"THR"_s, u"1", { u"a"_s }))->text(),
              u"THR 5 1 (0 100) a "_s);
    EXPECT_EQ(generateDigitalAxis(banded(6, u"THR"_s, u"1", { u"a"_s, u"b"_s, u"c"_s }))->text(),
              u"THR 6 1 (0 100) a b c "_s);
}

TEST(DigitalAxis, TwoBandsMeetInTheMiddle)
{
    EXPECT_EQ(generateDigitalAxis(banded(6, u"THR"_s, u"2", { u"a"_s, u"b"_s }))->text(),
              u"THR 6 2 (0 50 100) a b "_s);
}

TEST(DigitalAxis, TheBordersOfSevenBandsAreRounded)
{
    EXPECT_EQ(generateDigitalAxis(banded(6, u"THR"_s, u"7", { u"a"_s, u"b"_s }))->text(),
              u"THR 6 7 (0 14 29 43 57 71 86 100) a b "_s);
}

TEST(DigitalAxis, FiftyBandsAreWritten)
{
    QString borders;
    QString keys;
    for (int band = 0; band < 50; ++band) {
        borders += QString::number(2 * band) + u' ';
        keys += u"^ "_s;
    }
    EXPECT_EQ(generateDigitalAxis(banded(5, u"THR"_s, u"50"))->text(),
              u"THR 5 50 ("_s + borders + u"100) "_s + keys);
}

TEST(DigitalAxis, ABandWithoutAKeyIsWrittenAsNull)
{
    EXPECT_EQ(generateDigitalAxis(banded(5, u"THR"_s, u"2", { u"a"_s }))->text(),
              u"THR 5 2 (0 50 100) a ^ "_s);
    EXPECT_EQ(generateDigitalAxis(banded(5, u"THR"_s, u"2"))->text(), u"THR 5 2 (0 50 100) ^ ^ "_s);
}

TEST(DigitalAxis, AHalfWithoutAModifierBeginsWithABlankAndADigit)
{
    EXPECT_EQ(generateDigitalAxis(half(sequence(u"RNG"_s, u"5"_s, u"a b c d e"_s)))->text(),
              u" 2 5 a b c d e"_s);
}

TEST(DigitalAxis, AnOddCountWithoutACentreIsAccepted)
{
    EXPECT_TRUE(generateDigitalAxis(steps(u"ANT"_s, u"5"_s, u"a"_s, u"b"_s)));
}

TEST(DigitalAxis, TheListsHaveTheirOrder)
{
    QStringList axes;
    for (const QStringView axis : digitalAxes)
        axes.append(axis.toString());
    EXPECT_EQ(axes.join(u' '), u"JOYX JOYY THR ANT RNG RDDR LBRK RBRK MIX MIY"_s);
    EXPECT_EQ(digitalSlashes[0], u"none");
    EXPECT_EQ(digitalSlashes[5], u"/O");
    EXPECT_EQ(withoutAxisCaption(u"RNG"_s), u"Don't insert with RNG"_s);
}

TEST(DigitalAxis, LabelsFollowAxisAndType)
{
    for (const LabelRow &row : labelRows) {
        const auto expect = [&row](int type, const QString &first, const QString &second) {
            const DirectionLabels labels = directionLabels(type, row.axis);
            EXPECT_EQ(labels.first, first) << type;
            EXPECT_EQ(labels.second, second) << type;
        };
        const auto pulsed = [](QStringView held) {
            return held.toString().replace(u"Held"_s, u"Pulsed"_s);
        };
        const bool isRange = row.axis == u"RNG";
        const QString steppedDown =
            isRange ? u"Range knob: CW to CCW character"_s : row.down.toString();
        expect(1, row.up.toString(), row.down.toString());
        expect(2, row.sequence.toString(), {});
        expect(3, row.left.toString(), row.right.toString());
        expect(4, pulsed(row.left), pulsed(row.right));
        expect(5, {}, {});
        expect(6, u' ' + row.up.toString() + u' ', u' ' + steppedDown + u' ');
    }
    EXPECT_EQ(std::size(labelRows), digitalAxes.size());
    EXPECT_TRUE(directionLabels(1, u"ROTARIES").first.isEmpty());
}

TEST(DigitalAxis, AShiftClickAppendsAMouseStatementAndSelectsItsValue)
{
    const MouseShortcut left = withMouseShortcut(u"a "_s, false);
    EXPECT_EQ(left.text, u"a MSX(value)"_s);
    EXPECT_EQ(left.text.mid(left.selectionStart, left.selectionLength), u"value"_s);
    EXPECT_EQ(left.selectionStart, left.text.size() - 6);
    const MouseShortcut right = withMouseShortcut({}, true);
    EXPECT_EQ(right.text, u"MSY(value)"_s);
    EXPECT_EQ(right.selectionStart, 4);
    EXPECT_EQ(right.selectionLength, 5);
}

} // namespace digital_axis_test
