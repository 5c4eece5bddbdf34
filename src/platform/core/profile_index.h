// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where sections and keys are in the bytes of a private profile file.

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph::profile {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

/// Offsets into the file: [start, end) is the line, next the start of the line after it.
struct ProfileLine {
    qsizetype start = 0;
    qsizetype end = 0;
    qsizetype next = 0;
};

/// Where a key is, or where it would be added.
struct KeyPlace {
    bool hasSection = false;
    qsizetype sectionEnd = 0; ///< after the section's last line that is not empty
    bool hasKey = false;
    ProfileLine line; ///< the key's
    qsizetype valueStart = 0; ///< after the "=" and its blanks
    qsizetype valueEnd = 0; ///< the line's end, blanks included
};

/// The place of the first key of that name in the first section of that name, in any case. Many
/// calls for the same bytes cost one walk through them.
KeyPlace placeOf(const QByteArray &file, QStringView section, QStringView key);
/// The line end of the file's first line; CR LF where that has none.
QByteArray lineEndOf(const QByteArray &file);
/// Without the blanks and tabs around it.
QStringView withoutBlanks(QStringView text);
QByteArrayView withoutBlanks(QByteArrayView bytes);

} // namespace zeph::profile
