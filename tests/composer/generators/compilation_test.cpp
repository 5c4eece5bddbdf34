// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "compilation.h"

#include <gmock/gmock.h>

using namespace zeph;
using testing::EndsWith;
using testing::HasSubstr;

// What the generators' tests conclude from its silence is worth what it says here.
TEST(Compilation, TellsOneMistakeAmongThousandsOfStatements)
{
    test::Compilation compilation;
    for (int i = 0; i < 3000; ++i)
        compilation.add(i == 2000 ? u"USE H1U AS DX29"_s : u"BTN S1 /I a\n       /O b"_s);
    EXPECT_EQ(compilation.count(), 3000);
    EXPECT_THAT(compilation.verdict(), EndsWith(": USE H1U AS DX29"));
}

TEST(Compilation, HasTheMacrosThatItIsGiven)
{
    test::Compilation compilation;
    compilation.setMacros(u"Fire = (b\n"_s);
    compilation.add(u"BTN S1 Fire"_s);
    EXPECT_THAT(compilation.verdict(), HasSubstr("ERROR 1013"));
    compilation.setMacros(u"Fire = b\n"_s);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(Compilation, TellsAMacroFileThatIsMissing)
{
    test::Compilation compilation;
    compilation.add(u"USE MDEF Falcon.tmm "_s);
    EXPECT_THAT(compilation.verdict(), HasSubstr("ERROR 1012"));
    compilation.addMacroFile(u"Falcon.tmm"_s);
    EXPECT_EQ(compilation.verdict(), "");
}
