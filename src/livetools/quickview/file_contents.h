// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// All that Quick View knows of a joystick file.

#include "livetools/quickview/readings_differ.h"
#include "livetools/quickview/statement_places.h"

namespace zeph {

struct FileContents {
    Assignments table;
    std::vector<StatementPlace> places;
    std::vector<ReadingDifference> differences;

    /// Where the language reads a cell otherwise than the table; null where it does not.
    const ReadingDifference *differenceAt(CellPlace cell) const;
};

FileContents fileContents(const QString &joystickText);

} // namespace zeph
