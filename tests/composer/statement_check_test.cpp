// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_check.h"

#include "platform/core/file_io.h"
#include "text/text_lines.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

/// What is found when a statement goes to the end of a text.
QStringList findings(const QString &text, const QString &statement, const QString &macroText = {})
{
    return findingsOf(landingOf(text, int(text.size()), 0, { { { statement } }, true }), macroText);
}

} // namespace

TEST(Findings, AGoodStatementHasNone)
{
    EXPECT_EQ(findings(QString(), u"BTN S1 a"_s), QStringList());
    EXPECT_EQ(findings(QString(), u"BTN S1 Fire"_s, u"Fire = SPC\n"_s), QStringList());
}

TEST(Findings, AMacroThatDoesNotExist)
{
    const QStringList found = findings(QString(), u"BTN S1 Fire Fire"_s, u"Gun = x\n"_s);
    EXPECT_EQ(found, QStringList{ u"Fire is neither a key nor a macro of the macro file"_s });
}

TEST(Findings, ASecondStatementForTheSameControl)
{
    EXPECT_EQ(findings(u"Rem first\nbtn s1 a\n"_s, u"BTN S1 b"_s),
              QStringList{ u"Line 2 has a statement for S1 already"_s });
    EXPECT_EQ(findings(u"BTN S2 a\n"_s, u"BTN S1 b"_s), QStringList());
}

TEST(Findings, ASecondUseOfTheSameControl)
{
    const QString file =
        u"USE MTYPE A1\nuse hat1 as pov\nUSE  S1  AS DX2\nUSE HAT2_SENSITIVITY (5)\n"
        "USE MIX AS MOUSEX (5, 5)\nUSE HAT3 FORCED_CORNERS\nUSE T1_SENSITIVITY(1)\n"
        "USE RADIOSWITCH AS POV\nUSE X7 AS DX3\n"_s;
    const std::pair<QString, QString> second[] = {
        { u"USE HAT1 AS MOUSE (20)"_s, u"Line 2 has a statement for HAT1 already"_s },
        { u"USE S1 AS DX3"_s, u"Line 3 has a statement for S1 already"_s },
        { u"USE S1 AS SHIFTBTN"_s, u"Line 3 has a statement for S1 already"_s },
        { u"USE HAT2_SENSITIVITY (7)"_s, u"Line 4 has a statement for HAT2_SENSITIVITY already"_s },
        { u"USE MIX AS MOUSEY (2, 2) - REVERSE_DIR"_s,
          u"Line 5 has a statement for MIX already"_s },
        { u"USE HAT3 FORCED_CORNERS"_s, u"Line 6 has a statement for HAT3 already"_s },
        { u"USE T1_SENSITIVITY (2)"_s, u"Line 7 has a statement for T1_SENSITIVITY already"_s },
        { u"USE RADIOSWITCH AS KEYPAD"_s, u"Line 8 has a statement for RADIOSWITCH already"_s },
    };
    for (const auto &[statement, told] : second)
        EXPECT_EQ(findings(file, statement), QStringList{ told });
    for (const QString &first :
         { u"USE HAT2 AS POV"_s, u"USE HAT1 FORCED_CORNERS"_s, u"USE HAT3_SENSITIVITY (5)"_s,
           u"USE S2 AS DX2"_s, u"USE MIY AS MOUSEX (5, 5)"_s, u"BTN S1 a"_s, u"USE RATE (60)"_s,
           u"USE ZEPH RUN_APP a.exe"_s, u"USE"_s })
        EXPECT_EQ(findings(file, first), QStringList()) << first.toStdString();
    const QString twice = u"USE ZEPH RUN_APP a.exe"_s;
    EXPECT_EQ(findings(twice + u'\n', twice), QStringList());
}

TEST(Findings, MistakesElsewhereInTheFileAreNotTold)
{
    EXPECT_EQ(findings(u"BTN S9 a\n"_s, u"BTN S1 b"_s), QStringList());
}

TEST(Findings, AMistakeInTheStatement)
{
    const QStringList found = findings(QString(), u"BTN S9 a"_s);
    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(found[0].contains(u"S9"_s)) << found[0].toStdString();
}

TEST(Findings, TheSamplePairHasNone)
{
    const auto textOf = [](const QString &name) {
        const auto bytes = readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/") + name);
        return documentText(bytes.value_or(QByteArray())).value_or(QString());
    };
    const QString joystick = textOf(u"Sample flight.tmj"_s);
    const QString macroText = textOf(u"Sample flight.tmm"_s);
    int statements = 0;
    int last = -1;
    for (qsizetype at = 0; at >= 0; at = joystick.indexOf(u'\n', at + 1)) {
        const auto read = statementAt(joystick, int(at));
        if (!read || read->start == last) {
            continue;
        }
        last = read->start;
        ++statements;
        EXPECT_EQ(findings(QString(), read->text, macroText), QStringList())
            << read->text.toStdString();
    }
    EXPECT_GT(statements, 40);
}

TEST(StatementAtCaret, IsThatOfTheCaretsLine)
{
    const QString text = u"USE RATE (50)\nBTN S1 /U a\n  /M b Rem two\n\nBTN S2 c"_s;
    const auto rate = statementAt(text, 3);
    ASSERT_TRUE(rate);
    EXPECT_EQ(rate->text, u"USE RATE (50)"_s);
    EXPECT_EQ(rate->start, 0);
    EXPECT_EQ(rate->length, 13);
    // In the second line of a statement.
    const auto button = statementAt(text, 30);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text, u"BTN S1 /U a\n  /M b"_s);
    EXPECT_EQ(button->start, 14);
    EXPECT_FALSE(button->hasComments);
    const auto last = statementAt(text, int(text.size()));
    ASSERT_TRUE(last);
    EXPECT_EQ(last->text, u"BTN S2 c"_s);
}

TEST(StatementAtCaret, CommentsAreLeftOutAndTold)
{
    const auto read = statementAt(u"BTN S1 /U a Rem up\n  /M b"_s, 0);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->text, u"BTN S1 /U a\n  /M b"_s);
    EXPECT_TRUE(read->hasComments);
}

TEST(StatementAtCaret, ThereIsNoneInAnEmptyTextOrACommentsLine)
{
    EXPECT_FALSE(statementAt(QString(), 0));
    EXPECT_FALSE(statementAt(u"Rem BTN S1 a\nBTN S2 b"_s, 4));
}

namespace {

QStringList readableTexts(const QString &joystick, QStringView before)
{
    QStringList texts;
    for (const ReadStatement &read : readableAt(joystick, int(joystick.indexOf(before))))
        texts.append(read.text);
    return texts;
}

} // namespace

TEST(ReadableAtCaret, IsTheStatementAndTheCallAroundTheCaret)
{
    const QString text = u"USE RATE (50)\nBTN S1 /I TRIM (JOYY, 2-) a\n   /O TRIM (JOYY, 2+)"_s;
    EXPECT_EQ(readableTexts(text, u"2-"),
              (QStringList{ u"BTN S1 /I TRIM (JOYY, 2-) a\n   /O TRIM (JOYY, 2+)"_s,
                            u"TRIM (JOYY, 2-)"_s }));
    EXPECT_EQ(readableTexts(text, u"2+").last(), u"TRIM (JOYY, 2+)"_s);
    EXPECT_EQ(readableTexts(text, u"S1").size(), 1);
    const auto call = readableAt(text, int(text.indexOf(u"2+"))).last();
    EXPECT_EQ(text.mid(call.start, call.length), u"TRIM (JOYY, 2+)"_s);
}

TEST(ReadableAtCaret, IsTheHalfOfAnAxisStatement)
{
    const QString text = u"RNG /I 3 a ^ b Rem in\n    /O 3 b ^ a Rem out"_s;
    EXPECT_EQ(readableTexts(text, u"RNG").last(), u"RNG /I 3 a ^ b"_s);
    EXPECT_EQ(readableTexts(text, u"Rem in").last(), u"RNG /I 3 a ^ b"_s);
    EXPECT_EQ(readableTexts(text, u"    /O").last(), u"/O 3 b ^ a"_s);
    EXPECT_EQ(readableTexts(text, u"Rem out").last(), u"/O 3 b ^ a"_s);
    const auto readable = readableAt(text, int(text.indexOf(u"b ^ a")));
    EXPECT_TRUE(readable.first().hasComments);
    EXPECT_FALSE(readable.last().hasComments);
    EXPECT_EQ(readableTexts(u"RNG 3 a ^ b"_s, u"a"), QStringList{ u"RNG 3 a ^ b"_s });
}

TEST(ReadableAtCaret, IsNothingWithoutAStatement)
{
    EXPECT_TRUE(readableAt(QString(), 0).isEmpty());
    EXPECT_TRUE(readableAt(u"Rem TRIM (JOYY, 2+)"_s, 8).isEmpty());
}
