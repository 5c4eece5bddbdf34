// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/zip/zip_unpack.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/zip_names.h"
#include "platform/zip/zip_archive.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStringList>

namespace zeph {

namespace {

/// Files that are flushed to the disk together.
constexpr qsizetype filesPerBatch = 250;

/// The names in folders, each of which is listed once. Names are the same in any case.
class Listings
{
public:
    /// The path that a name in a folder (with a closing separator) has: as it is there, or as
    /// wanted when it is not.
    QString pathOf(const QString &folder, const QString &name)
    {
        const Names &names = listed(folder);
        return folder + (names.exact.contains(name) ? name : names.folded.value(key(name), name));
    }
    void add(const QString &folder, const QString &name) { put(listed(folder), name); }

private:
    struct Names {
        QSet<QString> exact;
        QHash<QString, QString> folded; ///< the first of the names that differ in case only
    };

    static QString key(const QString &name) { return name.toCaseFolded(); }
    static void put(Names &names, const QString &name)
    {
        names.exact.insert(name);
        if (!names.folded.contains(key(name))) {
            names.folded.insert(key(name), name);
        }
    }
    Names &listed(const QString &folder)
    {
        const auto known = m_folders.find(folder);
        if (known != m_folders.end()) {
            return *known;
        }
        Names names;
        const auto all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
        for (const QString &name : QDir(folder).entryList(all, QDir::Name)) {
            put(names, name);
        }
        return *m_folders.insert(folder, names);
    }

    QHash<QString, Names> m_folders;
};

/// Unpacks one zip.
class Unpacking
{
public:
    Unpacking(ZipReader &zip, const QString &folder, const UnpackQuestions &questions,
              const UnpackLimits &limits)
        : m_zip(zip), m_folder(folder), m_questions(questions), m_limits(limits),
          m_nextBytes(limits.bytes), m_nextEntries(limits.entries)
    {
    }

    UnpackReport run()
    {
        while (!m_report.stopped) {
            const auto entry = m_zip.next();
            if (!entry) {
                m_report.damage = entry.error();
                break;
            }
            if (!*entry) {
                break;
            }
            take(**entry);
        }
        finishBatch();
        return m_report;
    }

private:
    void take(const ZipEntry &entry)
    {
        ++m_entries;
        m_report.stopped = !withinLimits(0)
            || !m_questions.progress(entry.name, int(m_entries - 1), m_zip.count());
        if (m_report.stopped) {
            return;
        }
        const auto name = safeEntryName(entry.name);
        if (!name) {
            refuse(entry, name.error());
        } else if (entry.kind == ZipEntry::Other) {
            refuse(entry, u"it is a link, not a file"_s);
        } else {
            takeSafe(entry, *name);
        }
    }

    void takeSafe(const ZipEntry &entry, const QString &name)
    {
        const bool isFolder = entry.kind == ZipEntry::Folder;
        const qsizetype slash = name.lastIndexOf(u'/');
        const auto parent =
            makeFolders(isFolder ? name : name.first(std::max(slash, qsizetype(0))));
        if (!parent) {
            refuse(entry, parent.error());
        } else if (!isFolder) {
            takeFile(entry, *parent, name.sliced(slash + 1));
        }
    }

    /// The folder of that name below the target, made where it is missing, with a closing
    /// separator. Names are the same in any case.
    Expected<QString, QString> makeFolders(const QString &name)
    {
        QString path = m_folder;
        for (const QString &part : name.split(u'/', Qt::SkipEmptyParts)) {
            const QString next = wanted(path, part);
            const QFileInfo there(next);
            if (there.isSymLink()) {
                return Unexpected<QString>(u"a link stands where its folder should be"_s);
            }
            if (there.exists() && !there.isDir()) {
                return Unexpected<QString>(u"a file stands where its folder should be"_s);
            }
            if (!there.exists()) {
                if (!QDir().mkdir(next)) {
                    return Unexpected<QString>(u"its folder can't be made"_s);
                }
                m_listings.add(path, part);
            }
            path = withClosingSeparator(next);
        }
        return path;
    }

    /// The path for a name in a folder; what the batch holds of that name is in its place then.
    QString wanted(const QString &folder, const QString &name)
    {
        const QString path = m_listings.pathOf(folder, name);
        if (m_pending.contains(path)) {
            finishBatch();
        }
        return path;
    }

    void takeFile(const ZipEntry &entry, const QString &folder, const QString &name)
    {
        const QString path = wanted(folder, name);
        const QFileInfo there(path);
        if (there.isSymLink() || there.isDir()) {
            refuse(entry, u"a folder or a link has that name already"_s);
            return;
        }
        if (isReadOnlyFile(path)) {
            refuse(entry, u"a file of that name is read only"_s);
            return;
        }
        if (entry.size > largestUnpackedFile) {
            refuse(entry, tooLargeReason);
            return;
        }
        if (there.exists() && !mayOverwrite(path)) {
            return;
        }
        const auto bytes = readEntry();
        if (!bytes) {
            refuse(entry, bytes.error());
        } else if (*bytes) {
            m_listings.add(folder, name);
            write(entry, path, **bytes);
        }
    }

    bool mayOverwrite(const QString &path)
    {
        const auto answer = m_questions.overwrite(path);
        if (answer == UnpackQuestions::Overwrite::No) {
            m_report.kept.append(path);
        }
        m_report.stopped = answer == UnpackQuestions::Overwrite::Stop;
        return answer == UnpackQuestions::Overwrite::Yes;
    }

    Expected<std::optional<QByteArray>, QString> readEntry()
    {
        bool tooLarge = false;
        auto bytes = m_zip.read([this, &tooLarge](qint64 soFar) {
            tooLarge = soFar > largestUnpackedFile;
            m_report.stopped = !tooLarge && !withinLimits(soFar);
            return !tooLarge && !m_report.stopped;
        });
        if (tooLarge) {
            return Unexpected<QString>(tooLargeReason);
        }
        return bytes;
    }

    void write(const ZipEntry &entry, const QString &path, const QByteArray &bytes)
    {
        m_bytes += bytes.size();
        if (const auto written = m_batch.add(path, bytes); !written) {
            refuse(entry, written.error().reason);
            return;
        }
        m_pending.insert(path, entry.name);
        m_report.written.append(path);
        if (m_batch.size() >= filesPerBatch) {
            finishBatch();
        }
    }

    void finishBatch()
    {
        for (const FileError &failed : m_batch.commit()) {
            m_report.written.removeOne(failed.path);
            m_report.refused.append(m_pending.value(failed.path) + u": "_s + failed.reason);
        }
        m_pending.clear();
    }

    /// With so many bytes of the present entry.
    bool withinLimits(qint64 soFar)
    {
        if (m_bytes + soFar <= m_nextBytes && m_entries <= m_nextEntries) {
            return true;
        }
        if (!m_questions.goOn(m_bytes + soFar, m_entries)) {
            return false;
        }
        m_nextBytes = m_bytes + soFar + m_limits.bytes;
        m_nextEntries = m_entries + m_limits.entries;
        return true;
    }

    void refuse(const ZipEntry &entry, const QString &reason)
    {
        m_report.refused.append(entry.name + u": "_s + reason);
    }

    const QString tooLargeReason = u"it is too large"_s;

    ZipReader &m_zip;
    const QString &m_folder;
    const UnpackQuestions &m_questions;
    const UnpackLimits &m_limits;
    qint64 m_nextBytes;
    qint64 m_nextEntries;
    qint64 m_bytes = 0;
    qint64 m_entries = 0;
    UnpackReport m_report;
    Listings m_listings;
    FileBatch m_batch;
    QHash<QString, QString> m_pending; ///< the batch's paths, and the names of their entries
};

} // namespace

UnpackReport unpackZip(ZipReader &zip, const QString &folder, const UnpackQuestions &questions,
                       const UnpackLimits &limits)
{
    return Unpacking(zip, folder, questions, limits).run();
}

namespace {

QStringList filesBelow(const QString &folder, const QString &zipPath)
{
    QStringList files;
    QDirIterator each(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden,
                      QDirIterator::Subdirectories);
    const QString zip = QFileInfo(zipPath).absoluteFilePath();
    while (each.hasNext()) {
        each.next();
        if (each.fileInfo().absoluteFilePath().compare(zip, Qt::CaseInsensitive) != 0) {
            files.append(each.filePath());
        }
    }
    files.sort(Qt::CaseInsensitive);
    return files;
}

} // namespace

Expected<bool, QString>
packFolder(const QString &folder, const QString &zipPath,
           const std::function<bool(const QString &name, int done, int all)> &progress)
{
    const QStringList files = filesBelow(folder, zipPath);
    auto zip = ZipWriter::create(zipPath);
    if (!zip) {
        return Unexpected<QString>(zipPath + u": "_s + zip.error());
    }
    const QDir base(folder);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString name = base.relativeFilePath(files[i]);
        if (!progress(name, int(i), int(files.size()))) {
            return false;
        }
        const auto bytes = readWholeFile(files[i]);
        if (!bytes) {
            return Unexpected<QString>(files[i] + u": "_s + bytes.error().reason);
        }
        const auto added = zip->add(name, *bytes, QFileInfo(files[i]).lastModified());
        if (!added) {
            return Unexpected<QString>(zipPath + u": "_s + added.error());
        }
    }
    if (const auto closed = zip->close(); !closed) {
        return Unexpected<QString>(zipPath + u": "_s + closed.error());
    }
    return true;
}

} // namespace zeph
