// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The grid that boxes are put on. Places and cells are pixels of the sheet.

#include "layouts/sheet.h"

#include <QStringView>

namespace zeph {

constexpr int leastGridCell = 2;
constexpr int mostGridCell = 100;

/// A typed cell size: truncated, and held to the limits. What is no number counts as 0.
int gridCellSize(QStringView typed);

/// Puts the box's top left corner on the grid, towards the sheet's. Its size stays.
void snapToGrid(LayoutTextBox &box, int cell);
/// Does the same, and makes the box reach to the next line of the grid, one cell farther where it
/// ended on one.
void resizeToGrid(LayoutTextBox &box, int cell);

} // namespace zeph
