// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The smallest steps over a line of text. Positions are 0-based and count characters.

#include "platform/core/base.h"

namespace zeph::language {

/// A blank for the language: the space, the tab and every other control character.
inline bool isBlank(QChar c)
{
    return c.unicode() <= u' ' || c.unicode() == 0xA0;
}

/// Letters of the whole code page, digits and "_": what the whole-word rule calls part of a word.
inline bool isNameCharacter(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 128)
        return (u >= u'a' && u <= u'z') || (u >= u'A' && u <= u'Z') || (u >= u'0' && u <= u'9')
            || u == u'_';
    return c.isLetterOrNumber();
}

/// What ends a word of a body besides a blank.
inline bool isBracketOrComma(QChar c)
{
    const char16_t u = c.unicode();
    return u == u'(' || u == u')' || u == u'<' || u == u'>' || u == u'{' || u == u'}' || u == u',';
}

inline bool isWordCharacter(QChar c)
{
    return !isBlank(c) && !isBracketOrComma(c);
}

/// The first position from `at` on that is no blank, or the text's length.
qsizetype skipBlanks(QStringView text, qsizetype at);
/// The end of the run of name characters that begins at `at`.
qsizetype nameEnd(QStringView text, qsizetype at);
/// The end of the run of word characters that begins at `at`.
qsizetype wordEnd(QStringView text, qsizetype at);
/// The text's length without the blanks at its end.
qsizetype trimmedEnd(QStringView text);

/// Where the comment of a line begins: the word Rem in any case, as a whole word; -1 without one.
qsizetype commentStart(QStringView line);

bool sameWord(QStringView left, QStringView right);

/// A whole number with an optional sign; a "%" behind it is dropped. Anything else has no value.
/// Numbers beyond nine digits give the largest one of nine.
std::optional<int> wholeNumber(QStringView text);

} // namespace zeph::language
