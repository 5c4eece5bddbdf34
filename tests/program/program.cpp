// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/program/program.h"

#include "platform/core/profile_file.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QThread>

#ifdef Q_OS_UNIX
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zeph::test {

namespace {

constexpr int endsWithinMs = 60000;

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator each(from, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString source = each.next();
        const QString target = to + u'/' + QDir(from).relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).path());
        if (!QFile::copy(source, target)) {
            ADD_FAILURE() << "cannot copy " << source.toStdString();
        }
    }
}

#ifdef Q_OS_UNIX

constexpr uid_t nobody = 65534;
const QString executableName = u"zeph"_s;

void setMode(const QString &path, mode_t mode)
{
    EXPECT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

void shareFolders(const QString &home, const QString &folder)
{
    setMode(home, 0777);
    setMode(folder, 0555);
}

void takeBack(const QString &folder)
{
    // So that the folder can be removed.
    setMode(folder, 0755);
}

/// Nobody may write where root can. Others' rights are those of the folder anyway.
void startAsNobody(QProcess &process)
{
    process.setChildProcessModifier([] {
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) {
            ::_exit(1);
        }
    });
}

void startWithLimit(QProcess &process, qsizetype bytes)
{
    process.setChildProcessModifier([limit = rlim_t(bytes)] {
        const rlimit both = { limit, limit };
        ::setrlimit(RLIMIT_FSIZE, &both);
        // Without this the kernel ends the program instead of telling it.
        ::signal(SIGXFSZ, SIG_IGN);
    });
}

void waitForTools(const QString &) { }

const QString recorderEnding;
// A line goes into the file in one piece, so that nobody reads half of one.
const QByteArray recorder = R"(#!/bin/sh
line=$0
for each in "$@"; do line="$line;$each"; done
echo "$line;$(pwd);$CALLSIGN" >> 'RECORD'
)";

#else

const QString executableName = u"zeph.exe"_s;

// Rights of folders and a limit of files' sizes are told in other ways there, and to nobody's
// tests.
void shareFolders(const QString &, const QString &)
{
    ADD_FAILURE() << "no such rights on this system";
}
void takeBack(const QString &) { }
void startAsNobody(QProcess &) { }
void startWithLimit(QProcess &, qsizetype)
{
    ADD_FAILURE() << "no such limit on this system";
}

/// A tool that nobody waited for may still run, and its file cannot be removed until it has ended.
void waitForTools(const QString &folder)
{
    const QDeadlineTimer until(10000);
    while (!QDir(folder).removeRecursively() && !until.hasExpired()) {
        QThread::msleep(20);
    }
}

const QString recorderEnding = u".bat"_s;
const QByteArray recorder = R"(@echo off
set "line=%~f0"
:next
if "%~1"=="" goto end
set "line=%line%;%~1"
shift
goto next
:end
>>"RECORD" echo %line%;%CD%;%CALLSIGN%
)";

#endif

} // namespace

Program::Program() : m_environment(QProcessEnvironment::systemEnvironment())
{
    copyFolder(QStringLiteral(ZEPH_PORTABLE), m_folder.path());
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    m_environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(ZEPH_DRIVER_PLUGINS));
    m_environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"zephdriver"_s);
}

Program::~Program()
{
    if (m_isOthers) {
        takeBack(folder());
    }
    waitForTools(folder());
}

QString Program::executable() const
{
    return file(executableName);
}

QString Program::setting(const QString &section, const QString &key, const QString &name) const
{
    return ProfileFile(file(name)).text(section, key, u"(absent)"_s);
}

void Program::settle(const QByteArray &more)
{
    write(u"Zeph.ini"_s,
          "[FileLocations]\r\nFirstTimeUsed=3\r\nShowTips=0\r\n[Unsupported]\r\nTurnOffFontCheck="
          "1\r\n"
          "CheckForCompletionTime=20\r\nRegainControlAfter=20000\r\n[Miscellaneous]"
          "\r\nMumWindowstate=0\r\nTellStandIn=0\r\n"
              + more);
}

void Program::setPatience(int giveUpAfterMs, int lookEveryMs) const
{
    const QString section = u"Unsupported"_s;
    EXPECT_TRUE(
        ProfileFile(file(u"Zeph.ini"_s))
            .write({ { section, u"RegainControlAfter"_s, QString::number(giveUpAfterMs) },
                     { section, u"CheckForCompletionTime"_s, QString::number(lookEveryMs) } }));
}

void Program::silenceTools()
{
    setEnvironment(u"ZEPH_STANDIN_SILENT"_s, u"1"_s);
    setPatience(900);
}

void Program::setEnvironment(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

QString Program::writeRecorder(const QString &name, const QString &record) const
{
    const QString path = write(name + recorderEnding,
                               QByteArray(recorder).replace("RECORD", file(record).toLocal8Bit()));
    EXPECT_TRUE(
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    return path;
}

QByteArray Program::recorded(const QString &record, int lines) const
{
    const QDeadlineTimer until(10000);
    QByteArray bytes;
    do {
        QThread::msleep(10);
        bytes = exists(record) ? read(record).replace("\r\n", "\n") : QByteArray();
    } while (bytes.count('\n') < lines && !until.hasExpired());
    return bytes;
}

void Program::installForOthers()
{
    shareFolders(m_home.path(), folder());
    setEnvironment(u"HOME"_s, m_home.path());
    m_environment.remove(u"XDG_DATA_HOME"_s);
    m_isOthers = true;
}

std::unique_ptr<QProcess> Program::start(const QStringList &script, const QString &log,
                                         const QStringList &arguments)
{
    const QString path = logFolder().write(log + u".script"_s, script.join(u'\n').toUtf8());
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = m_environment;
    environment.insert(u"ZEPH_SCRIPT"_s, path);
    environment.insert(u"ZEPH_SCRIPT_LOG"_s, logFolder().file(log));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setWorkingDirectory(m_startFolder);
    if (m_isOthers) {
        startAsNobody(*process);
    }
    if (m_fileSizeLimit >= 0) {
        startWithLimit(*process, m_fileSizeLimit);
    }
    process->start(executable(), arguments);
    return process;
}

QStringList Program::noted(const QString &log) const
{
    return QString::fromUtf8(logFolder().read(log)).split(u'\n', Qt::SkipEmptyParts);
}

QStringList Program::run(const QStringList &script, const QStringList &arguments)
{
    const auto process = start(script, u"driver.log"_s, arguments);
    if (!process->waitForFinished(endsWithinMs)) {
        ADD_FAILURE() << "the program did not end";
        process->kill();
        process->waitForFinished();
    }
    const QStringList notes = noted(u"driver.log"_s);
    for (const QString &line : notes) {
        if (line.startsWith(u"STUCK"_s) || line.startsWith(u"UNKNOWN"_s)) {
            ADD_FAILURE() << notes.join(u'\n').toStdString();
        }
    }
    return notes;
}

} // namespace zeph::test
