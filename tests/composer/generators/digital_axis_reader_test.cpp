// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/digital_axis.h"
#include "composer/generators/parted_statement.h"

#include "compilation.h"

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace digital_axis_reader_test {

namespace {

using Fields = DigitalAxisFields;

Fields read(QStringView statement)
{
    const std::optional<Fields> fields = readDigitalAxis(statement);
    EXPECT_TRUE(fields) << statement.toUtf8().toStdString();
    return fields.value_or(Fields());
}

QStringList keysOf(const Fields &fields)
{
    return { fields.keys.begin(), fields.keys.end() };
}

QStringList macrosOf(const Bands &bands)
{
    QStringList macros;
    for (int index = 0; index < bands.macros(); ++index)
        macros.append(bands.macro(index));
    return macros;
}

// What the statement needs around it to be a whole file: a half follows its axis.
QString fileWith(const Fields &fields, const QString &text)
{
    if (!fields.withoutAxis)
        return text;
    return fields.slash == 0 ? fields.axis + text : fields.axis + u" /U 3 a ^ b\n"_s + text;
}

class DigitalAxisStatements : public test::CompiledTest
{
protected:
    DigitalAxisStatements() { compilation.setMacros(u"Right = a\nLeft = b\nMid = c\n"_s); }

    // Fails unless the statement comes back with what its text tells, and has it compiled.
    void expectRoundTrip(const Fields &fields)
    {
        const Generated generated = generateDigitalAxis(fields);
        ASSERT_TRUE(generated);
        const QString text = generated->text();
        compilation.add(fileWith(fields, text));
        const std::optional<Fields> back = readDigitalAxis(text);
        ASSERT_TRUE(back) << text.toStdString();
        const Generated again = generateDigitalAxis(*back);
        ASSERT_TRUE(again) << text.toStdString();
        ASSERT_EQ(again->text(), text);
        EXPECT_EQ(back->type, fields.type);
        EXPECT_EQ(back->axis, fields.withoutAxis ? QString() : fields.axis) << text.toStdString();
        EXPECT_EQ(back->withoutAxis, fields.withoutAxis) << text.toStdString();
        EXPECT_EQ(back->slash, fields.slash) << text.toStdString();
        EXPECT_EQ(back->forceMacros, fields.forceMacros && fields.type != 3 && fields.type != 4)
            << text.toStdString();
        EXPECT_EQ(back->count, fields.count) << text.toStdString();
        EXPECT_EQ(keysOf(*back), keysOf(fields)) << text.toStdString();
        EXPECT_EQ(macrosOf(back->bands), macrosOf(fields.bands)) << text.toStdString();
    }

    // Every axis, modifier and option with the type's own fields.
    void expectRoundTrips(Fields fields)
    {
        for (const QStringView axis : digitalAxes) {
            fields.axis = axis.toString();
            for (int slash = 0; slash < int(digitalSlashes.size()); ++slash) {
                fields.slash = slash;
                for (unsigned bits = 0; bits < 4; ++bits) {
                    fields.withoutAxis = (bits & 1) != 0;
                    fields.forceMacros = (bits & 2) != 0;
                    expectRoundTrip(fields);
                }
            }
        }
    }
};

Bands bandsWith(int type, int count, const QStringList &macros)
{
    Bands bands(type);
    EXPECT_FALSE(bands.apply(QString::number(count)));
    for (int index = 0; index < bands.macros() && index < macros.size(); ++index)
        bands.setMacro(index, macros[index]);
    return bands;
}

const QStringList &sampleKeys()
{
    static const QStringList keys{ u"a"_s,          u"Right"_s,   u"SHF a"_s,         u"7"_s,
                                   u"MSX(-5)"_s,    u"KD (a)"_s,  u"{a DLY(60) b}"_s, u"[Fire]"_s,
                                   u"CTL ALT F1"_s, u"Gear/Up"_s, u"THR-Up"_s };
    return keys;
}

} // namespace

TEST_F(DigitalAxisStatements, EveryCombinationOfTypesOneToFourIsAcceptedAndComesBack)
{
    for (const QString &key : sampleKeys()) {
        for (const QString &other : { u"b"_s, u"Left"_s, u"SHF x"_s }) {
            const QList<Fields> types{
                { .type = 1, .count = u"6"_s, .keys = { key, other, u"Mid"_s } },
                { .type = 1, .count = u"5"_s, .keys = { key, other } },
                { .type = 2, .count = u"3"_s, .keys = { key + u' ' + other + u" ^"_s } },
                { .type = 3, .keys = { key, u"^"_s, other } },
                { .type = 4, .count = u"500"_s, .keys = { key, u"Mid"_s, other } },
            };
            for (const Fields &fields : types)
                expectRoundTrips(fields);
        }
    }
}

TEST_F(DigitalAxisStatements, EveryCombinationOfBandsIsAcceptedAndComesBack)
{
    for (const QString &key : sampleKeys()) {
        const QList<Fields> types{
            { .type = 5, .bands = bandsWith(5, 1, { key }) },
            { .type = 5, .bands = bandsWith(5, 3, { key, u""_s, u"b"_s }) },
            { .type = 6, .bands = bandsWith(6, 4, { key, u"b"_s }) },
            { .type = 6, .bands = bandsWith(6, 3, { u""_s, key }) },
            { .type = 6, .bands = bandsWith(6, 3, { u"b"_s, u""_s, key }) },
        };
        for (const Fields &fields : types)
            expectRoundTrips(fields);
    }
}

TEST_F(DigitalAxisStatements, EveryCountIsAcceptedAndComesBackWithEveryBorderMoved)
{
    for (int count = 1; count <= 50; ++count) {
        for (const int type : { 5, 6 }) {
            Fields fields{ .type = type, .axis = u"THR"_s, .bands = bandsWith(type, count, {}) };
            expectRoundTrip(fields);
            for (int band = 0; band < count; ++band) {
                Bands &bands = fields.bands;
                bands.moveBorder(band, Bands::Side::Low, band % 2 == 0 ? 100 : 0);
                expectRoundTrip(fields);
            }
        }
    }
}

TEST_F(DigitalAxisStatements, KeysThatAreBracketsOrModifiersAreAcceptedAndComeBack)
{
    const QStringList keys{ u"("_s, u")"_s, u"<"_s, u">"_s, u"{"_s,  u"}"_s,    u"["_s,   u"]"_s,
                            u","_s, u"-"_s, u"/"_s, u"%"_s, u"%1"_s, u"LSHF"_s, u"RCTL"_s };
    for (const QString &first : keys) {
        for (const QString &last : keys) {
            expectRoundTrip({ .type = 3, .axis = u"RDDR"_s, .keys = { first, u"^"_s, last } });
            expectRoundTrip({ .type = 5,
                              .axis = u"RDDR"_s,
                              .bands = bandsWith(5, 3, { first, last, u"a"_s }) });
        }
    }
}

TEST(DigitalAxisReader, EachFieldIsRead)
{
    Fields fields = read(u"ANT /M 1 6 Right SHF a Centre - FORCE_MACROS");
    EXPECT_EQ(fields.axis, u"ANT"_s);
    EXPECT_EQ(fields.slash, 2);
    EXPECT_EQ(fields.count, u"6"_s);
    EXPECT_EQ(keysOf(fields), (QStringList{ u"Right"_s, u"SHF a"_s, u"Centre"_s }));
    EXPECT_TRUE(fields.forceMacros);
    EXPECT_FALSE(fields.withoutAxis);

    fields = read(u"THR 5 3 (0 20 80 100) Idle ^ Burner");
    EXPECT_EQ(fields.bands.count(), 3);
    EXPECT_EQ(fields.bands.border(1), 20);
    EXPECT_EQ(macrosOf(fields.bands), (QStringList{ u"Idle"_s, u""_s, u"Burner"_s }));

    fields = read(u"/O 6 3 (10 20 80 90) Up ^ Mid");
    EXPECT_TRUE(fields.withoutAxis);
    EXPECT_EQ(fields.slash, 5);
    EXPECT_EQ(fields.bands.type(), 6);
    EXPECT_EQ(macrosOf(fields.bands), (QStringList{ u"Up"_s, u""_s, u"Mid"_s }));
}

TEST(DigitalAxisReader, LinesCommentsAndCaseDoNotMatter)
{
    const Fields fields = read(u"thr /i 5 3 (0, 20, 80, 100) Rem the throttle\n"
                               u"\t\tIdle   Rem slow\n\n     Cruise\n SHF b - force_macros");
    EXPECT_EQ(fields.axis, u"THR"_s);
    EXPECT_EQ(fields.slash, 4);
    EXPECT_EQ(macrosOf(fields.bands), (QStringList{ u"Idle"_s, u"Cruise"_s, u"SHF b"_s }));
    EXPECT_TRUE(fields.forceMacros);
}

TEST(DigitalAxisReader, TheLastKeyTakesTheRest)
{
    EXPECT_EQ(keysOf(read(u"RDDR 3 a ^ b c d")), (QStringList{ u"a"_s, u"^"_s, u"b c d"_s }));
    EXPECT_EQ(macrosOf(read(u"RDDR 5 2 (0 50 100) a b c").bands),
              (QStringList{ u"a"_s, u"b c"_s }));
}

TEST(DigitalAxisReader, BandsWithoutAKeyAreEmpty)
{
    EXPECT_EQ(macrosOf(read(u"RDDR 5 3 (0 20 50 100) a").bands),
              (QStringList{ u"a"_s, u""_s, u""_s }));
}

TEST(DigitalAxisReader, BlanksAroundAKeyAreNotRead)
{
    const Fields fields{ .type = 1,
                         .axis = u"ANT"_s,
                         .count = u"6"_s,
                         .keys = { u" Right "_s, u" Left "_s, u" Mid "_s } };
    EXPECT_EQ(keysOf(read(generateDigitalAxis(fields)->text())),
              (QStringList{ u"Right"_s, u"Left"_s, u"Mid"_s }));
}

TEST(DigitalAxisReader, WhatThePageCannotWriteIsNotRead)
{
    for (const QStringView text : {
             u"",
             u"THR",
             u"BTN S1 a",
             u"USE REVERSE (THR)",
             u"THR 7 a b c",
             u"THR 0 a",
             u"THR a b c",
             u"THR /U /I 3 a ^ b",
             u"THR /P 3 a ^ b",
             u"THR /I 3 a ^ b\n    /O 3 b ^ a",
             u"THR 1 6 a",
             u"THR 1",
             u"THR 2 5",
             u"THR 3 a b",
             u"THR 4 500 a b",
             u"THR 5 3",
             u"THR 5 3 (0 20 100) a b c",
             u"THR 5 3 (0 20.5 80 100) a b c",
             u"THR 5 2 (0 50 40) a b",
             u"THR 5 51 (0 100) a",
             u"THR 5 2 0 50 100 a b",
             u"THR 5 2 {0 50 100} a b",
             u"THR 3 a b c\nTHR 3 a b c",
             u"THR 3 a KD(b c",
         })
        EXPECT_FALSE(readDigitalAxis(text)) << text.toUtf8().toStdString();
}

TEST(DigitalAxisReader, EachHalfOfAStatementIsRead)
{
    const QString text = u"THR /I 3 a ^ b Rem in\n    /O 5 2 (0 50 100) c /H d Rem out"_s;
    const QList<language::Place> halves = statementHalves(text);
    ASSERT_EQ(halves.size(), 2);
    EXPECT_EQ(QStringView(text).sliced(halves[0].position, halves[0].length), u"THR /I 3 a ^ b");
    EXPECT_EQ(QStringView(text).sliced(halves[1].position, halves[1].length),
              u"/O 5 2 (0 50 100) c /H d");
    EXPECT_EQ(halves[1].line, 2);
    EXPECT_EQ(read(QStringView(text).sliced(halves[0].position, halves[0].length)).slash, 4);
    const Fields out = read(QStringView(text).sliced(halves[1].position, halves[1].length));
    EXPECT_EQ(macrosOf(out.bands), (QStringList{ u"c"_s, u"/H d"_s }));
}

} // namespace digital_axis_reader_test
