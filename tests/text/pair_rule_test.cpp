// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/pair_rule.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

QString nameFor(QStringView text, QStringView joystickName)
{
    return macroNameFor(lastMdefReference(text).value(), joystickName);
}

} // namespace

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
