// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/known_files.h"

#include "platform/core/file_io.h"

#include <QFileInfo>

namespace zeph {

namespace {

/// A file system may tell the same time for two writes that follow each other at once.
constexpr qint64 settledMs = 2000;

} // namespace

KnownFiles::KnownFiles(Documents &documents)
{
    documents.forEach([this](Document &each) {
        connect(&each, &Document::replaced, this, [this, &each](Document::How how) {
            if (how != Document::How::Undone) {
                know(each);
            }
        });
        connect(&each, &Document::written, this, [this, &each] { know(each); });
    });
}

void KnownFiles::know(const Document &document)
{
    File &file = fileOf(document);
    file = File();
    file.path = document.path();
    if (!document.onDisk().isNull()) {
        file.bytes = document.onDisk();
    }
    if (document.isRecovered()) {
        // The user was told of the file when the text was offered.
        const auto bytes = readWholeFile(file.path);
        file.bytes = bytes ? std::optional(*bytes) : std::nullopt;
    }
}

void KnownFiles::accept(const Document &document, const QByteArray &bytes)
{
    fileOf(document).bytes = bytes.isNull() ? std::nullopt : std::optional(bytes);
}

void KnownFiles::noteTold(const Document &document, const QByteArray &bytes)
{
    fileOf(document).told = bytes;
}

bool KnownFiles::wasTold(const Document &document, const QByteArray &bytes)
{
    return fileOf(document).told == bytes;
}

std::optional<QByteArray> KnownFiles::changeOf(const Document &document)
{
    File &file = fileOf(document);
    const QFileInfo now(document.path());
    // What stands under a fresh name is nobody's choice; an autosave moves it out of the way.
    if (!file.bytes || file.path != document.path() || isUntitled(document.name())
        || !now.isFile()) {
        return {};
    }
    const QDateTime time = now.lastModified();
    if (file.size == now.size() && file.time == time) {
        return {};
    }
    const auto bytes = readWholeFile(file.path);
    if (bytes && *bytes == file.bytes) {
        const bool isSettled = time.msecsTo(QDateTime::currentDateTime()) > settledMs;
        if (isSettled) {
            file.size = now.size();
            file.time = time;
        }
        return {};
    }
    return !bytes ? QByteArray() : bytes->isNull() ? QByteArray("") : *bytes;
}

} // namespace zeph
