// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "compiler.h"

#include "source_files.h"

#include "language/checker.h"
#include "language/error_codes.h"
#include "language/file_kinds.h"
#include "language/macro_graph.h"
#include "language/use_forms.h"
#include "platform/core/paths.h"
#include "platform/core/profile_file.h"

#include <QElapsedTimer>

namespace zeph::standin {

using language::operator""_w;

namespace {

constexpr QStringView compilerSection = u"Compiler";
// Readers of HOTAS.ini use a buffer of 500 characters.
constexpr int longestError = 400;

struct CompileRequest {
    QString file;
    bool download = false;
    bool enable = false;
    bool understood = false;
};

struct Verdict {
    bool ok = false;
    QString error;
    int line = 0;
    int memory = 0;
    /// The profile that the file names; empty without one.
    QString profile;
};

CompileRequest requestFrom(const QStringList &arguments)
{
    CompileRequest request;
    bool known = false;
    for (const QString &argument : arguments) {
        const QString upper = argument.toUpper();
        if (upper == u"/CO" || upper == u"/CD" || upper == u"/CE") {
            known = true;
            request.download = upper != u"/CO";
            request.enable = upper == u"/CE";
        } else if (upper != u"/ZEPH") {
            request.file = argument;
        }
    }
    request.understood = known && !request.file.isEmpty();
    return request;
}

Verdict failure(int code, const QString &message, int line)
{
    Verdict verdict;
    verdict.error = u"%1: %2"_s.arg(language::errorHeading(code), message.simplified());
    verdict.error.truncate(longestError);
    verdict.line = line;
    return verdict;
}

Verdict failure(const OrderedError &ordered)
{
    const language::ErrorEntry *entry = language::errorEntry(ordered.code);
    return failure(ordered.code, entry ? entry->title.toString() : u"Ordered by the tester"_s,
                   ordered.line);
}

// The profile in USE PROFILE, without "(AUTO)" or "(CUSTOM)", and with its ending added.
QString profileOf(const language::FilePair &pair)
{
    QString profile;
    for (const language::JoystickStatement &statement : pair.joystick.statements) {
        const bool isProfile = statement.useForm >= 0
            && language::useForms()[size_t(statement.useForm)].head == u"PROFILE"_w;
        if (!isProfile)
            continue;
        profile = pair.joystick.at(statement.tail).toString();
        for (const QStringView mode : { u"(AUTO)"_w, u"(CUSTOM)"_w }) {
            if (profile.endsWith(mode, Qt::CaseInsensitive))
                profile = profile.chopped(mode.size()).trimmed();
        }
        profile = withProfileExtension(profile);
    }
    return profile;
}

Verdict compile(const QString &file, bool sameName)
{
    const QString path = existingPath(nativeSeparators(file));
    if (path.isEmpty())
        return failure(language::UnreadableFile, u"%1 was not found"_s.arg(file), 0);
    const auto sources = readSources(path, sameName);
    if (!sources)
        return failure(language::UnreadableFile,
                       u"%1: %2"_s.arg(sources.error().path, sources.error().reason), 0);
    QList<language::Finding> findings = language::check(sources->pair);
    if (sources->missing)
        findings.append(language::missingMacroFile(*sources->missing));
    if (sources->unreadable)
        findings.append(language::unreadableMacroFile(
            sources->unreadable->path, sources->unreadable->reason, sources->macroNamePlace));
    if (!findings.isEmpty()) {
        // Report the first one in text order, the joystick file's before the macro file's.
        const auto first = std::min_element(findings.begin(), findings.end(),
                                            [](const auto &left, const auto &right) {
                                                return std::pair(left.file, left.place.position)
                                                    < std::pair(right.file, right.place.position);
                                            });
        return failure(first->code, first->message, first->place.line);
    }
    Verdict verdict;
    verdict.ok = true;
    verdict.memory = language::memoryPercent(language::compiledSize(sources->pair));
    verdict.profile = profileOf(sources->pair);
    return verdict;
}

QString seconds(qint64 milliseconds)
{
    return QString::number(double(milliseconds) / 1000, 'f', 2);
}

// The entries for what the Cougar remembers after a download.
QList<ProfileEntry> memoryEntries(const CompileRequest &request, const Verdict &verdict,
                                  const Options &options)
{
    QList<ProfileEntry> entries{ { memorySection.toString(), u"LoadedFile"_s, request.file } };
    if (!verdict.profile.isEmpty())
        entries.append({ memorySection.toString(), u"LoadedProfile"_s, verdict.profile });
    if (request.enable)
        entries.append(
            { modeSection.toString(), u"Buttons"_s, QString::number(options.buttons.value_or(1)) });
    return entries;
}

QList<ProfileEntry> verdictEntries(const CompileRequest &request, const Verdict &verdict,
                                   const QString &compileTime, const QString &downloadTime)
{
    const QString section = compilerSection.toString();
    return {
        { section, u"FileName"_s, request.file },
        { section, u"LineNumber"_s, QString::number(verdict.line) },
        { section, u"Memory"_s, QString::number(verdict.memory) },
        { section, u"ErrorCode"_s, verdict.error },
        { section, u"CompileTime"_s, compileTime },
        { section, u"DownloadTime"_s, downloadTime },
        { section, u"Status"_s, verdict.ok ? u"OK"_s : u"ERROR"_s },
    };
}

QString told(const CompileRequest &request, const Verdict &verdict)
{
    if (!verdict.ok)
        return u"%1 (line %2)"_s.arg(verdict.error).arg(verdict.line);
    const QString what = request.enable ? u"compiled, kept and enabled"_s
        : request.download              ? u"compiled and kept"_s
                                        : u"compiled"_s;
    const QString full = verdict.memory >= 100 ? u": it is full"_s : QString();
    return u"%1: %2, %3% of the memory%4."_s.arg(request.file, what).arg(verdict.memory).arg(full);
}

} // namespace

Outcome runCompiler(const QStringList &arguments, const QString &hotasFolder,
                    const Options &options)
{
    Outcome outcome{ 1, { introduction(u"HOTASCompiler") } };
    const CompileRequest request = requestFrom(arguments);
    const QString found = existingPath(hotasFolder + u"HOTAS.ini"_s);
    const ProfileFile ini(found.isEmpty() ? hotasFolder + u"HOTAS.ini"_s : found,
                          ProfileUse::Shared);
    const bool sameName = ini.integer(u"Defaults", u"MDEFrequired", 1) != 0;

    QElapsedTimer timer;
    timer.start();
    const Verdict verdict = options.fail ? failure(*options.fail)
        : request.understood
        ? compile(request.file, sameName)
        : failure(language::BadCommand, u"There is no joystick file to compile"_s, 0);
    waitFor(options);
    const QString compileTime = seconds(timer.restart());
    if (options.silent) {
        outcome.lines.append(u"No verdict is written, as ordered."_s);
        return outcome;
    }
    QList<ProfileEntry> entries;
    if (verdict.ok && request.download)
        entries = memoryEntries(request, verdict, options);
    entries += verdictEntries(request, verdict, compileTime, seconds(timer.elapsed()));
    if (const auto written = ini.write(entries); !written) {
        outcome.lines.append(u"%1: %2"_s.arg(written.error().path, written.error().reason));
        return outcome;
    }
    outcome.lines.append(told(request, verdict));
    outcome.exitCode = verdict.ok ? 0 : 1;
    return outcome;
}

} // namespace zeph::standin
