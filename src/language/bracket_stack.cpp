// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/bracket_stack.h"

namespace zeph::language {

namespace {

constexpr QStringView openings = u"(<{";
constexpr QStringView closings = u")>}";

} // namespace

char16_t closingOf(QChar opening)
{
    const qsizetype kind = openings.indexOf(opening);
    return kind < 0 ? u'\0' : closings[kind].unicode();
}

void BracketStack::push(const OpenBracket &bracket)
{
    Level level = m_levels.empty() ? Level() : m_levels.back();
    level.bracket = bracket;
    level.innermost[size_t(closings.indexOf(bracket.closing))] = size();
    if (!bracket.mayBeKey)
        level.certain = size();
    level.rounds += bracket.closing == u')' ? 1 : 0;
    m_levels.push_back(level);
}

OpenBracket BracketStack::pop()
{
    const OpenBracket bracket = top();
    m_levels.pop_back();
    return bracket;
}

int BracketStack::partnerOf(char16_t closing) const
{
    if (isEmpty())
        return -1;
    const Level &level = m_levels.back();
    const int partner = level.innermost[size_t(closings.indexOf(closing))];
    return partner >= level.certain ? partner : -1;
}

} // namespace zeph::language
