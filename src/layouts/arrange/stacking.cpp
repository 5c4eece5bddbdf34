// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/arrange/stacking.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zeph {

std::vector<double> squeezed(std::vector<double> heights, double room)
{
    if (std::accumulate(heights.begin(), heights.end(), 0.0) <= room) {
        return heights;
    }
    std::vector<double> sorted = heights;
    std::ranges::sort(sorted);
    // Each box in turn, from the lowest, may take an equal share of what is left.
    double left = room;
    double most = 0;
    for (size_t i = 0; i < sorted.size(); ++i) {
        most = left / double(sorted.size() - i);
        if (sorted[i] > most) {
            break;
        }
        left -= sorted[i];
    }
    most = std::max(0.0, std::floor(most));
    for (double &height : heights) {
        height = std::min(height, most);
    }
    return heights;
}

double stackHeight(const std::vector<double> &heights, double gap)
{
    const double gaps = heights.empty() ? 0 : gap * double(heights.size() - 1);
    return std::accumulate(heights.begin(), heights.end(), gaps);
}

std::vector<double> stacked(const std::vector<double> &heights,
                            const std::vector<double> &wantedMiddles, double gap, double top,
                            double bottom)
{
    // Boxes that would overlap form a block, which stands where the mean of its boxes wants it.
    struct Block {
        double sum = 0; ///< of where its boxes want its top
        size_t count = 0;

        double wantedTop() const { return sum / double(count); }
    };
    std::vector<Block> blocks;
    double above = 0; ///< of all boxes before this one, as if they were one block
    for (size_t i = 0; i < heights.size(); ++i) {
        blocks.push_back({ wantedMiddles[i] - heights[i] / 2 - above, 1 });
        above += heights[i] + gap;
        while (blocks.size() > 1
               && blocks[blocks.size() - 2].wantedTop() > blocks.back().wantedTop()) {
            const Block last = blocks.back();
            blocks.pop_back();
            blocks.back().sum += last.sum;
            blocks.back().count += last.count;
        }
    }
    const double lowest = std::max(top, bottom - stackHeight(heights, gap));
    std::vector<double> tops;
    above = 0;
    for (const Block &block : blocks) {
        const double start = std::clamp(std::round(block.wantedTop()), top, lowest);
        for (size_t i = 0; i < block.count; ++i) {
            tops.push_back(start + above);
            above += heights[tops.size() - 1] + gap;
        }
    }
    return tops;
}

} // namespace zeph
