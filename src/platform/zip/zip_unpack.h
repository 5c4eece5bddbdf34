// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Unpacking what somebody else packed: nothing lands outside the folder, nothing is overwritten
// unasked, and nothing grows without end.

#include "platform/zip/zip_archive.h"

#include <QStringList>

namespace zeph {

/// After how much the user is asked whether to go on, and again after as much.
struct UnpackLimits {
    qint64 bytes = 100'000'000;
    qint64 entries = 2000;
};

/// No single file may be larger, whatever the user says: it is held in memory.
constexpr qint64 largestUnpackedFile = 1'000'000'000;

/// What is asked meanwhile.
struct UnpackQuestions {
    enum class Overwrite { Yes, No, Stop };

    std::function<Overwrite(const QString &path)> overwrite;
    /// A limit is reached: bytes and entries so far. False stops.
    std::function<bool(qint64 bytes, qint64 entries)> goOn;
    /// An entry comes up, so many are done of all. False stops.
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

} // namespace zeph
