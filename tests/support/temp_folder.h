// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace zeph::test {

/// Whether the system's files can have a double quote in their names.
#ifdef Q_OS_WIN
constexpr bool canHoldQuotes = false;
#else
constexpr bool canHoldQuotes = true;
#endif

/// A folder of a test's own, gone with it. Paths in it have the system's own separators, as the
/// program holds them, and end without one. What cannot be written or read is a warning, which
/// fails the running test (watch.h) and needs no GoogleTest.
class TempFolder
{
public:
    QString path() const { return QDir::toNativeSeparators(m_folder.path()); }
    QString file(const QString &name) const
    {
        return QDir::toNativeSeparators(m_folder.filePath(name));
    }
    /// The root of its drive, with a closing separator.
    QString root() const;
    /// Writes a file (folders on its way are made) and gives its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    /// The file's bytes; a warning and none when it cannot be read.
    QByteArray read(const QString &name) const;
    bool exists(const QString &name) const;
    /// Lets a file or folder that lies elsewhere be seen under a name of this folder: by a link, or
    /// by a copy where a link is a file of its own kind.
    void show(const QString &source, const QString &name) const;

private:
    QTemporaryDir m_folder;
};

} // namespace zeph::test
