// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The USE statements, by the words that follow USE.

#include "language/words.h"

namespace zeph::language {

/// What follows a USE form's head words.
enum class UseShape : quint8 {
    /// Nothing.
    None,
    /// The rest of the line as it stands: file names may hold blanks and brackets.
    Tail,
    /// One word.
    Word,
    /// Arguments in brackets, which the form's last head word takes as it does in a body.
    Brackets,
    /// A list of "(number, axis)".
    AxisList,
    /// A role: a word, perhaps a rate in brackets, perhaps " - " and options.
    Role,
};

struct UseForm {
    /// The words behind USE, one blank between two.
    QStringView head;
    UseShape shape;
};

/// The forms that the tools read or write by name. What matches none of them is either
/// "NAME AS ROLE" with any control or axis, or unknown.
std::span<const UseForm> useForms();

/// Index into useForms() of the form whose head words begin the line behind USE, or -1.
int useFormOf(QStringView behindUse);

} // namespace zeph::language
