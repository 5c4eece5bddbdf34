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

DocumentKind documentOfError(QStringView errorText)
{
    return errorText.mid(6, 4) == u"1013" ? DocumentKind::Macro : DocumentKind::Joystick;
}

} // namespace zeph
