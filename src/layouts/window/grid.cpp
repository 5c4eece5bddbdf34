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
    const double size = typed.trimmed().toDouble();
    // A text can also say that it is not a number.
    return std::isnan(size) ? leastGridCell
                            : int(std::clamp(size, double(leastGridCell), double(mostGridCell)));
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
