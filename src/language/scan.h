// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The smallest steps over a text and its lines. Positions are 0-based and count characters.

#include "platform/core/text_search.h"

namespace zeph::language {

/// Whether the language treats the character as a blank: the space, the no-break space, the tab and
/// every other control character.
inline bool isBlank(QChar c)
{
    return c.unicode() <= u' ' || c.unicode() == 0xA0;
}

/// The whole-word rule's answer, without a call for the characters that nearly all words consist
/// of.
inline bool isNameCharacter(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 128)
        return (u >= u'a' && u <= u'z') || (u >= u'A' && u <= u'Z') || (u >= u'0' && u <= u'9')
            || u == u'_';
    return zeph::isWordCharacter(c);
}

/// Brackets and the comma end a word of a body, as blanks do.
inline bool isBracketOrComma(QChar c)
{
    const char16_t u = c.unicode();
    return u == u'(' || u == u')' || u == u'<' || u == u'>' || u == u'{' || u == u'}' || u == u',';
}

/// Whether the character can be in a word of a body, which is often no name: "KP+".
inline bool isBodyCharacter(QChar c)
{
    return !isBlank(c) && !isBracketOrComma(c);
}

/// The first position from `at` on that is no blank, or the text's length.
qsizetype skipBlanks(QStringView text, qsizetype at);
/// The end of the run of name characters that begins at `at`.
qsizetype nameEnd(QStringView text, qsizetype at);
/// The end of the run of body characters that begins at `at`.
qsizetype wordEnd(QStringView text, qsizetype at);
/// The text's length without the blanks at its end.
qsizetype trimmedEnd(QStringView text);

/// Where the comment of a line begins: the word Rem in any case, as a whole word; -1 without one.
qsizetype commentStart(QStringView line);

bool sameWord(QStringView left, QStringView right);

/// A whole number with an optional sign; a "%" after it is ignored. Any other text has no value.
/// Numbers of more than nine digits give the largest of nine.
std::optional<int> wholeNumber(QStringView text);
/// The same with digits after a decimal point: "90.5%".
std::optional<double> decimalNumber(QStringView text);

/// A line without the parts that the parsers leave out. All positions count from the text's start.
struct Line {
    /// The first character that is no blank.
    qsizetype first = 0;
    /// The end of the last character that is neither blank nor comment.
    qsizetype codeEnd = 0;
    /// The end of the last character that is no blank, comments included.
    qsizetype end = 0;
    /// 1-based.
    int number = 1;

    bool isEmpty() const { return end <= first; }
};

/// Walks over the lines of a text.
class LineReader
{
public:
    explicit LineReader(QStringView text) : m_text(text) { }
    /// Starts with the line after that number, which ends at `end`.
    LineReader(QStringView text, qsizetype end, int number)
        : m_text(text), m_at(end + 1), m_number(number)
    {
    }

    /// Reads the next line; false after the last one.
    bool next(Line &line);

private:
    QStringView m_text;
    qsizetype m_at = 0;
    int m_number = 0;
};

} // namespace zeph::language
