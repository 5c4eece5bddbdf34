// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf_tables.h"

#include <algorithm>
#include <utility>

namespace zeph::rtf {

void FontTable::start(int number)
{
    commit();
    m_number = number;
    m_current = {};
}

void FontTable::commit()
{
    m_current.family = m_current.family.trimmed();
    if (!m_current.family.isEmpty()) {
        m_fonts.insert(m_number, m_current);
    }
    m_current.family.clear();
}

void ColourTable::setPart(int shift, int value)
{
    const ColorRef part = ColorRef(std::clamp(value, 0, 255)) << shift;
    m_current = (m_current.value_or(0) & ~(ColorRef(0xFF) << shift)) | part;
}

void ColourTable::put(std::string_view bytes)
{
    for (const char c : bytes) {
        if (c == ';') {
            m_colours.push_back(std::exchange(m_current, std::nullopt));
        }
    }
}

std::optional<ColorRef> ColourTable::find(int number) const
{
    return number >= 0 && size_t(number) < m_colours.size() ? m_colours[size_t(number)]
                                                            : std::nullopt;
}

} // namespace zeph::rtf
