// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_ini.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;
using zeph::test::TempFolder;

namespace {

class HotasIniTest : public testing::Test
{
protected:
    HotasIni withContent(const QByteArray &content) const
    {
        return HotasIni(folder.write(u"HOTAS.ini"_s, content));
    }
    QByteArray content() const { return folder.read(u"HOTAS.ini"_s); }

    TempFolder folder;
};

} // namespace

TEST_F(HotasIniTest, ClearMakesTheSectionWithTheKeysInTheirOrder)
{
    const HotasIni ini(folder.file(u"HOTAS.ini"_s));
    ASSERT_TRUE(ini.clearCompiler());
    EXPECT_EQ(content(),
              "[Compiler]\r\nFileName=\r\nStatus=\r\nLineNumber=0\r\nMemory=0\r\nErrorCode=\r\n"
              "CompileTime=\r\nDownloadTime=\r\n");
}

TEST_F(HotasIniTest, ClearLeavesUnknownKeysAndSectionsAlone)
{
    const HotasIni ini = withContent("; kept\r\n[Compiler]\r\nStatus=OKAY\r\nVersion=2.1\r\n"
                                     "Memory=7\r\n[Defaults]\r\nPOVhat=2\r\n");
    ASSERT_TRUE(ini.clearCompiler());
    const ProfileFile file(folder.file(u"HOTAS.ini"_s));
    EXPECT_EQ(file.text(u"Compiler", u"Version"), u"2.1");
    EXPECT_EQ(file.text(u"Compiler", u"Status", u"absent"_s), u"");
    EXPECT_EQ(file.text(u"Compiler", u"Memory"), u"0");
    EXPECT_EQ(file.text(u"Defaults", u"POVhat"), u"2");
    EXPECT_TRUE(content().startsWith("; kept\r\n"));
}

TEST_F(HotasIniTest, ReadsAllSevenKeys)
{
    const HotasIni ini = withContent("[Compiler]\nFileName=a.tmj\nStatus=ERROR\n"
                                     "ErrorCode=ERROR 1002: what?\nCompileTime=0.5\n"
                                     "DownloadTime=1,25\nLineNumber=42\nMemory=17\n");
    const CompilerVerdict expected{ u"a.tmj"_s, u"ERROR"_s, u"ERROR 1002: what?"_s,
                                    u"0.5"_s,   u"1,25"_s,  42,
                                    17 };
    EXPECT_EQ(ini.readCompiler(), expected);
}

TEST_F(HotasIniTest, AMissingFileReadsAsNothing)
{
    const HotasIni ini(folder.file(u"HOTAS.ini"_s));
    EXPECT_EQ(ini.readCompiler(), CompilerVerdict());
    EXPECT_EQ(ini.pollCompiler(), u"");
    EXPECT_EQ(ini.pollModeStatus(), u"");
}

TEST_F(HotasIniTest, TextsAreCutToTheirBuffer)
{
    const HotasIni ini =
        withContent("[Compiler]\nErrorCode=" + QByteArray(600, 'x') + "\nStatus=ERROR\n");
    EXPECT_EQ(ini.readCompiler().ErrorCode, QString(499, u'x'));
}

TEST_F(HotasIniTest, NumbersThatDoNotFitSixteenBitsAreNotTrusted)
{
    const HotasIni ini = withContent("[Compiler]\nMemory=32768\n"
                                     "[TMMODE]\nAxes=65536\nButtons=-40000\n");
    EXPECT_EQ(ini.readCompiler().Memory, 0);
    // 65536 would be 0, Windows mode, if its upper half were just dropped.
    EXPECT_GT(ini.readMode().Axes, 1);
    EXPECT_GT(ini.readMode().Buttons, 1);
}

TEST_F(HotasIniTest, ALineNumberMayBeLargerThanSixteenBits)
{
    const HotasIni ini = withContent("[Compiler]\nLineNumber=200000\nMemory=32767\n");
    EXPECT_EQ(ini.readCompiler().LineNumber, 200000);
    EXPECT_EQ(ini.readCompiler().Memory, 32767);
}

TEST_F(HotasIniTest, PollSeesWhatTheToolWroteSinceTheLastPoll)
{
    const HotasIni ini = withContent("[Compiler]\nStatus=\n");
    EXPECT_EQ(ini.pollCompiler(), u"");
    withContent("[Compiler]\nStatus=OKAY\n");
    EXPECT_EQ(ini.pollCompiler(), u"OKAY");
}

TEST_F(HotasIniTest, TheModeSectionIsFoundInAnySpelling)
{
    const HotasIni ini = withContent("[TMMode]\nStatus=OKAY\nAxes=1\nButtons=-1\n");
    EXPECT_EQ(ini.pollModeStatus(), u"OKAY");
    EXPECT_EQ(ini.readMode().Status, u"OKAY");
    EXPECT_EQ(ini.readMode().Axes, 1);
    EXPECT_EQ(ini.readMode().Buttons, -1);
    ASSERT_TRUE(ini.clearModeStatus());
    EXPECT_EQ(content(), "[TMMode]\nStatus=\nAxes=1\nButtons=-1\n");
    ASSERT_TRUE(ini.markModeStatus());
    EXPECT_EQ(content(), "[TMMode]\nStatus=OKAY\nAxes=1\nButtons=-1\n");
}

TEST_F(HotasIniTest, AMissingModeStatusIsAnErrorForTheDisplayAndRunningForTheWait)
{
    const HotasIni ini = withContent("[TMMODE]\nAxes=0\n");
    EXPECT_EQ(ini.readMode().Status, u"ERROR");
    EXPECT_EQ(ini.pollModeStatus(), u"");
    EXPECT_EQ(ini.readMode().Buttons, 0);
}

TEST_F(HotasIniTest, AFolderThatIsNotThereIsToldWithThePath)
{
    const QString path = folder.file(u"gone/HOTAS.ini"_s);
    const auto result = HotasIni(path).clearCompiler();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().path, path);
    EXPECT_FALSE(result.error().reason.isEmpty());
}
