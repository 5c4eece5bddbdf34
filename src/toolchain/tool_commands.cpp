// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_commands.h"

#include <iterator>

namespace zeph {

namespace {

/// In the order of CompilerCommand.
constexpr QStringView compilerSwitches[] = { u"/ZEPH /CO", u"/ZEPH /CD", u"/ZEPH /CE" };

/// In the order of ConfigCommand.
constexpr QStringView configSwitches[] = {
    u"/MODE /ZEPH /BW", u"/MODE /ZEPH /BU",     u"/MODE /ZEPH /NM",     u"/MODE /ZEPH /AW",
    u"/MODE /ZEPH /AU", u"/MODE /ZEPH /AU /BU", u"/MODE /ZEPH /AW /BW", u"/MODE /ZEPH /EB",
    u"/MODE /ZEPH /CM", u"/MODE /ZEPH /RS",
};
static_assert(std::size(configSwitches) == size_t(ConfigCommand::ResetCougar) + 1);

} // namespace

Launch compilerLaunch(const Paths &paths, CompilerCommand command, const QString &file)
{
    const QString arguments = compilerSwitches[size_t(command)].toString() + u" \""_s + file + u'"';
    return { paths.compiler(), arguments, paths.hotasFolder, WindowStyle::NormalFocus };
}

Launch configLaunch(const Paths &paths, ConfigCommand command)
{
    return { paths.config(), configSwitches[size_t(command)].toString(), paths.hotasFolder,
             WindowStyle::NormalFocus };
}

Launch profileLaunch(const Paths &paths, const QString &profile, bool manualCalibration)
{
    const QString arguments =
        u"/MODE /ZEPH /P\""_s + profile + u".tmc\" "_s + (manualCalibration ? u"/DM"_s : u"/DA"_s);
    return { paths.config(), arguments, paths.hotasFolder, WindowStyle::NormalFocus };
}

Launch toolLaunch(const Paths &paths, QStringView program, QStringView arguments)
{
    return { paths.hotasFolder + program.toString(), arguments.toString(), paths.hotasFolder,
             WindowStyle::NormalFocus };
}

} // namespace zeph
