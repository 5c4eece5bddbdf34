// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the custom sheet writes into its boxes, and where.

#include "layouts/sheet.h"

namespace zeph {

/// A box with fewer characters counts as empty, though somebody may have written them.
constexpr qsizetype emptyBoxCharacters = 4;
/// Underscores of shorter texts stay when those of all boxes are converted.
constexpr qsizetype leastConvertedCharacters = 7;

/// The first box (0-based) that counts as empty, shown or not; -1 when there is none.
int GetEmptyTextBox(const Sheet &sheet);

/// A word as it is inserted into a text before its character at the caret (0-based): after a blank,
/// unless there is one already or the caret is at the text's start.
QString insertedWord(QStringView text, qsizetype caret, const QString &word);

/// The captions of the slash words' entries, in the order of mnuSlashArray.
QStringList slashCaptions();
/// What such an entry inserts: a modifier and a blank, or the beginning of a call.
QString slashWord(int index);

/// Every "_" made a blank, in its own look.
RichText withoutUnderscores(RichText text);

} // namespace zeph
