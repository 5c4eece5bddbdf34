// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The rows and columns of Quick View's table, both from 1 on. A row is a control, a column is a
// position of the dogfight switch together with one of S3.

#include "text/text_lines.h"

#include <array>

namespace zeph {

inline constexpr int rowCount = 58;
inline constexpr int columnCount = 6;

/// The control of each row, as the language calls it; rows 11 to 14 have none.
inline constexpr std::array<QStringView, rowCount> controlNames = {
    // clang-format off
    u"T1"_w, u"T2"_w, u"T3"_w, u"T4"_w, u"T5"_w, u"T6"_w, u"T7"_w, u"T8"_w, u"T9"_w, u"T10"_w,
    {}, {}, {}, {},
    u"S1"_w, u"S2"_w, u"S3"_w, u"S4"_w,
    u"TG1"_w, u"TG2"_w,
    u"H1U"_w, u"H1UR"_w, u"H1R"_w, u"H1DR"_w, u"H1D"_w, u"H1DL"_w, u"H1L"_w, u"H1UL"_w, u"H1M"_w,
    u"H2U"_w, u"H2UR"_w, u"H2R"_w, u"H2DR"_w, u"H2D"_w, u"H2DL"_w, u"H2L"_w, u"H2UL"_w, u"H2M"_w,
    u"H3U"_w, u"H3UR"_w, u"H3R"_w, u"H3DR"_w, u"H3D"_w, u"H3DL"_w, u"H3L"_w, u"H3UL"_w, u"H3M"_w,
    u"H4U"_w, u"H4UR"_w, u"H4R"_w, u"H4DR"_w, u"H4D"_w, u"H4DL"_w, u"H4L"_w, u"H4UL"_w, u"H4M"_w,
    u"RNG"_w, u"ANT"_w,
    // clang-format on
};

inline constexpr int firstRotaryRow = 57;
inline constexpr int lastRotaryRow = 58;
/// The row of H1U; each hat has nine rows, clockwise from up, its M last.
inline constexpr int firstHatRow = 21;
inline constexpr int hatRowCount = 9;
inline constexpr int hatCount = 4;

inline constexpr bool isRotaryRow(int row)
{
    return row >= firstRotaryRow && row <= lastRotaryRow;
}
/// The control of a row; empty for rows 11 to 14.
inline constexpr QStringView controlName(int row)
{
    return controlNames[size_t(row - 1)];
}
/// The row of a control in any case; 0 for any other word.
int rowOfControl(QStringView name);

/// What the positions of the dogfight switch add to a column.
inline constexpr int upBase = 0;
inline constexpr int middleBase = 2;
inline constexpr int downBase = 4;
/// What the positions of S3 add to a column.
inline constexpr int heldIn = 1;
inline constexpr int letOut = 2;

/// The column's modifiers, "/U /I" for column 1.
QString columnName(int column);
/// What the pilot does for a column: "Dogfight switch up, S3 held" for column 1.
QString columnInWords(int column);

/// A cell of the table.
struct CellPlace {
    int row = 0;
    int column = 0;

    friend bool operator==(const CellPlace &, const CellPlace &) = default;
};

} // namespace zeph
