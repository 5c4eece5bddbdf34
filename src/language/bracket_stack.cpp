// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/bracket_stack.h"

namespace zeph::language {

namespace {

// 0-based place among the kinds of brackets.
size_t kindOf(char16_t closing)
{
    return closing == u')' ? 0 : closing == u'>' ? 1 : 2;
}

} // namespace

char16_t closingOf(QChar opening)
{
    switch (opening.unicode()) {
    case u'(':
        return u')';
    case u'<':
        return u'>';
    case u'{':
        return u'}';
    default:
        return 0;
    }
}

void BracketStack::push(const OpenBracket &bracket)
{
    Level level = m_levels.empty() ? Level() : m_levels.back();
    level.bracket = bracket;
    level.innermost[kindOf(bracket.closing)] = size();
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
    const int partner = level.innermost[kindOf(closing)];
    return partner >= level.certain ? partner : -1;
}

} // namespace zeph::language
