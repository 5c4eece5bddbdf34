// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The comment blocks and words that the Insert menu writes, as plain text.

#include "language/words.h"

#include <QStringList>

namespace zeph {

/// The three lines of a heading in a macro file. Their rules are as long as the heading, and the
/// macro list needs rules of two characters or more.
QStringList headingBlock(const QString &heading);
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

/// The name without blanks around it, or "User unknown" for an empty one.
QString personsNameOr(const QString &name);

/// The text that the Insert menu and the slash palette insert for one of insertWords. The delay is
/// the number of milliseconds that DLY is written with.
QString insertText(const language::Word &word, int delay);

} // namespace zeph
