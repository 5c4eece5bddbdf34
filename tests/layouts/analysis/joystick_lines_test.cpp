// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/joystick_lines.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

/// The lines that the filter keeps.
QString keptLines(QStringView text)
{
    return AnalyseAndExtract(text)->lines;
}

QString filled(QString box, QStringView text, QStringView search, QStringView prefix)
{
    FillTextBox(box, *AnalyseAndExtract(text), search, prefix);
    return box;
}

} // namespace

TEST(JoystickLines, AnEmptyTextIsNotAnalysed)
{
    EXPECT_FALSE(AnalyseAndExtract(u""));
    EXPECT_TRUE(AnalyseAndExtract(u"\n"));
}

TEST(JoystickLines, TheFileIsAlignedFirst)
{
    const auto file = AnalyseAndExtract(u"Rem top\nBTN S1\t/U  a\n/M b");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->aligned, u"Rem top\nBTN S1 /U a\n       /M b\n");
    EXPECT_EQ(file->lines, u"BTN S1 /U a\n       /M b\n");
}

TEST(JoystickLines, CommentsAndEmptyLinesAreDropped)
{
    EXPECT_EQ(keptLines(u"Rem x\nREM\nremark\n\n \t\n  rem y\nBTN S1 a"), u"BTN S1 a\n");
}

TEST(JoystickLines, FlagDefinitionsAreDroppedAndOtherDefLinesAreKept)
{
    EXPECT_EQ(keptLines(u"DEF X1 S1\nDEFAULT a\nDEF Y\ndef x1 a\nDEF  X2 S2"),
              u"DEFAULT a\nDEF Y\ndef x1 a\n");
}

TEST(JoystickLines, UseAndDisableLinesAreDroppedInExactCaseAlone)
{
    EXPECT_EQ(keptLines(u"USE RATE (50)\nUSED\nDISABLE (THR)\nuse rate (50)\nDisable (THR)"),
              u"use rate (50)\nDisable (THR)\n");
}

TEST(JoystickLines, AUseLineThatAlignmentHasIndentedIsKept)
{
    const auto file = AnalyseAndExtract(u"BTN S1 /U a\nUSE HAT1 AS /U");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->lines, u"BTN S1 /U a\n       USE HAT1 AS /U\n");
    EXPECT_TRUE(file->hats[0].isEmpty());
}

TEST(JoystickLines, ALineThatIsSwitchedOffIsKept)
{
    EXPECT_EQ(keptLines(u"~BTN  S1\ta"), u"~BTN  S1\ta\n");
}

TEST(JoystickLines, HatUsesAreKeptWithTheirBlankAndComment)
{
    const auto file = AnalyseAndExtract(
        u"USE HAT1 AS POV\nUSE HAT4 AS  KEYPAD Rem my keys\nUSE HAT5 AS POV\nUSE HAT3 AS");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->hats, (std::array<QString, 4>{ u" POV"_s, {}, {}, u" KEYPAD Rem my keys"_s }));
}

TEST(JoystickLines, TheLastUseOfAHatWins)
{
    EXPECT_EQ(AnalyseAndExtract(u"USE HAT2 AS POV\nUSE HAT2 AS KEYPAD")->hats[1], u" KEYPAD");
    EXPECT_EQ(AnalyseAndExtract(u"USE HAT2 AS POV\nUSE HAT2 AS")->hats[1], u"");
}

TEST(JoystickLines, RadioSwitchAndMouseTypeAreKept)
{
    const auto file = AnalyseAndExtract(u"USE RADIOSWITCH AS POV Rem x\nUSE MTYPE A3 Rem mouse");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->radio, u" POV Rem x");
    EXPECT_EQ(file->mouseType, 3);
}

TEST(JoystickLines, AMouseTypeIsTheNumberAtTheStart)
{
    const auto type = [](QStringView line) {
        return AnalyseAndExtract(line)->mouseType;
    };
    EXPECT_EQ(type(u"USE MTYPE A"), 0);
    EXPECT_EQ(type(u"USE MTYPE Ax1"), 0);
    EXPECT_EQ(type(u"USE MTYPE A 4"), 4);
    EXPECT_EQ(type(u"USE MTYPE B1"), 0);
    EXPECT_EQ(type(u"USE MTYPE A1\nUSE MTYPE A"), 0);
    EXPECT_GT(type(u"USE MTYPE A99999999999999999999"), 5);
}

TEST(JoystickLines, AStatementRunsToTheNextKeywordAtALinesStart)
{
    for (const QStringView next :
         { u"BTN S2", u"JOYX", u"JOYY", u"THR", u"RDDR", u"RNG", u"ANT", u"MIX", u"MIY", u"LBRK",
           u"RBRK", u"CURVE", u"THR_RANGE", u"ANTENNA" }) {
        const QString text = u"BTN S1 a\nb\n%1\nc"_s.arg(next);
        EXPECT_EQ(filled({}, text, u"BTN S1", u""), u"BTN S1 a\nb") << next.toUtf8().data();
    }
}

TEST(JoystickLines, ALowerCaseKeywordStartsNoStatement)
{
    EXPECT_EQ(filled({}, u"BTN S1 /U a\nbtn s2 b\nThr c\nTHR d", u"BTN S1", u""),
              u"BTN S1 /U a\nbtn s2 b\nThr c");
}

TEST(JoystickLines, TheLastStatementRunsToTheEnd)
{
    EXPECT_EQ(filled({}, u"BTN S1 a\nb\n\nRem x\nc", u"BTN S1", u""), u"BTN S1 a\nb\nc");
}

TEST(JoystickLines, LinesBeforeTheFirstStatementBelongToNone)
{
    EXPECT_EQ(filled({}, u"stray\nBTN S1 a", u"BTN S1", u""), u"BTN S1 a");
    EXPECT_EQ(filled(u"x"_s, u"stray", u"BTN S1", u""), u"x");
}

TEST(JoystickLines, ABoxIsLeftAloneWithoutAHit)
{
    EXPECT_EQ(filled(u"Hat 1"_s, u"BTN S1 a", u"BTN S2", u"x"), u"Hat 1");
}

TEST(JoystickLines, ALineEndGoesBeforeTheStatementWhereOneIsMissing)
{
    EXPECT_EQ(filled(u""_s, u"BTN S1 a", u"BTN S1", u""), u"BTN S1 a");
    EXPECT_EQ(filled(u"x"_s, u"BTN S1 a", u"BTN S1", u""), u"x\nBTN S1 a");
    EXPECT_EQ(filled(u"x\n"_s, u"BTN S1 a", u"BTN S1", u""), u"x\nBTN S1 a");
}

TEST(JoystickLines, ThePrefixTakesThePlaceOfTheSearch)
{
    EXPECT_EQ(filled({}, u"BTN H1U /U Left /D Right", u"BTN H1U", u"U:  "),
              u"U:    /U Left /D Right");
    EXPECT_EQ(filled({}, u"BTN T1 a\nb", u"BTN T1 ", u"p"), u"p a\nb");
}

TEST(JoystickLines, ASearchIsAPlainTestOfALinesStart)
{
    EXPECT_EQ(filled({}, u"THR_RANGE (1 2)\nTHR 1", u"THR", u""), u"THR_RANGE (1 2)");
    EXPECT_EQ(filled({}, u"BTN H1UL a\nBTN H1U b", u"BTN H1U", u"U:  "), u"U:   L a");
    EXPECT_EQ(filled({}, u"btn s1 a\nBTN s1 b", u"BTN S1", u""), u"");
}
