// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Line by line over the text of a joystick file: slash modifiers stood under one another, and the
// forms of the file that other tools read. Line ends are '\n'; every line written has one.

#include "platform/core/base.h"

namespace zeph {

/// How far statements are moved in when they are aligned.
struct IndentOptions {
    bool indent = false;
    int spaces = 0; ///< blanks before a line, 0 to 69
};

/// The text with the modifiers of each statement standing under one another. Comment lines, "~"
/// lines and empty lines stay as they are.
QString AlignSlashes(QStringView text, const IndentOptions &options = {});

/// The normal form that the layout sheets read: aligned by rules of its own, which sheets that
/// pilots have printed rely on, and never indented.
QString AlignForLayouts(QStringView text);

/// The digest that Quick View reads: a flat list of records, each opened by a line "*** ", and a
/// line "END " behind the last.
QString LeftAlignAnalyse(QStringView text);

} // namespace zeph
