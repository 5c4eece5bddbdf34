// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/zip/zip_pack.h"

#include "platform/core/file_io.h"
#include "platform/zip/zip_archive.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStringList>

namespace zeph {

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
