// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What every control does in every combination of dogfight switch and S3: Quick View's table, made
// of the digest by plain rules over its lines. Where these read a statement otherwise than the
// language does, readings_differ.h tells it.

#include "livetools/quickview/records.h"

namespace zeph {

/// What a control does in one combination.
struct Cell {
    QString text; ///< without blanks around it; empty when nothing is known
    /// The 1-based line of the joystick file in which the statement begins that gave the text; 0
    /// without one.
    int line = 0;
    /// A USE line has given the text, for a hat, the radio switch or the mouse.
    bool byUse = false;
};

struct Assignments {
    std::array<std::array<Cell, columnCount>, rowCount> cells;
    /// The number after USE MTYPE A; 0 without one.
    int mouseType = 0;

    /// Row and column count from 1.
    const Cell &at(int row, int column) const { return cells[size_t(row - 1)][size_t(column - 1)]; }
    Cell &at(int row, int column) { return cells[size_t(row - 1)][size_t(column - 1)]; }
    /// What LabelBTN(4) reads.
    QString microstickTitle() const;
};

Assignments AssignToArray(const Digest &digest);

/// The text of each column, from the first on; no value for a column that keeps what it has.
using ColumnTexts = std::array<std::optional<QString>, columnCount>;

/// What a control's record sets.
ColumnTexts TestForUMDIO(const ControlRecord &record);

/// One mode's text by S3; no value where the mode says nothing for that position.
struct ShiftTexts {
    std::optional<QString> held;
    std::optional<QString> out;
};
ShiftTexts IndividualArrayAssign(QStringView modeText);

/// The text without one /U, /M, /D, /I or /O, in any case, and the character after it at its start.
QStringView RemoveUMDIOmodifiers(QStringView text);

} // namespace zeph
