// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What whole files need of the system's file systems; file_io.h is what the program uses.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph::disk {

/// Why a file was not put in place of another one.
struct Refusal {
    QString reason; ///< in the system's words
    /// Whether another program holds the file that was to be replaced, so that it may go later.
    bool isHeld = false;
};

/// Gives a written file the name of another one in the same folder, whose place it takes, in one
/// step: whoever opens that name gets the old or the new content whole. On Windows the new file
/// also takes over attributes, rights and the date of making; elsewhere the writer gives it its
/// permissions.
std::optional<Refusal> putInPlace(const QString &written, const QString &path);

/// Whether another program keeps a file to itself right now, which only Windows lets it do.
bool isHeld(const QString &path);

/// Makes sure that the content of a closed file is on the disk. Gives the reason when the disk
/// refuses it only now; file systems that cannot flush succeed.
std::optional<QString> flush(const QString &path);
/// The same for several files on one disk, with one flush of it where the system can do that.
std::optional<QString> flushAll(const QStringList &paths);

} // namespace zeph::disk
