// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/lines.h"

namespace zeph::language {

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
