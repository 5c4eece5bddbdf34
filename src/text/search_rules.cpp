// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/search_rules.h"

#include "platform/core/text_search.h"

#include <algorithm>

namespace zeph {

SearchResult search(QStringView text, const SearchRequest &request)
{
    if (request.word.isEmpty()) {
        return { SearchVerdict::NoWord };
    }
    if (text.isEmpty()) {
        return { SearchVerdict::NoText };
    }
    const qsizetype from = request.first ? 0 : request.caret;
    const qsizetype start = findText(text, request.word, from, request.options);
    if (start >= 0) {
        return { SearchVerdict::Hit, start };
    }
    return { request.first ? SearchVerdict::NotFound : SearchVerdict::NoFurther };
}

std::vector<qsizetype> allHits(QStringView text, QStringView word, int options)
{
    std::vector<qsizetype> hits;
    for (qsizetype at = findText(text, word, 0, options); at >= 0;
         at = findText(text, word, at + word.size(), options)) {
        hits.push_back(at);
    }
    return hits;
}

qsizetype hitBefore(const std::vector<qsizetype> &hits, qsizetype position)
{
    if (hits.empty()) {
        return -1;
    }
    const auto next = std::ranges::lower_bound(hits, position);
    return next == hits.begin() ? hits.back() : *std::prev(next);
}

QString hitCount(const std::vector<qsizetype> &hits, qsizetype position)
{
    const QString count = QString::number(hits.size());
    const auto hit = std::ranges::lower_bound(hits, position);
    if (hit != hits.end() && *hit == position) {
        return u"Hit "_s + QString::number(hit - hits.begin() + 1) + u" of "_s + count;
    }
    return hits.size() == 1 ? u"1 hit"_s : count + u" hits"_s;
}

std::optional<int> plainLineNumber(QStringView typed)
{
    const QStringView digits = typed.trimmed();
    const auto isDigit = [](QChar each) {
        return each >= u'0' && each <= u'9';
    };
    bool fits = false;
    const int number = digits.toInt(&fits);
    return fits && std::ranges::all_of(digits, isDigit) ? std::optional(number) : std::nullopt;
}

std::vector<qsizetype> hitsToReplace(QStringView text, QStringView word, QStringView replacement,
                                     int options)
{
    std::vector<qsizetype> hits;
    // Only a hit directly after the one before has a changed neighbour on its left: the
    // replacement's last character, or with an empty replacement the character before that.
    const bool asksNeighbour =
        (options & SearchWholeWord) && !word.isEmpty() && isWordCharacter(word.front());
    QChar last;
    qsizetype lastHitEnd = 0;
    qsizetype at = findText(text, word, 0, options);
    while (at >= 0) {
        const bool touches = at == lastHitEnd && !hits.empty();
        if (touches && asksNeighbour && !last.isNull() && isWordCharacter(last)) {
            at = findText(text, word, at + 1, options);
            continue;
        }
        if (!replacement.isEmpty()) {
            last = replacement.back();
        } else if (at > lastHitEnd) {
            last = text[at - 1];
        }
        hits.push_back(at);
        lastHitEnd = at + word.size();
        at = findText(text, word, lastHitEnd, options);
    }
    return hits;
}

bool isSought(QStringView text, QStringView word, int options)
{
    return text.compare(word, options & SearchMatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive)
        == 0;
}

QStringList withEarlier(QStringList earlier, const QString &text)
{
    if (!earlier.contains(text)) {
        earlier.prepend(text);
    }
    return earlier;
}

} // namespace zeph
