// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/generators.h"
#include "language/words.h"

namespace zeph {

/// The axes of the Cougar, a row of the grid each.
inline constexpr std::array cougarAxes = [] {
    using language::operator""_w;
    return std::array{ u"JOYX"_w, u"JOYY"_w, u"THR"_w,  u"RDDR"_w, u"RNG"_w,
                       u"ANT"_w,  u"LBRK"_w, u"RBRK"_w, u"MIX"_w,  u"MIY"_w };
}();

/// A configuration that can be applied with one click.
struct CommonConfiguration {
    const char16_t *caption;
    /// Cells row * 10 + column, set with "+".
    std::array<int, 8> forward;
    int forwardCount;
    /// A cell set with "-", or -1.
    int reversed = -1;
};
/// In the order of their option buttons.
inline constexpr std::array commonConfigurations{
    CommonConfiguration{ u"Joystick and throttle only", { 0, 11, 22 }, 3 },
    CommonConfiguration{ u"Joystick and reversed throttle", { 0, 11 }, 2, 22 },
    CommonConfiguration{
        u"Joystick, throttle, rudders, but no analogue RNG, or ANT", { 0, 11, 22, 33 }, 4 },
    CommonConfiguration{ u"Joystick, throttle, RNG knob controls rudders, and ANT knob unassigned",
                         { 0, 11, 22, 43 },
                         4 },
    CommonConfiguration{ u"All eight axes (the Microstick is not reported as DX8 only recognises 8 "
                         u"analogue axes",
                         { 0, 11, 22, 33, 44, 55, 66, 77 },
                         8 },
};

/// Which axis of the Cougar drives which DirectX axis: a grid of 100 cells. Row r is
/// cougarAxes[r], column c is DirectX axis c + 1; all indices are 0-based. A row and a column have
/// at most one cell that is set.
class AxesConfig
{
public:
    enum class Cell : quint8 { Unset, Plus, Minus };
    static constexpr int axes = language::lastDirectXAxis;
    /// DirectX axes from this column on need leave (setExtraAxes).
    static constexpr int firstExtra = 8;

    Cell cell(int row, int column) const { return m_cells[size_t(row * axes + column)]; }
    /// "+", "-" or nothing.
    QString caption(int row, int column) const;
    /// The row of the cell that is set in a column, or -1.
    int rowOf(int column) const;
    /// Whether the cells of a column react.
    bool isEnabled(int column) const { return m_extraAxes || column < firstExtra; }
    bool extraAxes() const { return m_extraAxes; }
    /// Whether DirectX axes 9 and 10 are in use. Without them their cells are cleared.
    void setExtraAxes(bool on);

    /// An unset cell becomes "+", that "-", and that unset. An axis that is pushed from the column
    /// keeps its sign and goes to the first free column, or is lost if there is none.
    void click(int row, int column);
    /// Sets a cell if neither its row nor its column has one; returns whether it did.
    bool assign(int row, int column, Cell sign);
    void clear() { m_cells = {}; }
    /// Clears the grid and sets one of commonConfigurations.
    void apply(const CommonConfiguration &configuration);

    bool operator==(const AxesConfig &) const = default;

private:
    Cell &at(int row, int column) { return m_cells[size_t(row * axes + column)]; }
    int columnOf(int row) const;
    void moveToFreeColumn(int row, Cell sign);

    std::array<Cell, size_t(axes) * axes> m_cells{};
    bool m_extraAxes = false;
};

/// USE AXES_CONFIG; refused without DirectX axes 1 and 2.
Generated generateAxesConfig(const AxesConfig &grid);
/// The grid of a statement, with axes 9 and 10 in use if it names them. No value for anything that
/// the grid cannot hold.
std::optional<AxesConfig> readAxesConfig(QStringView statement);

} // namespace zeph
