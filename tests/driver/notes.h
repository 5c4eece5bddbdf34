// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QFileInfo>
#include <QString>

/// What the driver saw, line by line, in the file that ZEPH_SCRIPT_LOG names.
class Notes
{
public:
    Notes() : m_log(qEnvironmentVariable("ZEPH_SCRIPT_LOG")) { m_log.open(QIODevice::WriteOnly); }

    void note(const QString &line)
    {
        m_log.write(QString(line).replace(QLatin1Char('\n'), QLatin1String("\\n")).toUtf8() + '\n');
        m_log.flush();
    }
    /// The folder of the log, without a closing separator; pictures go there.
    QString folder() const { return QFileInfo(m_log.fileName()).absolutePath(); }

private:
    QFile m_log;
};
