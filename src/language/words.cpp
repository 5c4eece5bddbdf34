// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/words.h"

#include "language/word_map.h"

namespace zeph::language {

namespace {

constexpr Word unknown;

} // namespace

const Word &rowOf(QStringView word, size_t hash)
{
    static const WordMap index = [] {
        WordMap map;
        for (const Word &row : words)
            map.insert(row.text, indexOf(row));
        return map;
    }();
    const int at = index.value(word, hash);
    return at < 0 ? unknown : words[size_t(at)];
}

const Word &rowOf(QStringView word)
{
    // Callers also ask for whole arguments, which can be as long as the file: do not hash those.
    constexpr qsizetype longest =
        std::ranges::max(words, {}, [](const Word &row) { return row.text.size(); }).text.size();
    return word.size() <= longest ? rowOf(word, foldedHash(word)) : unknown;
}

int indexOf(const Word &row)
{
    return int(&row - words.data());
}

int slashAt(QStringView line, qsizetype at)
{
    if (line[at] != u'/' || at + 1 >= line.size())
        return -1;
    // "/Up" and "/I2" are words of their own, "/I/U" are two modifiers.
    if (at + 2 < line.size() && line[at + 2] != u'/' && isBodyCharacter(line[at + 2]))
        return -1;
    const QChar letter = line[at + 1].toUpper();
    for (const Word &modifier : slashModifiers) {
        if (modifier.text[1] == letter)
            return indexOf(modifier);
    }
    return -1;
}

std::optional<int> flagNumber(QStringView word)
{
    if (word.size() < 2 || (word[0] != u'X' && word[0] != u'x')
        || (word[1] < u'0' || word[1] > u'9'))
        return {};
    return wholeNumber(word.sliced(1));
}

bool isDirectXButton(QStringView word)
{
    return word.size() > 2 && sameWord(word.first(2), u"DX") && wholeNumber(word.sliced(2));
}

} // namespace zeph::language
