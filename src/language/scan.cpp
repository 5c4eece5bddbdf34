// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/scan.h"

namespace zeph::language {

qsizetype skipBlanks(QStringView text, qsizetype at)
{
    while (at < text.size() && isBlank(text[at]))
        ++at;
    return at;
}

qsizetype nameEnd(QStringView text, qsizetype at)
{
    while (at < text.size() && isNameCharacter(text[at]))
        ++at;
    return at;
}

qsizetype wordEnd(QStringView text, qsizetype at)
{
    while (at < text.size() && isBodyCharacter(text[at]))
        ++at;
    return at;
}

qsizetype trimmedEnd(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && isBlank(text[end - 1]))
        --end;
    return end;
}

qsizetype commentStart(QStringView line)
{
    const auto is = [&](qsizetype at, char16_t lower) {
        return (line[at].unicode() | 0x20) == lower && line[at].unicode() < 128;
    };
    for (qsizetype at = 0; at + 2 < line.size(); ++at) {
        if (!is(at, u'r') || !is(at + 1, u'e') || !is(at + 2, u'm'))
            continue;
        const bool startsWord = at == 0 || !isNameCharacter(line[at - 1]);
        const bool endsWord = at + 3 == line.size() || !isNameCharacter(line[at + 3]);
        if (startsWord && endsWord)
            return at;
    }
    return -1;
}

bool sameWord(QStringView left, QStringView right)
{
    // Most words are written alike, and comparing them letter by letter would take longer.
    return left.size() == right.size()
        && (std::equal(left.begin(), left.end(), right.begin())
            || left.compare(right, Qt::CaseInsensitive) == 0);
}

std::optional<int> wholeNumber(QStringView text)
{
    if (text.endsWith(u'%'))
        text.chop(1);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    if (text.isEmpty())
        return {};
    // No number of the language is near this, so larger ones may all count as this one.
    constexpr qint64 largest = 999'999'999;
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return {};
        value = std::min(largest, value * 10 + (c.unicode() - u'0'));
    }
    return int(negative ? -value : value);
}

std::optional<double> decimalNumber(QStringView text)
{
    const qsizetype point = text.indexOf(u'.');
    const std::optional<int> whole = wholeNumber(point < 0 ? text : text.first(point));
    if (point < 0 || !whole)
        return whole;
    if (text[point - 1] == u'%')
        return {};
    QStringView digits = text.sliced(point + 1);
    if (digits.endsWith(u'%'))
        digits.chop(1);
    double fraction = 0;
    double unit = 1;
    for (const QChar c : digits) {
        if (c < u'0' || c > u'9')
            return {};
        unit /= 10;
        fraction += (c.unicode() - u'0') * unit;
    }
    return text.startsWith(u'-') ? *whole - fraction : *whole + fraction;
}

bool LineReader::next(Line &line)
{
    if (m_at > m_text.size())
        return false;
    const qsizetype found = m_text.indexOf(u'\n', m_at);
    const qsizetype lineEnd = found < 0 ? m_text.size() : found;
    const QStringView whole = m_text.sliced(m_at, lineEnd - m_at);
    line.number = ++m_number;
    line.end = m_at + trimmedEnd(whole);
    line.first = std::min(m_at + skipBlanks(whole, 0), line.end);
    const qsizetype comment = commentStart(whole);
    const QStringView code = comment < 0 ? whole : whole.first(comment);
    line.codeEnd = std::max(line.first, m_at + trimmedEnd(code));
    m_at = lineEnd + 1;
    return true;
}

} // namespace zeph::language
