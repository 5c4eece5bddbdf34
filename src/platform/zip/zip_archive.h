// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Zip files, in and out.

#include "platform/core/base.h"

#include <QByteArray>
#include <QDateTime>

#include <functional>
#include <memory>

namespace zeph {

/// One entry as the zip describes it. None of it can be trusted.
struct ZipEntry {
    enum Kind { File, Folder, Other }; ///< Other: a link, or something else that is no plain file

    QString name;
    Kind kind = File;
    qint64 size = -1; ///< bytes when unpacked, as the zip claims; -1 when it does not say
};

/// Goes through a zip's entries in their order.
class ZipReader
{
public:
    static Expected<ZipReader, QString> open(const QString &path);
    /// The bytes must outlive the reader.
    static Expected<ZipReader, QString> openBytes(QByteArrayView bytes);

    ZipReader(ZipReader &&) noexcept;
    ZipReader &operator=(ZipReader &&) noexcept;
    ~ZipReader();

    /// How many entries there are, up to where the zip is damaged.
    int count() const;
    /// The next entry; no value after the last one. The error tells that the zip is damaged from
    /// here on.
    Expected<std::optional<ZipEntry>, QString> next();
    /// The content of the entry that next() gave. After each piece the function receives the number
    /// of bytes so far; when it returns false, the reading stops and gives no value. The error
    /// tells why the entry cannot be read; later entries may still be readable.
    Expected<std::optional<QByteArray>, QString> read(const std::function<bool(qint64)> &goOn);

private:
    struct Archive;
    explicit ZipReader(std::unique_ptr<Archive> archive);

    std::unique_ptr<Archive> m_archive;
};

/// Makes a zip in memory. close() puts it in place of a file of that path, whole or not at all.
class ZipWriter
{
public:
    static Expected<ZipWriter, QString> create(const QString &path);

    ZipWriter(ZipWriter &&) noexcept;
    ZipWriter &operator=(ZipWriter &&) noexcept;
    ~ZipWriter();

    /// Adds a file under a name with "/" between its folders.
    Expected<void, QString> add(const QString &name, const QByteArray &bytes,
                                const QDateTime &modified);
    Expected<void, QString> close();

private:
    struct Archive;
    explicit ZipWriter(std::unique_ptr<Archive> archive);

    std::unique_ptr<Archive> m_archive;
};

} // namespace zeph
