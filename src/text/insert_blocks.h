// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The comment blocks and words that the Insert menu writes, as plain text, and the date that each
// save puts into a title.

#include "language/words.h"

#include <QDateTime>
#include <QStringList>

namespace zeph {

/// The three lines of a heading in a macro file. Their rules are longer than the heading by that
/// many characters, and the macro list needs rules of two characters or more.
QStringList headingBlock(const QString &heading, qsizetype longer = 0);
constexpr qsizetype shortestHeading = 2;

/// A comment, for the end of a statement or for a line of its own.
QString remStatement(const QString &text);

/// The contents of a title block; the game may be empty, the comments may have many lines.
struct TitleFields {
    QString fileName = {};
    QString game = {};
    QString person = {};
    QString lastModified = {};
    QString controllers = {};
    QString comments = {};
};
/// The lines of a title block. Lines with contents end in a second Rem, all in one column: at the
/// end of the rules above and below, or farther right when a line is longer.
QStringList titleBlock(const TitleFields &fields);

/// The text that the Insert menu and the slash palette insert for one of insertWords. The delay is
/// the number of milliseconds that DLY is written with.
QString insertText(const language::Word &word, int delay);

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

/// Returns the lines of a list file that pilots may edit, trimmed and without empty ones; no lines
/// when it is missing or cannot be read.
QStringList linesOfListFile(const QString &path);

} // namespace zeph
