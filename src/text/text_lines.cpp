// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

namespace zeph {

std::optional<LineRange> lineRange(QStringView text, int line)
{
    if (line < 1) {
        return std::nullopt;
    }
    qsizetype start = 0;
    for (int at = 1; at < line; ++at) {
        const qsizetype end = text.indexOf(u'\n', start);
        if (end < 0) {
            return std::nullopt;
        }
        start = end + 1;
    }
    const qsizetype end = text.indexOf(u'\n', start);
    return LineRange{ start, (end < 0 ? text.size() : end) - start };
}

QString normalisedLine(QStringView line)
{
    QString result;
    result.reserve(line.size());
    bool afterBlank = true;
    for (const QChar character : line) {
        const bool blank = character == u' ' || character == u'\t';
        if (!blank) {
            result += character;
        } else if (!afterBlank) {
            result += u' ';
        }
        afterBlank = blank;
    }
    return result;
}

QStringView withoutBlanksAtEnd(QStringView text)
{
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

qsizetype remAt(QStringView line)
{
    return line.indexOf(remAndBlank, 0, Qt::CaseInsensitive);
}

QStringView beforeRem(QStringView line)
{
    const qsizetype at = remAt(line);
    return at < 0 ? line : line.first(at);
}

} // namespace zeph
