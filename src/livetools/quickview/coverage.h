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

struct CoverageCount {
    int positions = 0; ///< all cells
    int used = 0; ///< those with a text
    int same = 0; ///< those among them that are the same as in another mode

    friend bool operator==(const CoverageCount &, const CoverageCount &) = default;
};
CoverageCount countOf(const std::vector<CoverageRow> &rows);
/// One sentence.
QString inWords(const CoverageCount &count);

/// Which cells are shown; a used one may be the same as in another mode.
enum class CoverageFilter { All, Empty, Used, Same };
bool isShown(CellUse use, CoverageFilter filter);

} // namespace zeph
