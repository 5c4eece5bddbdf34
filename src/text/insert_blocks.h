// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The comment blocks and words that the Insert menu writes, as plain text.

#include "language/words.h"

#include <QStringList>

namespace zeph {

/// The three lines that make a heading in a macro file. The macro list sees it only when the
/// heading has two characters or more, since its rules are as long as it is.
QStringList headingBlock(const QString &heading);
constexpr qsizetype shortestHeading = 2;

/// A comment to stand behind a statement or on a line of its own.
QString remStatement(const QString &text);

/// What a title tells of a file; the game may be empty, the comments may have many lines.
struct TitleFields {
    QString fileName = {};
    QString game = {};
    QString person = {};
    QString lastModified = {};
    QString controllers = {};
    QString comments = {};
};
/// The lines of a title. Those that tell something are closed by a second Rem, all in one column:
/// under the end of the rules, or farther right when a line needs more room.
QStringList titleBlock(const TitleFields &fields);

/// The name of whoever writes files: the given one, or what stands for nobody.
QString personsNameOr(const QString &name);

/// What the Insert menu and the slash palette write for one of insertWords; a delay lasts so many
/// milliseconds.
QString insertText(const language::Word &word, int delay);

} // namespace zeph
