// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/use_statements.h"

#include <gtest/gtest.h>

using namespace zeph;

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
