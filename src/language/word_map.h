// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A map from words in any case to numbers. It copies no word and folds no string, because the
// parsers look up every word of a file.

#include "language/scan.h"

#include <vector>

namespace zeph::language {

/// The hash of a word, the same in any case.
inline size_t foldedHash(QStringView word)
{
    size_t hash = 1469598103934665603ULL;
    for (const QChar c : word) {
        const char16_t u = c.unicode();
        const char16_t folded = u >= u'A' && u <= u'Z' ? char16_t(u + 32)
            : u < 128                                  ? u
                                                       : c.toCaseFolded().unicode();
        hash = (hash ^ folded) * 1099511628211ULL;
    }
    return hash;
}

/// Keeps views of its words: their text must outlive the map.
class WordMap
{
public:
    /// Adds a word, unless the map has it.
    void insert(QStringView word, int value)
    {
        if ((m_count + 1) * 2 > m_slots.size())
            grow();
        const size_t hash = foldedHash(word);
        Slot &slot = m_slots[place(m_slots, word, hash)];
        if (slot.used)
            return;
        slot = { hash, word, value, true };
        ++m_count;
    }

    /// The word's value, or -1.
    int value(QStringView word) const { return m_count ? value(word, foldedHash(word)) : -1; }
    int value(QStringView word, size_t hash) const
    {
        if (!m_count)
            return -1;
        const Slot &slot = m_slots[place(m_slots, word, hash)];
        return slot.used ? slot.value : -1;
    }

private:
    struct Slot {
        size_t hash = 0;
        QStringView word;
        int value = -1;
        bool used = false;
    };

    static size_t place(const std::vector<Slot> &slots, QStringView word, size_t hash)
    {
        size_t at = hash & (slots.size() - 1);
        while (slots[at].used && (slots[at].hash != hash || !sameWord(slots[at].word, word)))
            at = (at + 1) & (slots.size() - 1);
        return at;
    }

    void grow()
    {
        std::vector<Slot> bigger(std::max<size_t>(16, m_slots.size() * 2));
        for (const Slot &slot : m_slots) {
            if (slot.used)
                bigger[place(bigger, slot.word, slot.hash)] = slot;
        }
        m_slots = std::move(bigger);
    }

    std::vector<Slot> m_slots;
    size_t m_count = 0;
};

} // namespace zeph::language
