// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/file_io.h"

#include <QProcess>
#include <QStringList>

#include <archive.h>
#include <archive_entry.h>

namespace zeph::test {

/// A zip as somebody might make it who means no good: any name, links, anything twice.
class AnyZip
{
public:
    AnyZip() : m_writer(archive_write_new())
    {
        archive_write_set_format_zip(m_writer);
        archive_write_set_options(m_writer, "hdrcharset=UTF-8");
        m_room.resize(4'000'000);
        archive_write_open_memory(m_writer, m_room.data(), size_t(m_room.size()), &m_used);
    }
    ~AnyZip() { archive_write_free(m_writer); }
    AnyZip(const AnyZip &) = delete;
    AnyZip &operator=(const AnyZip &) = delete;

    AnyZip &file(const char *name, const QByteArray &bytes)
    {
        archive_entry *entry = start(name, AE_IFREG, bytes.size());
        archive_write_header(m_writer, entry);
        archive_write_data(m_writer, bytes.constData(), size_t(bytes.size()));
        archive_entry_free(entry);
        return *this;
    }
    AnyZip &folder(const char *name)
    {
        archive_entry *entry = start(name, AE_IFDIR, 0);
        archive_write_header(m_writer, entry);
        archive_entry_free(entry);
        return *this;
    }
    AnyZip &link(const char *name, const char *target)
    {
        archive_entry *entry = start(name, AE_IFLNK, qint64(qstrlen(target)));
        archive_entry_set_symlink(entry, target);
        archive_write_header(m_writer, entry);
        archive_entry_free(entry);
        return *this;
    }
    QByteArray bytes()
    {
        archive_write_close(m_writer);
        return m_room.first(qsizetype(m_used));
    }

private:
    static archive_entry *start(const char *name, unsigned type, qint64 size)
    {
        archive_entry *entry = archive_entry_new();
        archive_entry_set_pathname_utf8(entry, name);
        archive_entry_set_filetype(entry, type);
        archive_entry_set_perm(entry, 0644);
        archive_entry_set_size(entry, size);
        return entry;
    }

    archive *m_writer;
    QByteArray m_room;
    size_t m_used = 0;
};

/// What a program printed, errors too; empty and a failed run when it is not there or complains.
struct Ran {
    bool ok = false;
    QString output;
};
inline Ran run(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForStarted() || !process.waitForFinished()) {
        return {};
    }
    return { process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             QString::fromUtf8(process.readAll()) };
}

inline QByteArray contentOf(const QString &path)
{
    return readWholeFile(path).value_or(QByteArray("unreadable"));
}

} // namespace zeph::test
