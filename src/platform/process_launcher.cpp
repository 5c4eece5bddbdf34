// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/process_launcher.h"

#include "platform/core/paths.h"
#include "platform/core/stand_in.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <system_error>

#ifdef Q_OS_WIN
#include "platform/windows/windows_launch.h"
#endif

namespace zeph {

namespace {

Unexpected<QString> failure(const QString &path, const QString &reason)
{
    return Unexpected<QString>(path + u": "_s + reason);
}

Unexpected<QString> failure(const QString &path, std::errc code)
{
    return failure(path, QString::fromStdString(std::make_error_code(code).message()));
}

/// The program's file: as named, or by name alone from the system's search path.
QString programFile(const QString &program)
{
    const QString found = existingPath(program);
    if (found.isEmpty() && nameOf(program) == program) {
        return QStandardPaths::findExecutable(program);
    }
    return found;
}

#ifdef Q_OS_WIN

Expected<void, QString> startDetached(const Launch &launch)
{
    const auto refused =
        startOnWindows(launch.program, launch.arguments, launch.folder, int(launch.style));
    return refused ? failure(launch.program, *refused) : Expected<void, QString>();
}

#else

bool isWindowsProgram(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "MZ";
}

/// A path as wine shows the whole file system to its programs. A switch such as "/CE" begins like a
/// path too: what counts is whether there is such a file, or a folder for it.
QString wineWord(const QString &word)
{
    const QString folder = folderOf(word);
    const bool isPath = word.startsWith(u'/')
        && (QFileInfo::exists(word) || (folder.size() > 1 && QFileInfo(folder).isDir()));
    return isPath ? u"Z:"_s + QString(word).replace(u'/', u'\\') : word;
}

/// Where the program came with libraries of its own, the stand-ins need them too, even from a
/// user's copy, which does not know where they are. No other program gets to see them.
void setUpLibraries(QProcess &process, const QString &program)
{
    const QString libraries = carriedLibraries(QCoreApplication::applicationDirPath());
    if (!libraries.isEmpty() && isStandIn(program)) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_LIBRARY_PATH"_s, libraries);
        process.setProcessEnvironment(environment);
    }
}

/// The words with which wine starts a program in a style that it knows; none for the others, and
/// for the ordinary one, which needs no help.
QStringList wineStyle(WindowStyle style)
{
    switch (style) {
    case WindowStyle::MinimisedFocus:
    case WindowStyle::MinimisedNoFocus:
        return { u"start"_s, u"/min"_s, u"/unix"_s };
    case WindowStyle::MaximisedFocus:
        return { u"start"_s, u"/max"_s, u"/unix"_s };
    case WindowStyle::Hidden:
    case WindowStyle::NormalFocus:
    case WindowStyle::NormalNoFocus:
        break;
    }
    return {};
}

/// The words of a command line as they are written, with their quotes, and paths as wine's programs
/// understand them.
QString wineCommandLine(QStringView arguments)
{
    QString line;
    qsizetype start = 0;
    bool inQuotes = false;
    for (qsizetype i = 0; i <= arguments.size(); ++i) {
        const QChar c = i < arguments.size() ? arguments[i] : QChar(u' ');
        inQuotes = inQuotes != (c == u'"');
        if (i < arguments.size() && (inQuotes || c != u' ')) {
            continue;
        }
        const QStringView word = arguments.sliced(start, i - start);
        const bool quoted = word.size() > 1 && word.startsWith(u'"') && word.endsWith(u'"');
        line += quoted ? u'"' + wineWord(word.sliced(1, word.size() - 2).toString()) + u'"'
                       : wineWord(word.toString());
        line += i < arguments.size() ? u" "_s : QString();
        start = i + 1;
    }
    return line;
}

const QString wineLine = u"ZEPH_COMMAND_LINE"_s;

Expected<void, QString> setUpWine(QProcess &process, const QString &program, WindowStyle style,
                                  const QString &arguments)
{
    const QString wine = QStandardPaths::findExecutable(u"wine"_s);
    if (wine.isEmpty()) {
        return failure(
            program,
            u"This is a Windows program, and wine, which could run it, is not installed"_s);
    }
    const QString line = wineCommandLine(arguments);
    const QStringList start = wineStyle(style);
    process.setProgram(wine);
    if (line.contains(u'"') && start.isEmpty()) {
        // Of words that are handed over wine makes a command line with quotes of its own choice.
        // Its command prompt starts a line as it stands in a variable.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(
            wineLine, u"\"%1\" %2"_s.arg(wineWord(QFileInfo(program).absoluteFilePath()), line));
        process.setProcessEnvironment(environment);
        process.setArguments({ u"cmd"_s, u"/c"_s, u'%' + wineLine + u'%' });
        return {};
    }
    process.setArguments(start + QStringList{ program } + splitCommandLine(line));
    return {};
}

Expected<void, QString> startDetached(const Launch &launch)
{
    const QString &program = launch.program;
    QProcess process;
    process.setProgram(program);
    process.setWorkingDirectory(launch.folder);
    process.setArguments(splitCommandLine(launch.arguments));
    if (isWindowsProgram(program)) {
        if (auto ready = setUpWine(process, program, launch.style, launch.arguments); !ready) {
            return ready;
        }
    } else if (!QFileInfo(program).isExecutable() || QFileInfo(program).isDir()) {
        return failure(program, std::errc::permission_denied);
    } else {
        setUpLibraries(process, program);
    }
    process.setStandardInputFile(QProcess::nullDevice());
    if (!process.startDetached()) {
        return failure(program, process.errorString());
    }
    return {};
}

#endif

/// An address as people write it, with or without the scheme before "www.".
QUrl addressOf(const QString &address)
{
    const bool bare = address.startsWith(u"www.", Qt::CaseInsensitive);
    return QUrl(bare ? u"http://"_s + address : address);
}

/// The file that a name in a command means, as the launcher takes it; empty when there is none.
QString commandFile(const QString &name, const QString &folder)
{
    const bool relative = QDir::isRelativePath(nativeSeparators(name));
    const QString path = relative && !folder.isEmpty() ? withClosingSeparator(folder) + name : name;
    const bool bare = !nameOf(name).contains(u'.');
    for (const QString &candidate : { path, path + u".exe"_s }) {
        if ((candidate == path || bare) && fileExists(candidate)) {
            return candidate;
        }
    }
    return {};
}

} // namespace

Launch launchFromCommand(const QString &command, const QString &folder, WindowStyle style)
{
    const QString line = command.trimmed();
    if (line.startsWith(u'"')) {
        const qsizetype close = line.indexOf(u'"', 1);
        const QString name = line.sliced(1, (close < 0 ? line.size() : close) - 1);
        const QString file = commandFile(name, folder);
        return { file.isEmpty() ? name : file,
                 close < 0 ? QString() : line.sliced(close + 1).trimmed(), folder, style };
    }
    for (qsizetype end = 0; end < line.size();) {
        const qsizetype blank = line.indexOf(u' ', end);
        end = blank < 0 ? line.size() : blank;
        const QString file = commandFile(line.first(end), folder);
        if (!file.isEmpty()) {
            return { file, line.sliced(end).trimmed(), folder, style };
        }
        ++end;
    }
    const qsizetype blank = line.indexOf(u' ');
    const qsizetype end = blank < 0 ? line.size() : blank;
    return { line.first(end), line.sliced(end).trimmed(), folder, style };
}

QString carriedLibraries(const QString &executableFolder)
{
    const QString folder = QDir::cleanPath(executableFolder + u"/../lib"_s);
    return QFileInfo::exists(folder + u"/libQt6Core.so.6"_s) ? folder : QString();
}

QStringList splitCommandLine(QStringView arguments)
{
    QStringList words;
    QString word;
    bool inWord = false;
    bool inQuotes = false;
    for (const QChar c : arguments) {
        if (c == u'"') {
            inQuotes = !inQuotes;
            inWord = true;
        } else if (!inQuotes && (c == u' ' || c == u'\t')) {
            if (inWord) {
                words.append(word);
            }
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord) {
        words.append(word);
    }
    return words;
}

bool SystemLauncher::finds(const QString &program) const
{
    const QString file = programFile(program);
    return !file.isEmpty() && QFileInfo(file).isFile();
}

Expected<void, QString> SystemLauncher::start(const Launch &launch)
{
    const QString program = programFile(launch.program);
    if (program.isEmpty()) {
        return failure(launch.program, std::errc::no_such_file_or_directory);
    }
    Launch found = launch;
    found.program = program;
    if (!launch.folder.isEmpty()) {
        found.folder = existingPath(launch.folder);
        if (found.folder.isEmpty()) {
            return failure(launch.folder, std::errc::no_such_file_or_directory);
        }
    }
    return startDetached(found);
}

Expected<void, QString> SystemLauncher::openWithDesktop(const QString &pathOrUrl)
{
    const QString file = existingPath(pathOrUrl);
    const QUrl url = file.isEmpty() ? addressOf(pathOrUrl)
                                    : QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath());
    if (url.isRelative()) {
        return failure(pathOrUrl, std::errc::no_such_file_or_directory);
    }
#ifdef Q_OS_WIN
    const auto refused = openOnWindows(file.isEmpty() ? url.toString(QUrl::FullyEncoded)
                                                      : QFileInfo(file).absoluteFilePath());
    return refused ? failure(pathOrUrl, *refused) : Expected<void, QString>();
#else
    if (!QDesktopServices::openUrl(url)) {
        return failure(pathOrUrl, u"The desktop has no program for this"_s);
    }
    return {};
#endif
}

} // namespace zeph
