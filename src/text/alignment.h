// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Aligns the slash modifiers of a joystick file's statements, and writes the forms of the file that
// other tools read. Line ends are '\n'; every line of a result has one.

#include "platform/core/base.h"

namespace zeph {

/// The most blanks by which aligning can indent.
constexpr int mostIndentSpaces = 80;

/// How far aligning indents statements.
struct IndentOptions {
    bool indent = false;
    int spaces = 0; ///< blanks before a line; AlignSlashes() limits them to 0 to mostIndentSpaces
};

/// The text with the modifiers of each statement under one another. Comment lines, "~" lines and
/// empty lines do not change.
QString AlignSlashes(QStringView text, const IndentOptions &options = {});

/// Where a position of the text is after aligning has made another text of it: in the same line,
/// after as many characters that are no blanks.
qsizetype placeAfterAligning(QStringView before, QStringView aligned, qsizetype position);

/// The form that the layout sheets read: never indented, and aligned by rules of its own, because
/// the sheets that pilots have printed look like that.
QString AlignForLayouts(QStringView text);

} // namespace zeph
