// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The USE statements, by the words that follow USE.

#include "language/words.h"

namespace zeph::language {

/// What may follow the head words of a USE form.
enum class UseShape : quint8 {
    /// Nothing.
    None,
    /// The rest of the line, unread: file names may hold blanks and brackets.
    Tail,
    /// One word.
    Word,
    /// Arguments in brackets, as the last head word takes them in a body.
    Brackets,
    /// A list of "(number, axis)".
    AxisList,
    /// A role: a word, perhaps a rate in brackets, perhaps " - " and options.
    Role,
};

struct UseForm {
    /// The words after USE, separated by one blank.
    QStringView head;
    UseShape shape;
};

/// What the first word of USE HAT1_SENSITIVITY and the like ends in.
constexpr QStringView sensitivityEnding = u"_SENSITIVITY";

/// The forms that the tools read or write by name. Any other USE statement is either "NAME AS ROLE"
/// with a control or axis, or unknown.
std::span<const UseForm> useForms();

/// Index in useForms() of the form whose head words come first in the text after USE, or -1.
int useFormOf(QStringView afterUse);

} // namespace zeph::language
