// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lines of a text by number, for everything that shows a line: compiler errors, go to line.

#include "platform/core/base.h"

#include "language/file_kinds.h"

namespace zeph {

struct LineRange {
    qsizetype start = 0; ///< 0-based
    qsizetype length = 0; ///< without the line end
};

/// The stretch of a 1-based line; no value when the text has no such line.
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

/// The document that a compiler's error text speaks of: the macro file for code 1013, which stands
/// from the seventh character on.
DocumentKind documentOfError(QStringView errorText);

} // namespace zeph
