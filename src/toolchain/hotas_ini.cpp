// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_ini.h"

#include <iterator>
#include <limits>

namespace zeph {

namespace {

constexpr QStringView compilerSection = u"Compiler";
constexpr QStringView modeSection = u"TMMODE";
constexpr QStringView statusKey = u"Status";
constexpr qint16 unknownMode = std::numeric_limits<qint16>::max();

/// A key of the compiler's section and its value when empty; rows are in the order of writing.
struct ClearedKey {
    QStringView key;
    QStringView value;
};

constexpr ClearedKey clearedKeys[] = {
    { u"FileName", u"" },  { statusKey, u"" },      { u"LineNumber", u"0" },  { u"Memory", u"0" },
    { u"ErrorCode", u"" }, { u"CompileTime", u"" }, { u"DownloadTime", u"" },
};

/// The number as 16 bits, or the other value when it does not fit: other programs write the file.
qint16 narrowed(qint32 number, qint16 whenTooLarge)
{
    const bool fits = number >= std::numeric_limits<qint16>::min()
        && number <= std::numeric_limits<qint16>::max();
    return fits ? qint16(number) : whenTooLarge;
}

} // namespace

HotasIni::HotasIni(const QString &path) : m_file(path, ProfileUse::Shared) { }

Expected<void, FileError> HotasIni::clearCompiler() const
{
    QList<ProfileEntry> entries;
    for (const auto &row : clearedKeys) {
        entries.append({ compilerSection.toString(), row.key.toString(), row.value.toString() });
    }
    return m_file.write(entries);
}

CompilerVerdict HotasIni::readCompiler() const
{
    const auto text = [this](QStringView key) {
        return m_file.text(compilerSection, key);
    };
    const auto number = [this](QStringView key) {
        return narrowed(m_file.integer(compilerSection, key, 0), 0);
    };
    CompilerVerdict verdict;
    verdict.FileName = text(u"FileName");
    verdict.Status = text(statusKey);
    verdict.ErrorCode = text(u"ErrorCode");
    verdict.CompileTime = text(u"CompileTime");
    verdict.DownloadTime = text(u"DownloadTime");
    verdict.LineNumber = m_file.integer(compilerSection, u"LineNumber", 0);
    verdict.Memory = number(u"Memory");
    return verdict;
}

QString HotasIni::pollCompiler() const
{
    return m_file.text(compilerSection, statusKey);
}

Expected<void, FileError> HotasIni::clearModeStatus() const
{
    return m_file.write({ modeSection.toString(), statusKey.toString(), QString() });
}

QString HotasIni::pollModeStatus() const
{
    return m_file.text(modeSection, statusKey);
}

Expected<void, FileError> HotasIni::markModeStatus() const
{
    return m_file.write({ modeSection.toString(), statusKey.toString(), u"OKAY"_s });
}

ModeReport HotasIni::readMode() const
{
    const auto number = [this](QStringView key) {
        return narrowed(m_file.integer(modeSection, key, 0), unknownMode);
    };
    return { m_file.text(modeSection, statusKey, u"ERROR"_s), number(u"Axes"), number(u"Buttons") };
}

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
