// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The search of a rich text control, over plain text.

#include "platform/core/base.h"

namespace zeph {

/// Search options, with the numbers that the control's own option bits have.
enum SearchOption { SearchPlain = 0, SearchWholeWord = 2, SearchMatchCase = 4 };

/// Letters of the whole code page, digits and "_".
bool isWordCharacter(QChar character);

/// Position (0-based) of the first hit of word at or after from, or -1. With SearchWholeWord a
/// side of the hit is tested only where the word's own character on that side is a word character:
/// the neighbour there must be none. The text's ends have no neighbour. An empty word is never
/// found.
qsizetype findText(QStringView text, QStringView word, qsizetype from, int options);

} // namespace zeph
