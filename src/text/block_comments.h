// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Puts Rem before whole lines and takes it away again. Line ends are '\n'.

#include "text/text_lines.h"

#include <vector>

namespace zeph {

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

} // namespace zeph
