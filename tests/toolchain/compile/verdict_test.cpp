// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/verdict.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const QString file = u"/files/a.tmj"_s;
constexpr bool everywhere = false;
constexpr bool statusBarOnly = true;

CompilerVerdict verdictOf(const QString &status, qint16 line = 0)
{
    CompilerVerdict verdict;
    verdict.Status = status;
    verdict.LineNumber = line;
    verdict.ErrorCode = u"ERROR 1002: Unknown statement"_s;
    verdict.CompileTime = u"0.25"_s;
    verdict.DownloadTime = u"3"_s;
    verdict.Memory = 12;
    return verdict;
}

VerdictTelling compiled(const CompilerVerdict &verdict, bool barOnly = everywhere)
{
    return tellVerdict(verdict, CompilerTask::Compile, file, barOnly);
}

VerdictTelling downloaded(const CompilerVerdict &verdict)
{
    return tellVerdict(verdict, CompilerTask::Download, file, everywhere);
}

} // namespace

TEST(TellVerdict, ASuccessfulCompileIsToldOnThePanelAndInABox)
{
    const VerdictTelling telling = compiled(verdictOf(u"OKAY"_s));
    EXPECT_EQ(telling.panel, u"Compiled successfully. (Memory used: 12%)");
    ASSERT_TRUE(telling.box);
    EXPECT_EQ(telling.box->title, u"File successfully compiled!");
    EXPECT_EQ(telling.box->icon, BoxIcon::Information);
    EXPECT_EQ(telling.box->text,
              u"/files/a.tmj compiled successfully.\n\nCompile time: 0.25s.\nMemory used: 12%");
    EXPECT_FALSE(telling.failed);
    EXPECT_FALSE(telling.showHelp);
}

TEST(TellVerdict, ASuccessfulDownloadTellsItsTimeToo)
{
    EXPECT_EQ(downloaded(verdictOf(u"OKAY"_s)).box->text,
              u"/files/a.tmj compiled successfully.\n\nCompile time: 0.25s.\nDownload time: 3s.\n"
              u"Memory used: 12%");
}

TEST(TellVerdict, AnyStatusButErrorCountsAsSuccess)
{
    for (const QString &status : { u"WARNING"_s, u"error"_s, u"ERRORS"_s, u"0"_s }) {
        EXPECT_FALSE(compiled(verdictOf(status)).failed) << status.toStdString();
    }
}

TEST(TellVerdict, ASuccessWithALineIsSuccessAndHighlightsNothing)
{
    const VerdictTelling telling = compiled(verdictOf(u"OKAY"_s, 7));
    EXPECT_EQ(telling.highlightLine, 0);
    EXPECT_EQ(telling.panel, u"Compiled successfully. (Memory used: 12%)");
}

TEST(TellVerdict, AnErrorWithALineNamesAndHighlightsIt)
{
    const VerdictTelling telling = compiled(verdictOf(u"ERROR"_s, 42));
    EXPECT_EQ(telling.panel,
              u"Compiler reported an error at line 42: ERROR 1002: Unknown statement");
    EXPECT_TRUE(telling.showHelp);
    EXPECT_EQ(telling.highlightLine, 42);
    EXPECT_TRUE(telling.failed);
    EXPECT_FALSE(telling.box);
    EXPECT_EQ(downloaded(verdictOf(u"ERROR"_s, 42)).panel,
              u"Compiler error at line 42: ERROR 1002: Unknown statement");
}

TEST(TellVerdict, AnErrorWithoutALineHighlightsNothing)
{
    const VerdictTelling telling = compiled(verdictOf(u"ERROR"_s));
    EXPECT_EQ(telling.panel,
              u"Compiler reported the following error: ERROR 1002: Unknown statement");
    EXPECT_TRUE(telling.showHelp);
    EXPECT_EQ(telling.highlightLine, 0);
    EXPECT_EQ(downloaded(verdictOf(u"ERROR"_s)).panel,
              u"Compiler error: ERROR 1002: Unknown statement");
}

TEST(TellVerdict, NoStatusIsAnUnknownResultWhateverTheLine)
{
    const VerdictTelling telling = compiled(verdictOf(u""_s, 5));
    EXPECT_EQ(telling.panel, u"");
    ASSERT_TRUE(telling.box);
    EXPECT_EQ(telling.box->title, u"Unknown result");
    EXPECT_EQ(telling.box->icon, BoxIcon::Exclamation);
    EXPECT_EQ(
        telling.box->text,
        u"I didn't get any response from the Compiler when asking it how the compile went. There "
        u"may be a problem. I'm going to exit the compile function and return control to you.");
    EXPECT_EQ(telling.highlightLine, 0);
    EXPECT_TRUE(telling.failed);
    EXPECT_EQ(
        downloaded(verdictOf(u""_s)).box->text,
        u"I didn't get any response from the Compiler when asking it how the download went. There "
        u"may be a problem. I'm going to exit the download function and return control to you.");
}

TEST(TellVerdict, WithTheStatusBarAloneNoWindowComesYetTheLineIsHighlighted)
{
    const VerdictTelling error = compiled(verdictOf(u"ERROR"_s, 3), statusBarOnly);
    EXPECT_FALSE(error.showHelp);
    EXPECT_EQ(error.highlightLine, 3);
    EXPECT_EQ(error.panel, u"Compiler reported an error at line 3: ERROR 1002: Unknown statement");
    const VerdictTelling success = compiled(verdictOf(u"OKAY"_s), statusBarOnly);
    EXPECT_FALSE(success.box);
    EXPECT_EQ(success.panel, u"Compiled successfully. (Memory used: 12%)");
}

TEST(TellVerdict, AnUnknownResultIsToldEvenWithTheStatusBarAlone)
{
    EXPECT_TRUE(compiled(verdictOf(u""_s), statusBarOnly).box);
}
