// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/text_search.h"

#include <QStringMatcher>

#include <algorithm>

namespace zeph {

namespace {

bool isWholeWord(QStringView text, QStringView word, qsizetype at)
{
    const qsizetype end = at + word.size();
    const bool joinedBefore =
        at > 0 && isWordCharacter(word.front()) && isWordCharacter(text[at - 1]);
    const bool joinedAfter =
        end < text.size() && isWordCharacter(word.back()) && isWordCharacter(text[end]);
    return !joinedBefore && !joinedAfter;
}

} // namespace

bool isWordCharacter(QChar character)
{
    // Unicode calls the circumflex of Windows-1252 (byte 88, U+02C6) a letter. In a file it is
    // alone and ends a word.
    return character == u'_' || (character >= u'0' && character <= u'9')
        || (character.isLetter() && character.category() != QChar::Letter_Modifier);
}

qsizetype findText(QStringView text, QStringView word, qsizetype from, int options)
{
    if (word.isEmpty()) {
        return -1;
    }
    const QStringMatcher matcher(
        word, options & SearchMatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    qsizetype at = std::max<qsizetype>(from, 0);
    while (at <= text.size() - word.size()) {
        at = matcher.indexIn(text, at);
        if (at < 0 || !(options & SearchWholeWord) || isWholeWord(text, word, at)) {
            return at;
        }
        ++at;
    }
    return -1;
}

} // namespace zeph
