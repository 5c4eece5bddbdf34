// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/grid.h"

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

float onGrid(float place, int cell)
{
    return std::floor(place / float(cell)) * float(cell);
}

} // namespace

int gridCellSize(QStringView typed)
{
    // Beyond the limits it does not matter by how much.
    const double size = std::clamp(typed.trimmed().toDouble(), -1.0, mostGridCell + 1.0);
    return std::clamp(int(size), leastGridCell, mostGridCell);
}

void snapToGrid(LayoutTextBox &box, int cell)
{
    box.Top = onGrid(box.Top, cell);
    box.Left = onGrid(box.Left, cell);
}

void resizeToGrid(LayoutTextBox &box, int cell)
{
    snapToGrid(box, cell);
    box.Width = onGrid(box.Width, cell) + float(cell);
    box.Height = onGrid(box.Height, cell) + float(cell);
}

} // namespace zeph
