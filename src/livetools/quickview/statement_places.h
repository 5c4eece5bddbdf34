// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where the joystick file has the statements of Quick View's table, and which control a place of
// the file belongs to. Lines count from 1.

#include "livetools/quickview/assignments.h"

namespace zeph {

/// The lines of one control's statement, comments in it included.
struct StatementPlace {
    int row = 0;
    int firstLine = 0;
    int lastLine = 0;

    friend bool operator==(const StatementPlace &, const StatementPlace &) = default;
};

/// In file order.
std::vector<StatementPlace> statementPlaces(const Digest &digest);

/// The row of the control in whose statement a line is; 0 when it is in none.
int rowAtLine(const std::vector<StatementPlace> &places, int line);

/// The line to which a jump from a cell goes: that of the statement that gave its text; for an
/// empty cell the control's first statement; 0 when the control has none.
int lineToJumpTo(const Assignments &table, const std::vector<StatementPlace> &places,
                 CellPlace cell);

} // namespace zeph
