// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/documents.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>

#include <array>
#include <optional>

namespace zeph {

/// What the files of the documents held at the last load or save, so that another program's changes
/// are noticed: by a file's time and size, and where these are others, by its content.
class KnownFiles : public QObject
{
    Q_OBJECT
public:
    explicit KnownFiles(Documents &documents);

    /// What the document's file holds now, if another program has changed it: null bytes when it
    /// cannot be read, empty ones when it is empty. No value for a file that is gone.
    std::optional<QByteArray> changeOf(const Document &document);
    /// These bytes are no news any more; null: whatever the file holds.
    void accept(const Document &document, const QByteArray &bytes);
    /// The user has been told of these bytes, which counts until the next load or save.
    void noteTold(const Document &document, const QByteArray &bytes);
    bool wasTold(const Document &document, const QByteArray &bytes);

private:
    struct File {
        QString path;
        std::optional<QByteArray> bytes; ///< that may be overwritten; none: whatever it holds
        std::optional<QByteArray> told;
        qint64 size = -1; ///< with the time: bytes were there then
        QDateTime time;
    };

    void know(const Document &document);
    File &fileOf(const Document &document) { return m_files[size_t(document.kind())]; }

    std::array<File, 2> m_files;
};

} // namespace zeph
