// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"
#include "tests/support/temp_folder.h"

#include <QProcess>
#include <QStringList>

#include <memory>

namespace zeph::test {

/// The pair that comes with the program, from its folder, as the program names it in its settings.
inline const QString sample = QDir::toNativeSeparators(u"Files/Sample flight.tmj"_s);
inline const QString sampleMacros = QDir::toNativeSeparators(u"Files/Sample flight.tmm"_s);

/// The installed program in a fresh folder of its own, driven from outside by scripts.
class Program
{
public:
    Program();
    ~Program();

    QString folder() const { return m_folder.path(); }
    QString root() const { return m_folder.root(); }
    /// The program's file.
    QString executable() const;
    QString file(const QString &name) const { return m_folder.file(name); }
    QByteArray read(const QString &name) const { return m_folder.read(name); }
    bool exists(const QString &name) const { return m_folder.exists(name); }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        return m_folder.write(name, bytes);
    }
    /// A value of Zeph.ini (or another settings file of the folder) as it stands on disk.
    QString setting(const QString &section, const QString &key,
                    const QString &name = QStringLiteral("Zeph.ini")) const;

    /// Writes a settings file under which the program starts without first run, tips and checks.
    void settle(const QByteArray &more = {});
    /// How long a settled program waits for a tool, and how often it looks for the answer. After
    /// settle() that is long enough for any tool that answers.
    void setPatience(int giveUpAfterMs, int lookEveryMs = 20) const;
    /// Makes the tools silent, and the program wait for them for less than a second.
    void silenceTools();
    /// The largest file, in bytes, that the program may write from now on.
    void limitFileSize(qsizetype bytes) { m_fileSizeLimit = bytes; }
    void setEnvironment(const QString &name, const QString &value);
    /// The folder that the program is started from; at first the test's own.
    void startIn(const QString &folder) { m_startFolder = folder; }
    /// Writes a program that adds a line to a file of the folder when it is started: its own path,
    /// each argument, the folder that it runs in and the variable CALLSIGN, with ';' between them.
    /// Gives its path, which on Windows has an ending of its own.
    QString writeRecorder(const QString &name, const QString &record) const;
    /// What recorders have written into that file; waits ten seconds at most for so many lines,
    /// since nobody waits for a program that Zeph starts. Line ends are '\n'.
    QByteArray recorded(const QString &record, int lines) const;
    /// Makes the program's folder one that others have installed: it is read-only for the user, who
    /// has a home of his own and only there may write. The notes go there too.
    void installForOthers();
    const TempFolder &home() const { return m_home; }

    /// Runs a script to the end of the program; gives what the driver noted, a line each. Fails the
    /// test when the program does not end in time or gets stuck.
    QStringList run(const QStringList &script, const QStringList &arguments = {});
    /// Starts a script without waiting.
    std::unique_ptr<QProcess> start(const QStringList &script, const QString &log,
                                    const QStringList &arguments = {});
    QStringList noted(const QString &log) const;

private:
    const TempFolder &logFolder() const { return m_isOthers ? m_home : m_folder; }

    TempFolder m_folder;
    TempFolder m_home;
    QProcessEnvironment m_environment;
    qsizetype m_fileSizeLimit = -1;
    QString m_startFolder;
    bool m_isOthers = false;
};

} // namespace zeph::test
