// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lines of a text: by number, one after another, and the small functions that all line rules share.

#include "language/words.h"

namespace zeph {

using language::operator""_w;

struct LineRange {
    qsizetype start = 0; ///< 0-based
    qsizetype length = 0; ///< without the line end
};

/// The characters of a 1-based line; no value when the text has no such line.
std::optional<LineRange> lineRange(QStringView text, int line);

/// Calls a function with each line of a text, without its line end. A line end at the text's end
/// ends the last line and begins no other; an empty text has no lines.
template <class Function> void forEachLine(QStringView text, Function function)
{
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf(u'\n');
        function(end < 0 ? text : text.first(end));
        text = end < 0 ? QStringView() : text.sliced(end + 1);
    }
}

/// A line without blanks at its start, with every run of blanks and tabs as one blank.
QString normalisedLine(QStringView line);

/// The text without the blanks at its end. Tabs and no-break spaces stay, unlike with
/// QString::trimmed().
QStringView withoutBlanksAtEnd(QStringView text);

/// Where the comment of a line starts for the tools that read directives and macros: at the first
/// "rem " in any case, even as the end of a longer word. 0-based; -1 without one.
qsizetype remAt(QStringView line);
/// The line up to its comment.
QStringView beforeRem(QStringView line);
/// The start of a comment as the tools write it.
inline constexpr QStringView remAndBlank = u"Rem "_w;

} // namespace zeph
