// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The date in a file's "last modified:" line, which each save updates.

#include "platform/core/base.h"

#include <QDateTime>

namespace zeph {

/// A stretch of a text (0-based) and its replacement.
struct Stamp {
    qsizetype start = 0;
    qsizetype length = 0;
    QString text;
};

/// A date and time for a title block: "dd mmmm yyyy, h:mm am", always in English.
QString stampText(const QDateTime &when);

/// The change that dates the first "last modified:" of the text, in any case. It replaces the rest
/// of the line after the words and one blank. No value when the text has no such words.
std::optional<Stamp> modifiedStamp(QStringView text, const QDateTime &when);

/// Where a position of the text is after the stamp: before the same character as it was, or as far
/// into the stamp as it was into the old date.
qsizetype movedByStamp(const Stamp &stamp, qsizetype position);

} // namespace zeph
