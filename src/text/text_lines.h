// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lines of a text: by number, one after another, and the small functions that all line rules share.

#include "language/words.h"
#include "platform/core/base.h"
#include <QByteArray>
#include <vector>

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

// Puts Rem before whole lines and takes it away again. Line ends are '\n'.

/// The whole lines that a selection touches (0-based characters), from the first one's start to
/// the last one's end, without its line end. A selection that ends at a line's very start touches
/// that line too.
LineRange touchedLines(QStringView text, qsizetype selStart, qsizetype selLength);

/// What a line becomes, with its line end if it has one.
struct LineChange {
    QString text;
    bool changed = false;
};

/// Puts "Rem " before a line; a line without characters stays.
LineChange commentedOut(QStringView line);
/// Takes "rem " in any case away from a line's start; another line stays.
LineChange commentedIn(QStringView line);

/// Changes the lines one by one, in their order.
std::vector<LineChange> changeLines(QStringView lines, LineChange (*change)(QStringView line));

// A document as bytes on the disk and as text in memory, where a line end is the one character
// '\n'.

/// The text of a file's bytes: CR LF, a single CR and a single LF each end a line, every other byte
/// is one character. Bytes with a NUL are no text; the error is the 0-based offset of the first
/// NUL.
Expected<QString, qsizetype> documentText(const QByteArray &bytes);

/// The bytes of a text, with CR LF for each line end and nothing added at the end.
QByteArray documentBytes(QStringView text);

} // namespace zeph
