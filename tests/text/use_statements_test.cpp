// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/use_statements.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

QString nameFor(QStringView text, QStringView joystickName)
{
    return macroNameFor(lastMdefReference(text).value(), joystickName);
}

} // namespace

TEST(UseStatements, ValuesAreTrimmedAndCutAtTheComment)
{
    const UseStatements found = readUseStatements(
        u"USE ZEPH GRAPHIC  falcon.bmp  rem the picture\nuse zeph readme notes.txt \n");
    EXPECT_EQ(found.ZephGraphic, u"falcon.bmp");
    EXPECT_EQ(found.ZephReadme, u"notes.txt");
}

TEST(UseStatements, TabsAndRunsOfBlanksCountAsOneBlank)
{
    EXPECT_EQ(readUseStatements(u"\t USE\tZEPH \t GRAPHIC\tfalcon.bmp").ZephGraphic, u"falcon.bmp");
}

TEST(UseStatements, TheLastLineOfAKindWins)
{
    EXPECT_EQ(readUseStatements(u"USE ZEPH README a.txt\nUSE ZEPH README b.txt").ZephReadme,
              u"b.txt");
}

TEST(UseStatements, AProfileLosesItsBracketAndGetsItsExtension)
{
    EXPECT_EQ(readUseStatements(u"USE PROFILE Falcon (AUTO)").ProfileName, u"Falcon.tmc");
    EXPECT_EQ(readUseStatements(u"USE PROFILE Falcon.TMC(CUSTOM)").ProfileName, u"Falcon.TMC");
    EXPECT_EQ(readUseStatements(u"USE PROFILE x rem y").ProfileName, u"x.tmc");
}

TEST(UseStatements, AnotherWordInFrontHidesTheStatement)
{
    EXPECT_EQ(readUseStatements(u"Rem USE ZEPH GRAPHIC falcon.bmp"), UseStatements());
    EXPECT_EQ(readUseStatements(u""), UseStatements());
}

TEST(PairRule, OfTwoStatementsTheLastDecides)
{
    EXPECT_EQ(nameFor(u"USE MDEF first.tmm\nBTN S1 a\nuse mdef second.tmm\n", u"a.tmj"),
              u"second.tmm");
}

TEST(PairRule, ACommentedStatementCanWin)
{
    EXPECT_EQ(nameFor(u"USE MDEF first.tmm\nRem USE MDEF old.tmm", u"a.tmj"), u"old.tmm");
}

TEST(PairRule, ANameWithoutExtensionGetsTheOneThatGoesWithTheJoystickFile)
{
    EXPECT_EQ(nameFor(u"USE MDEF falcon\n", u"a.tmj"), u"falcon.tmm");
    EXPECT_EQ(nameFor(u"USE MDEF falcon\n", u"a.f22"), u"falcon.m22");
}

TEST(PairRule, ACommentIsCutOffANameWithItsExtension)
{
    EXPECT_EQ(nameFor(u"USE MDEF falcon.tmm   REM my macros\n", u"a.tmj"), u"falcon.tmm");
}

TEST(PairRule, WithoutExtensionTheCommentStaysInTheName)
{
    EXPECT_EQ(nameFor(u"USE MDEF falcon rem mine\n", u"a.tmj"), u"falcon rem mine.tmm");
}

TEST(PairRule, ALineWithOnlyACommentGivesAnEmptyReference)
{
    const auto reference = lastMdefReference(u"USE MDEF rem nothing here\n");
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->cut, u"");
}

TEST(PairRule, AStatementAtTheLinesEndTakesNothingOfTheNextLine)
{
    const auto reference = lastMdefReference(u"USE MDEF\nBTN S1 a");
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->wholeLine, u"");
}

TEST(PairRule, ATextWithoutStatementHasNoReference)
{
    EXPECT_FALSE(lastMdefReference(u"BTN S1 a\nUSE  MDEF two blanks.tmm"));
    EXPECT_FALSE(lastMdefReference(u""));
}

TEST(RunAppTail, TheStyleIsTheLastCharacterAfterItsWord)
{
    EXPECT_EQ(runAppTail(u"c:\\a.exe -x").command, u"c:\\a.exe -x");
    EXPECT_EQ(runAppTail(u"c:\\a.exe -x").style, std::nullopt);
    EXPECT_EQ(runAppTail(u"a.exe  WINDOW_STYLE = 4").command, u"a.exe");
    EXPECT_EQ(runAppTail(u"a.exe  WINDOW_STYLE = 4").style, 4);
    EXPECT_EQ(runAppTail(u"a.exe window_style=0").style, 0);
    EXPECT_EQ(runAppTail(u"a.exe WINDOW_STYLE = 5").style, std::nullopt);
    EXPECT_EQ(runAppTail(u"a.exe WINDOW_STYLE").style, std::nullopt);
    EXPECT_EQ(runAppTail(u"WINDOW_STYLE = 1").command, QString());
    EXPECT_EQ(runAppTail(u"").command, QString());
}
