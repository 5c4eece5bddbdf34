// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lines of a text by number, for everything that shows a line: compiler errors, go to line.

#include "platform/core/base.h"

#include "editor/file_kinds.h"

namespace zeph {

struct LineRange {
    qsizetype start = 0; ///< 0-based
    qsizetype length = 0; ///< without the line end
};

/// The stretch of a 1-based line; no value when the text has no such line.
std::optional<LineRange> lineRange(QStringView text, int line);

/// The document that a compiler's error text speaks of: the macro file for code 1013, which stands
/// from the seventh character on.
DocumentKind documentOfError(QStringView errorText);

} // namespace zeph
