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

CoverageCount countOf(const std::vector<CoverageRow> &rows)
{
    CoverageCount count;
    for (const CoverageRow &row : rows) {
        for (const CoverageCell &cell : row.cells) {
            ++count.positions;
            count.used += cell.use != CellUse::Empty ? 1 : 0;
            count.same += cell.use == CellUse::SameAsOtherMode ? 1 : 0;
        }
    }
    return count;
}

QString inWords(const CoverageCount &count)
{
    if (count.used == 0) {
        return u"None of %1 positions is used."_s.arg(count.positions);
    }
    const auto areOf = [](int number) {
        return number == 1 ? u"is"_s : u"are"_s;
    };
    QString text =
        u"%1 of %2 positions %3 used"_s.arg(count.used).arg(count.positions).arg(areOf(count.used));
    if (count.same > 0) {
        text += u", %1 of them the same as in another mode"_s.arg(count.same);
    }
    if (const int empty = count.positions - count.used; empty > 0) {
        text += u"; %1 %2 empty"_s.arg(empty).arg(areOf(empty));
    }
    return text + u'.';
}

bool isShown(CellUse use, CoverageFilter filter)
{
    switch (filter) {
    case CoverageFilter::Empty:
        return use == CellUse::Empty;
    case CoverageFilter::Used:
        return use != CellUse::Empty;
    case CoverageFilter::Same:
        return use == CellUse::SameAsOtherMode;
    case CoverageFilter::All:
        break;
    }
    return true;
}

} // namespace zeph
