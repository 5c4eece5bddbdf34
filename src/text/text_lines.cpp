// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_lines.h"

#include "platform/core/text1252.h"
#include <algorithm>

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

namespace {

bool isBlank(QStringView line)
{
    return line.isEmpty() || line.front() == u'\n';
}

} // namespace

LineRange touchedLines(QStringView text, qsizetype selStart, qsizetype selLength)
{
    const qsizetype from = std::clamp(selStart, qsizetype(0), text.size());
    const qsizetype to = from + std::clamp(selLength, qsizetype(0), text.size() - from);
    const qsizetype start = text.first(from).lastIndexOf(u'\n') + 1;
    const qsizetype end = text.indexOf(u'\n', to);
    return { start, (end < 0 ? text.size() : end) - start };
}

LineChange commentedOut(QStringView line)
{
    return isBlank(line) ? LineChange{ line.toString(), false }
                         : LineChange{ remAndBlank.toString() + line.toString(), true };
}

LineChange commentedIn(QStringView line)
{
    return line.startsWith(remAndBlank, Qt::CaseInsensitive)
        ? LineChange{ line.sliced(remAndBlank.size()).toString(), true }
        : LineChange{ line.toString(), false };
}

std::vector<LineChange> changeLines(QStringView lines, LineChange (*change)(QStringView line))
{
    std::vector<LineChange> changed;
    while (!lines.isEmpty()) {
        const qsizetype end = lines.indexOf(u'\n');
        const qsizetype length = end < 0 ? lines.size() : end + 1;
        changed.push_back(change(lines.first(length)));
        lines = lines.sliced(length);
    }
    return changed;
}

Expected<QString, qsizetype> documentText(const QByteArray &bytes)
{
    const qsizetype nul = bytes.indexOf('\0');
    if (nul >= 0) {
        return Unexpected<qsizetype>(nul);
    }
    QString text = fromText1252(bytes);
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

QByteArray documentBytes(QStringView text)
{
    QByteArray bytes = toText1252(text);
    bytes.replace("\n", "\r\n");
    return bytes;
}

} // namespace zeph
