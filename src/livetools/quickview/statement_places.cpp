// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/statement_places.h"

namespace zeph {

std::vector<StatementPlace> statementPlaces(const Digest &digest)
{
    const std::vector<DigestLine> lines = linesOf(digest);
    std::vector<StatementPlace> places;
    for (const ControlRecord &record : controlRecords(lines)) {
        places.push_back({ record.row, record.firstSource(), record.lastSource() });
    }
    return places;
}

int rowAtLine(const std::vector<StatementPlace> &places, int line)
{
    const auto after = std::ranges::upper_bound(places, line, {}, &StatementPlace::firstLine);
    if (after == places.begin()) {
        return 0;
    }
    const StatementPlace &place = *std::prev(after);
    return line <= place.lastLine ? place.row : 0;
}

int lineToJumpTo(const Assignments &table, const std::vector<StatementPlace> &places,
                 CellPlace cell)
{
    if (const Cell &found = table.at(cell.row, cell.column); found.line > 0) {
        return found.line;
    }
    const auto place = std::ranges::find(places, cell.row, &StatementPlace::row);
    return place == places.end() ? 0 : place->firstLine;
}

} // namespace zeph
