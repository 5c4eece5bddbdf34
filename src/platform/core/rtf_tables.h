// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The tables at the start of an RTF file, while they are read and when they are asked.

#include "platform/core/base.h"
#include "platform/core/units.h"

#include <QHash>

#include <string_view>
#include <vector>

namespace zeph::rtf {

struct Font {
    QString family;
    int codePage = 0; ///< 0: the document's own
};

/// The fonts by their numbers, which need not follow each other.
class FontTable
{
public:
    /// Ends the font that is being read and starts another.
    void start(int number);
    /// Ends the font that is being read; one without a name is none.
    void commit();
    /// The font that is being read.
    Font &current() { return m_current; }

    /// The font of that number, or one without a name.
    Font find(int number) const { return m_fonts.value(number); }

private:
    QHash<int, Font> m_fonts;
    int m_number = 0;
    Font m_current;
};

/// The colours in the order of the file. An entry that names no colour is the control's own.
class ColourTable
{
public:
    /// Sets red, green or blue (at bit 0, 8 or 16) of the entry that is being read.
    void setPart(int shift, int value);
    /// Takes text of the table: each ";" ends an entry.
    void put(std::string_view bytes);

    /// The colour of that number; none for the control's own and for numbers beyond the table.
    std::optional<ColorRef> find(int number) const;

private:
    std::vector<std::optional<ColorRef>> m_colours;
    std::optional<ColorRef> m_current;
};

} // namespace zeph::rtf
