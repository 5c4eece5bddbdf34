// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which controls do something in which mode and shift position.

#include "livetools/quickview/assignments.h"

namespace zeph {

enum class CellUse : quint8 { Empty, Used, SameAsOtherMode };

struct CoverageCell {
    CellUse use = CellUse::Empty;
    /// For SameAsOtherMode the first column of another mode, with S3 in the same position, that has
    /// the same text; otherwise 0.
    int sameColumn = 0;

    friend bool operator==(const CoverageCell &, const CoverageCell &) = default;
};

struct CoverageRow {
    int row = 0;
    std::array<CoverageCell, columnCount> cells;
};

/// A row for each control of the table, in its order; rows without a control are left out.
std::vector<CoverageRow> coverage(const Assignments &table);

} // namespace zeph
