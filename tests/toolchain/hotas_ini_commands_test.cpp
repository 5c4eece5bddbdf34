// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_ini.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

Paths toolsIn(const QString &folder)
{
    Paths paths;
    paths.hotasFolder = folder;
    return paths;
}

} // namespace

TEST(CompilerLaunch, QuotesTheFileAfterTheSwitches)
{
    const Paths paths = toolsIn(u"/opt/Cougar tools/"_s);
    const Launch launch =
        compilerLaunch(paths, CompilerCommand::Compile, u"/home/me/My files/a.tmj"_s);
    EXPECT_EQ(launch.program, u"/opt/Cougar tools/HOTASCompiler.exe");
    EXPECT_EQ(launch.arguments, u"/ZEPH /CO \"/home/me/My files/a.tmj\"");
    EXPECT_EQ(launch.folder, u"/opt/Cougar tools/");
    EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
}

TEST(CompilerLaunch, HasASwitchForEachCommand)
{
    const Paths paths = toolsIn(u"/t/"_s);
    EXPECT_EQ(compilerLaunch(paths, CompilerCommand::Download, u"a"_s).arguments,
              u"/ZEPH /CD \"a\"");
    EXPECT_EQ(compilerLaunch(paths, CompilerCommand::DownloadAndEnable, u"a"_s).arguments,
              u"/ZEPH /CE \"a\"");
}

TEST(ConfigLaunch, HasTheSwitchesOfEachRequest)
{
    const struct {
        ConfigCommand command;
        QStringView arguments;
    } rows[] = {
        { ConfigCommand::ButtonsWindows, u"/MODE /ZEPH /BW" },
        { ConfigCommand::ButtonsProgrammed, u"/MODE /ZEPH /BU" },
        { ConfigCommand::ReportMode, u"/MODE /ZEPH /NM" },
        { ConfigCommand::AxesWindows, u"/MODE /ZEPH /AW" },
        { ConfigCommand::AxesUserDefined, u"/MODE /ZEPH /AU" },
        { ConfigCommand::AllProgrammed, u"/MODE /ZEPH /AU /BU" },
        { ConfigCommand::PureWindows, u"/MODE /ZEPH /AW /BW" },
        { ConfigCommand::EmptyBuffers, u"/MODE /ZEPH /EB" },
        { ConfigCommand::ClearMemory, u"/MODE /ZEPH /CM" },
        { ConfigCommand::ResetCougar, u"/MODE /ZEPH /RS" },
    };
    const Paths paths = toolsIn(u"/t/"_s);
    for (const auto &row : rows) {
        const Launch launch = configLaunch(paths, row.command);
        EXPECT_EQ(launch.arguments, row.arguments);
        EXPECT_EQ(launch.program, u"/t/HOTASConfig.exe");
        EXPECT_EQ(launch.folder, u"/t/");
        EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
    }
}

TEST(ProfileLaunch, QuotesTheProfilesFileAfterItsSwitch)
{
    const Paths paths = toolsIn(u"/t/"_s);
    const Launch launch = profileLaunch(paths, u"My stick"_s, false);
    EXPECT_EQ(launch.program, u"/t/HOTASConfig.exe");
    EXPECT_EQ(launch.arguments, u"/MODE /ZEPH /P\"My stick.tmc\" /DA");
    EXPECT_EQ(launch.folder, u"/t/");
    EXPECT_EQ(profileLaunch(paths, u"a"_s, true).arguments, u"/MODE /ZEPH /P\"a.tmc\" /DM");
}
