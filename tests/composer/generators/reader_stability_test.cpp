// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Readers get whatever is in a file. What they make of it, their generators write such that it is
// read as the same again.

#include "composer/generators/analogue_axis.h"
#include "composer/generators/axes_config.h"
#include "composer/generators/digital_axis.h"
#include "composer/generators/hat_statements.h"
#include "composer/generators/logic_workbench.h"
#include "composer/generators/mouse_statements.h"
#include "composer/generators/parted_statement.h"
#include "composer/generators/use_insert.h"

#include <gtest/gtest.h>

#include <random>

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace reader_stability_test {

namespace {

const QStringList axisHeads{
    u"THR 1 6"_s,
    u"ANT /I 1 5"_s,
    u"RNG 2 3"_s,
    u"/O 3"_s,
    u"RDDR 3"_s,
    u"THR 4 500"_s,
    u"5 2 (0 50 100)"_s,
    u"THR 5 3 (0 12 12 90)"_s,
    u"MIX 6 3 (0 1 2 3)"_s,
    u"THR /U 6 2 (0 50 100)"_s,
    u"CURVE /I"_s,
    u"USE CURVE"_s,
    u"/P CURVE"_s,
    u"TRIM"_s,
    u"LOCK"_s,
    u"USE SWAP"_s,
    u"USE AXES_CONFIG"_s,
    u"USE THR_RANGE"_s,
    u""_s,
    u"REVERSE"_s,
    u"DISABLE"_s,
    u"BTN S1"_s,
    u"USE AXES_CONFIG (1, RNG), (2, ANT),"_s,
    u"USE THR_RANGE (5%, 95%)"_s,
};
const QStringList axisWords{
    u"a"_s,
    u"Fire"_s,
    u"^"_s,
    u"7"_s,
    u"SHF"_s,
    u"LSHF"_s,
    u"("_s,
    u")"_s,
    u"<"_s,
    u">"_s,
    u"{"_s,
    u"}"_s,
    u"["_s,
    u"]"_s,
    u","_s,
    u"-"_s,
    u"/H"_s,
    u"/O"_s,
    u"KD (a)"_s,
    u"MSX(5)"_s,
    u"{a b}"_s,
    u"FORCE_MACROS"_s,
    u"Rem x"_s,
    u"\n"_s,
    u"\t"_s,
    u"(THR, 4)"_s,
    u"(1, JOYX),"_s,
    u"(2, -JOYY)"_s,
    u"(THR, LASTVALUE)"_s,
    u"(JOYY, 2+)"_s,
    u"(JOYX, RNG)"_s,
    u"(5%, 60%)"_s,
    u"THR"_s,
    u"CURVE"_s,
    u"KU"_s,
    u"DLY(60)"_s,
    u"- FORCE_MACROS"_s,
    u"3"_s,
};

const QStringList useHeads{
    u"USE"_s,
    u"USE HAT1 AS"_s,
    u"USE HAT2 AS MOUSE ("_s,
    u"USE RADIOSWITCH AS KEYPAD -"_s,
    u"USE HAT3 FORCED_CORNERS"_s,
    u"USE MTYPE"_s,
    u"USE MICROSTICK AS MOUSE (11, 2"_s,
    u"USE RNG AS MOUSEZ ("_s,
    u"BTN T1 /H MOUSE_LB"_s,
    u"MSX("_s,
    u"DISABLE"_s,
    u"USE MDEF"_s,
    u"USE RATE ("_s,
    u"RATE (60)"_s,
    u"USE S1 AS DX"_s,
    u"SHIFTBTN ("_s,
    u"USE HAT1_SENSITIVITY ("_s,
    u"USE PROFILE"_s,
    u"USE NULLCHR"_s,
    u"USE ZEPH RUN_APP"_s,
    u"USE ZEPH GRAPHIC"_s,
    u"USE HWSTARTUP ("_s,
    u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_USER, CALIBRATION_MANUAL"_s,
    u"/I"_s,
    u"BTN X1"_s,
    u"DEF X48"_s,
};
const QStringList useWords{
    u"MOUSE"_s,
    u"POV"_s,
    u"KEYPAD"_s,
    u"MOUSEX"_s,
    u"AS"_s,
    u"HAT4"_s,
    u"S4"_s,
    u"T1"_s,
    u"A1"_s,
    u"A5"_s,
    u"(20)"_s,
    u"(11, 2, 1)"_s,
    u"- REVERSE_UD"_s,
    u"REVERSE_LR"_s,
    u", KP5"_s,
    u"NO_BUTTON"_s,
    u"SHIFTBTN"_s,
    u"DX28"_s,
    u"("_s,
    u")"_s,
    u"5)"_s,
    u","_s,
    u"-"_s,
    u"a.tmm"_s,
    u"\"my file\""_s,
    u"(AUTO)"_s,
    u"(CUSTOM)"_s,
    u"WINDOW_STYLE = 2"_s,
    u"WINDOW_STYLE=6"_s,
    u"EMULATION_OFF"_s,
    u"CALIBRATION_AUTO)"_s,
    u"REVERSE_TOGGLES"_s,
    u"S3_LOCK"_s,
    u"ZERO_MOUSE"_s,
    u"MOUSE_RB"_s,
    u"/O /H"_s,
    u"AND"_s,
    u"NOT"_s,
    u"DELAY(5)"_s,
    u"X7"_s,
    u"#"_s,
    u"\t"_s,
    u"\n"_s,
    u"Rem x"_s,
};

/// Statements made of words that may or may not fit each other.
class RandomStatements
{
public:
    RandomStatements(const QStringList &heads, const QStringList &words)
        : m_heads(heads), m_words(words)
    {
    }

    QString next()
    {
        // Most statements begin as one does, and most keys are keys.
        QString text = pick(m_heads) + u' ';
        const int words = pickNumber(pickNumber(14) + 1);
        for (int word = 0; word < words; ++word)
            text += pick(m_words) + (pickNumber(6) == 0 ? u""_s : u" "_s);
        return text;
    }

private:
    int pickNumber(int end) { return int(m_random() % unsigned(end)); }
    const QString &pick(const QStringList &list) { return list[pickNumber(int(list.size()))]; }

    std::mt19937 m_random{ 7 };
    const QStringList m_heads;
    const QStringList m_words;
};

/// Counts the texts that were read and written, so that a test cannot pass without any.
template <typename Fields>
int expectStable(const QString &text, std::optional<Fields> (*read)(QStringView),
                 Generated (*generate)(const Fields &))
{
    const std::optional<Fields> fields = read(text);
    const Generated generated = fields ? generate(*fields) : Generated(Statement());
    if (!fields || !generated)
        return 0;
    const std::optional<Fields> back = read(generated->text());
    if (!back || generate(*back).value_or(Statement()).text() != generated->text())
        ADD_FAILURE() << text.toStdString() << "\n-> " << generated->text().toStdString();
    return 1;
}

std::optional<UseReading> readAnyUse(QStringView statement)
{
    return readUse(statement);
}

Generated generateAnyUse(const UseReading &reading)
{
    return generateUse(reading.insert, reading.fields);
}

Generated generateMouseCommand(const ReadMouseCommand &read)
{
    return mouseCommand(read.command, read.fields);
}

Generated generateLine(const QString &line)
{
    return plainStatement(line, true);
}

} // namespace

TEST(Readers, WhatIsReadFromAnyTextIsWrittenAndReadAsTheSame)
{
    RandomStatements statements(axisHeads, axisWords);
    std::array<int, 7> read{};
    for (int round = 0; round < 60000; ++round) {
        const QString text = statements.next();
        read[0] += expectStable(text, readDigitalAxis, generateDigitalAxis);
        read[1] += expectStable(text, readCurve, generateCurve);
        read[2] += expectStable(text, readTrim, generateTrim);
        read[3] += expectStable(text, readLock, generateLock);
        read[4] += expectStable(text, readSwap, generateSwap);
        read[5] += expectStable(text, readThrottleRange, generateThrottleRange);
        read[6] += expectStable(text, readAxesConfig, generateAxesConfig);
        if (HasFailure())
            return;
    }
    for (const int count : read)
        EXPECT_GT(count, 10);
}

TEST(Readers, WhatIsReadOfHatsMouseFlagsAndUseIsWrittenAndReadAsTheSame)
{
    RandomStatements statements(useHeads, useWords);
    std::array<int, 7> read{};
    for (int round = 0; round < 60000; ++round) {
        const QString text = statements.next();
        read[0] += expectStable(text, readHatStatement, hatStatement);
        read[1] += expectStable(text, readForcedCorners, forcedCorners);
        read[2] += expectStable(text, readMouseType, mouseTypeStatement);
        read[3] += expectStable(text, readAxisAsMouse, axisAsMouse);
        read[4] += expectStable(text, readMouseCommand, generateMouseCommand);
        read[5] += expectStable(text, readAnyUse, generateAnyUse);
        read[6] += expectStable(text, readLogicLine, generateLine);
        if (HasFailure())
            return;
    }
    for (const int count : read)
        EXPECT_GT(count, 10);
}

TEST(Readers, HalvesAndCallsLieInTheirText)
{
    RandomStatements statements(axisHeads, axisWords);
    for (int round = 0; round < 20000; ++round) {
        const QString text = statements.next();
        qsizetype end = 0;
        for (const language::Place &half : statementHalves(text)) {
            ASSERT_GE(half.position, end) << text.toStdString();
            ASSERT_GT(half.length, 0) << text.toStdString();
            end = half.end();
        }
        ASSERT_LE(end, text.size());
        const qsizetype position = round % (text.size() + 1);
        if (const auto call = callAt(text, position)) {
            ASSERT_LE(call->position, position);
            ASSERT_GE(call->end(), position);
            ASSERT_LE(call->end(), text.size());
        }
    }
}

} // namespace reader_stability_test
