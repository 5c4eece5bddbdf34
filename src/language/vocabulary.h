// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a word can be. The tables of words, forms and keys turned round, for quick look-up.

#include "language/words.h"

namespace zeph::language {

enum Role : quint16 {
    NoRole = 0,
    ControlRole = 1 << 0,
    AxisRole = 1 << 1,
    AxisGroupRole = 1 << 2,
    HatRole = 1 << 3,
    MouseAxisRole = 1 << 4,
    KeyRole = 1 << 5,
    ModifierKeyRole = 1 << 6,
    CallRole = 1 << 7,
    StatementRole = 1 << 8,
    /// A word of one of the colour classes, or one that is always red.
    KeywordRole = 1 << 9,
};

struct WordInfo {
    /// Role values, or-ed.
    quint16 roles = NoRole;
    /// Index in callForms() for a CallRole.
    qint16 call = -1;

    bool is(Role role) const { return (roles & role) != 0; }
};

/// What the word can be, in any case.
WordInfo wordInfo(QStringView word);
/// The same with the word's foldedHash() already at hand.
WordInfo wordInfo(QStringView word, size_t hash);

/// The number of a logical flag: "X" and digits only, whatever the number. No value otherwise.
std::optional<int> flagNumber(QStringView word);

/// "DX" and a number, whatever the number.
bool isDirectXButton(QStringView word);

} // namespace zeph::language
