// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/free_flags.h"

#include "text/text_lines.h"

namespace zeph {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The flag's number if one is used with its "X" at this position of a line; 0 otherwise. "X07" is
// no flag.
int flagUsedAt(QStringView line, qsizetype at)
{
    const QChar before = line[at - 1];
    if (before != u' ' && before != u'(')
        return 0;
    int number = 0;
    qsizetype end = at + 1;
    while (end < line.size() && isDigit(line[end]) && number <= language::lastFlag) {
        number = number * 10 + line[end].digitValue();
        if (number == 0)
            return 0;
        ++end;
    }
    const QChar after = before == u' ' ? u' ' : u')';
    const bool isFlag = number <= language::lastFlag && end < line.size() && line[end] == after;
    return isFlag ? number : 0;
}

} // namespace

std::array<bool, language::lastFlag> freeFlags(QStringView joystickText)
{
    std::array<bool, language::lastFlag> free;
    free.fill(true);
    forEachLine(joystickText, [&free](QStringView whole) {
        const QStringView line = beforeRem(whole);
        for (qsizetype at = 1; at < line.size(); ++at) {
            if (line[at] != u'X' && line[at] != u'x')
                continue;
            if (const int number = flagUsedAt(line, at))
                free[size_t(number) - 1] = false;
        }
    });
    return free;
}

} // namespace zeph
