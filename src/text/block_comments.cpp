// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/block_comments.h"

#include <algorithm>

namespace zeph {

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

} // namespace zeph
