// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage.h"

namespace zeph {

namespace {

CoverageCell cellOf(const Assignments &table, int row, int column)
{
    const QString &text = table.at(row, column).text;
    if (text.isEmpty()) {
        return {};
    }
    const int io = column % 2 == 1 ? heldIn : letOut;
    for (const int base : { upBase, middleBase, downBase }) {
        const int other = base + io;
        if (other != column && table.at(row, other).text == text) {
            return { CellUse::SameAsOtherMode, other };
        }
    }
    return { CellUse::Used, 0 };
}

} // namespace

std::vector<CoverageRow> coverage(const Assignments &table)
{
    std::vector<CoverageRow> rows;
    for (int row = 1; row <= rowCount; ++row) {
        if (controlName(row).isEmpty()) {
            continue;
        }
        CoverageRow added{ row, {} };
        for (int column = 1; column <= columnCount; ++column) {
            added.cells[size_t(column - 1)] = cellOf(table, row, column);
        }
        rows.push_back(added);
    }
    return rows;
}

} // namespace zeph
