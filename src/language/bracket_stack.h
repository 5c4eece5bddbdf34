// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The brackets of a body that are open at the moment. All questions take the same time at any
// depth.

#include "language/model.h"

#include <vector>

namespace zeph::language {

/// The bracket that closes this one; 0 for any other character.
char16_t closingOf(QChar opening);

struct OpenBracket {
    char16_t closing = 0;
    /// The item of the group or call. A call's item begins at its word, so the place of the
    /// bracket is kept apart.
    int item = -1;
    Place place;
    /// The modifiers in force before it.
    Chain chain;
    std::array<bool, slashLevels> outFirst{};
    /// Its contents are keys, as those of KD are.
    bool keys = false;
    /// It is a word of its own, so that it can also be the key of that name.
    bool mayBeKey = false;
};

class BracketStack
{
public:
    bool isEmpty() const { return m_levels.empty(); }
    int size() const { return int(m_levels.size()); }
    /// The bracket opened first; only when not empty, as top() and pop().
    const OpenBracket &bottom() const { return m_levels.front().bracket; }
    const OpenBracket &top() const { return m_levels.back().bracket; }
    const OpenBracket &at(int index) const { return m_levels[size_t(index)].bracket; }
    void push(const OpenBracket &bracket);
    OpenBracket pop();
    void clear() { m_levels.clear(); }

    /// Whether one of them is certainly no key.
    bool holdsCertain() const { return !isEmpty() && m_levels.back().certain >= 0; }
    /// How many "(" are open.
    int rounds() const { return isEmpty() ? 0 : m_levels.back().rounds; }
    /// The index of the bracket that this character closes; -1 without one. Those above it may be
    /// keys.
    int partnerOf(char16_t closing) const;

private:
    struct Level {
        OpenBracket bracket;
        /// For each kind of bracket the index of the innermost one, up to this level; or -1.
        std::array<int, 3> innermost{ -1, -1, -1 };
        /// The same for brackets that are certainly no keys.
        int certain = -1;
        int rounds = 0;
    };

    std::vector<Level> m_levels;
};

} // namespace zeph::language
