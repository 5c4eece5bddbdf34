// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/analogue_axis.h"

#include "compilation.h"

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace analogue_axis_reader_test {

namespace {

class AnalogueAxisStatements : public test::CompiledTest
{
protected:
    // Fails unless the statement gives the same fields again, and has it compiled. `before` is what
    // the file has on the line before a statement that starts none.
    template <typename Fields>
    void expectRoundTrip(const Fields &fields, Generated (*generate)(const Fields &),
                         std::optional<Fields> (*read)(QStringView),
                         const QString &before = u"BTN S1 "_s)
    {
        const Generated generated = generate(fields);
        ASSERT_TRUE(generated);
        const QString text = generated->text();
        compilation.add(generated->startsLine ? text : before + text);
        const std::optional<Fields> back = read(text);
        ASSERT_TRUE(back) << text.toStdString();
        EXPECT_EQ(*back, fields) << text.toStdString();
        EXPECT_EQ(generate(*back)->text(), text);
    }
    void expectTrim(const TrimFields &fields) { expectRoundTrip(fields, generateTrim, readTrim); }
};

const QStringList values{ u"0"_s, u"1"_s, u"31"_s, u"32"_s };

} // namespace

TEST_F(AnalogueAxisStatements, EveryCurveIsAcceptedAndComesBack)
{
    using enum CurveFields::Form;
    const QString first = u"CURVE /U (THR, 1)\n    "_s;
    for (const QStringView axis : analogueAxes) {
        for (const QString &number : values) {
            for (const QString &value : { number, u'-' + number, number + u".4"_s }) {
                const QString name = axis.toString();
                expectRoundTrip<CurveFields>(
                    { .form = Configuration, .axis = name, .value = value }, generateCurve,
                    readCurve);
                for (int slash = 0; slash < int(curveSlashes.size()); ++slash) {
                    for (const bool begins : { true, false })
                        expectRoundTrip<CurveFields>({ .form = Curve,
                                                       .axis = name,
                                                       .value = value,
                                                       .slash = slash,
                                                       .beginsWithCurve = begins },
                                                     generateCurve, readCurve, first);
                }
                for (int event = 0; event < int(curveEvents.size()); ++event)
                    expectRoundTrip<CurveFields>(
                        { .form = Button, .axis = name, .value = value, .event = event },
                        generateCurve, readCurve);
            }
        }
    }
}

TEST_F(AnalogueAxisStatements, EveryTrimIsAcceptedAndComesBack)
{
    using enum TrimFields::Type;
    for (const QStringView axis : analogueAxes) {
        const QString name = axis.toString();
        for (int value = 1; value <= 127; ++value) {
            for (const bool isNegative : { true, false }) {
                for (const TrimFields::Type type : { Add, Fixed })
                    expectTrim({ .type = type,
                                 .axis = name,
                                 .value = QString::number(value),
                                 .isNegative = isNegative });
            }
        }
        expectTrim({ .type = ToCurrent, .axis = name, .value = u"n/a"_s });
        expectTrim({ .type = Remove, .axis = name, .value = u"0"_s });
        expectTrim({ .type = Hold, .axis = name, .value = u"n/a"_s });
    }
}

TEST_F(AnalogueAxisStatements, EveryOtherStatementIsAcceptedAndComesBack)
{
    for (const QStringView axis : analogueAxes) {
        const QString name = axis.toString();
        for (const QString &value : { u"0"_s, u"50"_s, u"99.5"_s, u"100"_s })
            expectRoundTrip<LockFields>({ .axis = name, .value = value }, generateLock, readLock);
        expectRoundTrip<LockFields>({ .axis = name, .toLastValue = true }, generateLock, readLock);
        expectRoundTrip<LockFields>({ .unlocks = true, .axis = name }, generateLock, readLock);
        for (const QStringView other : swapPartners(axis)) {
            for (const bool isConfiguration : { true, false })
                expectRoundTrip<SwapFields>({ isConfiguration, name, other.toString() },
                                            generateSwap, readSwap);
        }
        using enum ReverseFields::Form;
        for (const ReverseFields::Form form : { Configuration, Reverse, Forward })
            expectRoundTrip<ReverseFields>({ form, name }, generateReverse, readReverse);
    }
    for (const QStringView axis : disableableAxes) {
        const QString text = generateDisable(axis.toString())->text();
        compilation.add(text);
        EXPECT_EQ(readDisable(text), axis.toString());
    }
}

TEST_F(AnalogueAxisStatements, EveryThrottleRangeIsAcceptedAndComesBack)
{
    for (int from = 0; from < 100; from += 3) {
        for (int to = from + 1; to <= 100; to += 7) {
            for (const bool isConfiguration : { true, false })
                expectRoundTrip<ThrottleRangeFields>(
                    { isConfiguration, QString::number(from), QString::number(to) },
                    generateThrottleRange, readThrottleRange, {});
        }
    }
}

TEST(AnalogueAxisReader, CaseBlanksAndSignsDoNotMatter)
{
    EXPECT_EQ(readCurve(u"use curve( thr ,4 )")->axis, u"THR"_s);
    EXPECT_EQ(readCurve(u"curve /i (thr,4)")->slash, 3);
    EXPECT_EQ(readCurve(u"/t curve (rng, 2)")->event, 2);
    EXPECT_EQ(readTrim(u"trim (joyy, to_current)")->type, TrimFields::Type::ToCurrent);
    EXPECT_EQ(*readTrim(u"TRIM (JOYY, +5)"),
              (TrimFields{ TrimFields::Type::Fixed, u"JOYY"_s, u"5"_s, false }));
    EXPECT_EQ(readLock(u"LOCK (THR, 50)")->value, u"50"_s);
    EXPECT_TRUE(readLock(u"lock (thr, lastvalue)")->toLastValue);
    EXPECT_EQ(readDisable(u"disable rng Rem not used"), u"RNG"_s);
    EXPECT_EQ(readThrottleRange(u"THR_RANGE (5, 95)")->to, u"95"_s);
}

TEST(AnalogueAxisReader, WhatThePagesCannotWriteIsNotRead)
{
    for (const QStringView text :
         { u"", u"USE CURVE (THR)", u"USE CURVE (FLAPS, 1)", u"CURVE /P (THR, 1)",
           u"CURVE /I (THR, 4) /O (THR, 0)", u"CURVE (THR, 1) a", u"/H CURVE (THR, 1)",
           u"USE SWAP (JOYX, JOYY)", u"BTN S1 CURVE (THR, 1)", u"BTN S1 /O (THR, 1)",
           u"CURVE /I (THR, 1, 2)" })
        EXPECT_FALSE(readCurve(text)) << text.toUtf8().toStdString();
    for (const QStringView text :
         { u"TRIM (THR)", u"TRIM (FLAPS, 1)", u"HOLDTRIM (JOYX, 1)", u"TRIM (JOYX, 1+) a",
           u"USE TRIM (JOYX, 1)", u"BTN S1 TRIM (JOYX, 1)" })
        EXPECT_FALSE(readTrim(text)) << text.toUtf8().toStdString();
    for (const QStringView text : { u"DISABLE JOYX", u"DISABLE", u"DISABLE THR RNG", u"THR" })
        EXPECT_FALSE(readDisable(text)) << text.toUtf8().toStdString();
    for (const QStringView text : { u"LOCK (THR)", u"UNLOCK (THR, 5)", u"LOCK (FLAPS, 5%)" })
        EXPECT_FALSE(readLock(text)) << text.toUtf8().toStdString();
    for (const QStringView text : { u"SWAP (JOYX)", u"SWAP (JOYX, ROTARIES)",
                                    u"SWAP (ROTARIES, JOYX)", u"USE SWAP (JOYX, FLAPS)" })
        EXPECT_FALSE(readSwap(text)) << text.toUtf8().toStdString();
    for (const QStringView text : { u"USE FORWARD (THR)", u"REVERSE (FLAPS)", u"REVERSE THR" })
        EXPECT_FALSE(readReverse(text)) << text.toUtf8().toStdString();
    for (const QStringView text :
         { u"THR_RANGE (5%)", u"THR 3 a b c", u"USE THR_RANGE 5 6", u"BTN S1 THR_RANGE (5%, 6%)" })
        EXPECT_FALSE(readThrottleRange(text)) << text.toUtf8().toStdString();
}

} // namespace analogue_axis_reader_test
