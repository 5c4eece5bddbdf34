// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/zip/zip_archive.h"

#include "platform/core/file_io.h"
#include "platform/core/zip_names.h"

#include <QFile>

#include <archive.h>
#include <archive_entry.h>

#include <array>

namespace zeph {

namespace {

constexpr size_t blockSize = 65536;
constexpr mode_t plainFileMode = 0644;

QString reasonOf(archive *from)
{
    const char *text = archive_error_string(from);
    return text ? QString::fromLocal8Bit(text) : u"it can't be read"_s;
}

struct FreeReader {
    void operator()(archive *reader) const { archive_read_free(reader); }
};
struct FreeWriter {
    void operator()(archive *writer) const { archive_write_free(writer); }
};
struct FreeEntry {
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

using Reader = std::unique_ptr<archive, FreeReader>;
using Writer = std::unique_ptr<archive, FreeWriter>;

Reader newReader()
{
    Reader reader(archive_read_new());
    // The reader must use the list at the zip's end: without it links look like files.
    archive_read_support_format_zip_seekable(reader.get());
    return reader;
}

int openFile(archive *reader, const QString &path)
{
#ifdef Q_OS_WIN
    return archive_read_open_filename_w(reader, reinterpret_cast<const wchar_t *>(path.utf16()),
                                        blockSize);
#else
    return archive_read_open_filename(reader, QFile::encodeName(path).constData(), blockSize);
#endif
}

int openMemory(archive *reader, QByteArrayView bytes)
{
    return archive_read_open_memory(reader, bytes.data(), size_t(bytes.size()));
}

QString nameOf(archive_entry *entry)
{
    if (const char *bytes = archive_entry_pathname(entry)) {
        return zipNameText(QByteArray(bytes));
    }
    const char *utf8 = archive_entry_pathname_utf8(entry);
    return utf8 ? QString::fromUtf8(utf8) : QString();
}

/// The headers up to the end, or up to where the zip is damaged. The reader cannot be used after
/// it.
int countEntries(const Reader &reader)
{
    int count = 0;
    archive_entry *entry = nullptr;
    int result = archive_read_next_header(reader.get(), &entry);
    while (result == ARCHIVE_OK || result == ARCHIVE_WARN) {
        ++count;
        result = archive_read_next_header(reader.get(), &entry);
    }
    return count;
}

ZipEntry::Kind kindOf(archive_entry *entry)
{
    if (archive_entry_symlink(entry) || archive_entry_hardlink(entry)) {
        return ZipEntry::Other;
    }
    switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
        return ZipEntry::File;
    case AE_IFDIR:
        return ZipEntry::Folder;
    default:
        return ZipEntry::Other;
    }
}

la_ssize_t addPiece(archive *, void *zip, const void *bytes, size_t length)
{
    static_cast<QByteArray *>(zip)->append(static_cast<const char *>(bytes), qsizetype(length));
    return la_ssize_t(length);
}

} // namespace

struct ZipReader::Archive {
    Archive(Reader opened, int entries) : reader(std::move(opened)), count(entries) { }

    Reader reader;
    int count = 0;
};

ZipReader::ZipReader(std::unique_ptr<Archive> archive) : m_archive(std::move(archive)) { }
ZipReader::ZipReader(ZipReader &&) noexcept = default;
ZipReader &ZipReader::operator=(ZipReader &&) noexcept = default;
ZipReader::~ZipReader() = default;

Expected<ZipReader, QString> ZipReader::open(const QString &path)
{
    Reader reader = newReader();
    if (openFile(reader.get(), path) != ARCHIVE_OK) {
        return Unexpected<QString>(reasonOf(reader.get()));
    }
    const Reader counting = newReader();
    const int count = openFile(counting.get(), path) == ARCHIVE_OK ? countEntries(counting) : 0;
    return ZipReader(std::make_unique<Archive>(std::move(reader), count));
}

Expected<ZipReader, QString> ZipReader::openBytes(QByteArrayView bytes)
{
    Reader reader = newReader();
    if (openMemory(reader.get(), bytes) != ARCHIVE_OK) {
        return Unexpected<QString>(reasonOf(reader.get()));
    }
    const Reader counting = newReader();
    const int count = openMemory(counting.get(), bytes) == ARCHIVE_OK ? countEntries(counting) : 0;
    return ZipReader(std::make_unique<Archive>(std::move(reader), count));
}

int ZipReader::count() const
{
    return m_archive->count;
}

Expected<std::optional<ZipEntry>, QString> ZipReader::next()
{
    archive_entry *entry = nullptr;
    const int result = archive_read_next_header(m_archive->reader.get(), &entry);
    if (result == ARCHIVE_EOF) {
        return std::nullopt;
    }
    // A warning means a name that could not be turned into text, or the like: it is still read.
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
        return Unexpected<QString>(reasonOf(m_archive->reader.get()));
    }
    return ZipEntry{ nameOf(entry), kindOf(entry),
                     archive_entry_size_is_set(entry) ? qint64(archive_entry_size(entry)) : -1 };
}

Expected<std::optional<QByteArray>, QString>
ZipReader::read(const std::function<bool(qint64)> &goOn)
{
    QByteArray bytes;
    std::array<char, blockSize> piece;
    while (true) {
        const la_ssize_t got =
            archive_read_data(m_archive->reader.get(), piece.data(), piece.size());
        if (got < 0) {
            return Unexpected<QString>(reasonOf(m_archive->reader.get()));
        }
        if (got == 0) {
            return bytes;
        }
        bytes.append(piece.data(), qsizetype(got));
        if (!goOn(bytes.size())) {
            return std::nullopt;
        }
    }
}

struct ZipWriter::Archive {
    QString path;
    QByteArray zip = {};
    Writer writer = {}; ///< declared after the zip, so that it can write into it until its end
};

ZipWriter::ZipWriter(std::unique_ptr<Archive> archive) : m_archive(std::move(archive)) { }
ZipWriter::ZipWriter(ZipWriter &&) noexcept = default;
ZipWriter &ZipWriter::operator=(ZipWriter &&) noexcept = default;
ZipWriter::~ZipWriter() = default;

Expected<ZipWriter, QString> ZipWriter::create(const QString &path)
{
    auto made = std::make_unique<Archive>(path);
    made->writer.reset(archive_write_new());
    archive *writer = made->writer.get();
    archive_write_set_format_zip(writer);
    archive_write_set_options(writer, "hdrcharset=UTF-8");
    archive_write_set_bytes_in_last_block(writer, 1);
    if (archive_write_open(writer, &made->zip, nullptr, addPiece, nullptr) != ARCHIVE_OK) {
        return Unexpected<QString>(reasonOf(writer));
    }
    return ZipWriter(std::move(made));
}

Expected<void, QString> ZipWriter::add(const QString &name, const QByteArray &bytes,
                                       const QDateTime &modified)
{
    archive *writer = m_archive->writer.get();
    const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), plainFileMode);
    archive_entry_set_size(entry.get(), bytes.size());
    archive_entry_set_mtime(entry.get(), time_t(modified.toSecsSinceEpoch()), 0);
    if (archive_write_header(writer, entry.get()) != ARCHIVE_OK) {
        return Unexpected<QString>(reasonOf(writer));
    }
    if (archive_write_data(writer, bytes.constData(), size_t(bytes.size())) != bytes.size()) {
        return Unexpected<QString>(reasonOf(writer));
    }
    return {};
}

Expected<void, QString> ZipWriter::close()
{
    if (archive_write_close(m_archive->writer.get()) != ARCHIVE_OK) {
        return Unexpected<QString>(reasonOf(m_archive->writer.get()));
    }
    const auto written = writeFileAtomically(m_archive->path, m_archive->zip);
    return written ? Expected<void, QString>() : Unexpected<QString>(written.error().reason);
}

} // namespace zeph
