// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Boxes above each other in a column, or in a row.

#include <vector>

namespace zeph {

/// Heights that sum up to at most the room: the largest ones are cut to the same height, the others
/// stay.
std::vector<double> squeezed(std::vector<double> heights, double room);

/// Tops of boxes in this order, with at least a gap between them and all within the room from top
/// to bottom, where they fit; the sum of the squares of their middles' distances from the wanted
/// ones is the least.
std::vector<double> stacked(const std::vector<double> &heights,
                            const std::vector<double> &wantedMiddles, double gap, double top,
                            double bottom);

/// The sum, with a gap between each two.
double stackHeight(const std::vector<double> &heights, double gap);

} // namespace zeph
