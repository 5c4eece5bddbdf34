// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The "last modified:" line that a save brings up to date.

#include "platform/core/base.h"

#include <QDateTime>

namespace zeph {

/// A stretch of a text to replace (0-based) and what to put there.
struct Stamp {
    qsizetype start = 0;
    qsizetype length = 0;
    QString text;
};

/// As a title block shows it: "dd mmmm yyyy, h:mm am", in English, whatever the system speaks.
QString stampText(const QDateTime &when);

/// Where the first "last modified:" of the text, in any case, gets its date: from the second
/// character behind the words (the blank between stays) to the line's end. No value when the text
/// has none.
std::optional<Stamp> modifiedStamp(QStringView text, const QDateTime &when);

/// Where a position of the text stands once the stamp is in: with the character that it stood
/// before, or as far into the stamp as it was.
qsizetype movedByStamp(const Stamp &stamp, qsizetype position);

} // namespace zeph
