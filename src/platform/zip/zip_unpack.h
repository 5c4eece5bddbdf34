// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Unpacks zips of unknown origin: no file is written outside the folder, none is overwritten
// without a question, and limits keep a small zip from filling the disk.

#include "platform/core/base.h"
#include "platform/zip/zip_archive.h"

#include <QStringList>
#include <functional>

namespace zeph {

/// The user is asked whether to go on each time that so much more was unpacked.
struct UnpackLimits {
    qint64 bytes = 100'000'000;
    qint64 entries = 2000;
};

/// No single file may be larger, even if the user would go on: it is held in memory.
constexpr qint64 largestUnpackedFile = 1'000'000'000;

/// What the unpacking asks while it runs.
struct UnpackQuestions {
    enum class Overwrite { Yes, No, Stop };

    std::function<Overwrite(const QString &path)> overwrite;
    /// A limit is reached: bytes and entries so far. False stops.
    std::function<bool(qint64 bytes, qint64 entries)> goOn;
    /// The next entry, how many are done, how many there are. False stops.
    std::function<bool(const QString &name, int done, int all)> progress;
};

struct UnpackReport {
    QStringList written = {}; ///< full paths
    QStringList kept = {}; ///< files that the user did not want overwritten
    QStringList refused = {}; ///< "name: reason", an entry each
    QString damage = {}; ///< why the zip could not be read to its end; empty when it could
    bool stopped = false; ///< by the user
};

/// Unpacks below the folder, which ends in a separator and exists.
UnpackReport unpackZip(ZipReader &zip, const QString &folder, const UnpackQuestions &questions,
                       const UnpackLimits &limits = {});

/// Packs all files of a folder (with a closing separator) and of the folders in it into a zip, by
/// their places below it. Links are left out, and so is the zip itself, which may lie there. The
/// function is called before each file: its name, how many are done, how many there are; when it
/// returns false, the packing stops. True when the zip was made; otherwise a file of its name stays
/// as it was.
Expected<bool, QString>
packFolder(const QString &folder, const QString &zipPath,
           const std::function<bool(const QString &name, int done, int all)> &progress);

} // namespace zeph
