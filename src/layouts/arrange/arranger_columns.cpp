// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The columns beside the picture: the order of their boxes, and what their leader lines cost.

#include "layouts/arrange/arranger.h"
#include "layouts/arrange/stacking.h"

#include <algorithm>

namespace zeph::arranging {

namespace {

/// Of a line over another control, in pixels of leader line.
constexpr double overControlCost = 60;

bool passesOver(const QLineF &line, const QRectF &place)
{
    return line.intersects(QLineF(place.topLeft(), place.bottomRight()))
        == QLineF::BoundedIntersection
        || line.intersects(QLineF(place.bottomLeft(), place.topRight()))
        == QLineF::BoundedIntersection;
}

/// The part of a control that a line to another one should keep clear of.
QRectF middleOf(const QRectF &control)
{
    const double x = control.width() / 4;
    const double y = control.height() / 4;
    return control.adjusted(x, y, -x, -y);
}

} // namespace

int crossings(const std::vector<QLineF> &lines)
{
    int count = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        for (size_t j = i + 1; j < lines.size(); ++j) {
            count += lines[i].intersects(lines[j]) == QLineF::BoundedIntersection ? 1 : 0;
        }
    }
    return count;
}

void Arranger::stack(Column &column) const
{
    std::vector<double> middles;
    for (const size_t box : column.boxes) {
        middles.push_back(control(box).center().y());
    }
    column.tops = stacked(column.heights, middles, gap, m_area.top(), m_area.bottom());
}

/// Finds an order of the column's boxes in which their lines are short and cross little, from that
/// of their controls' heights on.
void Arranger::order(Column &column)
{
    std::ranges::stable_sort(column.boxes, {},
                             [this](size_t box) { return control(box).center().y(); });
    const double gaps = column.boxes.empty() ? 0 : gap * double(column.boxes.size() - 1);
    column.heights = squeezed(neededHeights(column.boxes, m_columnWidth), m_area.height() - gaps);
    stack(column);
    double best = cost(column);
    for (bool isBetter = true; isBetter;) {
        isBetter = false;
        for (size_t i = 0; i + 1 < column.boxes.size(); ++i) {
            Column other = column;
            std::swap(other.boxes[i], other.boxes[i + 1]);
            std::swap(other.heights[i], other.heights[i + 1]);
            stack(other);
            if (const double value = cost(other); value < best - 1) {
                column = std::move(other);
                best = value;
                isBetter = true;
            }
        }
    }
}

std::vector<QLineF> Arranger::linesOf(const Column &column) const
{
    std::vector<QLineF> lines;
    for (size_t i = 0; i < column.boxes.size(); ++i) {
        const QRectF box(column.left, column.tops[i], m_columnWidth, column.heights[i]);
        lines.push_back(leaderLine(box, control(column.boxes[i])));
    }
    return lines;
}

double Arranger::cost(const Column &column) const
{
    const std::vector<QLineF> lines = linesOf(column);
    double value = crossingCost * crossings(lines) + overOthers(lines, column.boxes);
    for (const QLineF &line : lines) {
        value += line.length();
    }
    return value;
}

/// For lines of a column over the controls and boxes of others.
double Arranger::overOthers(const std::vector<QLineF> &lines, const Indices &boxes) const
{
    double value = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        for (const size_t box : m_placed) {
            const bool isOver = box != boxes[i] && passesOver(lines[i], middleOf(control(box)));
            value += isOver ? overControlCost : 0;
        }
        for (const QRectF &box : m_rowBoxes) {
            value += passesOver(lines[i], box) ? crossingCost : 0;
        }
    }
    return value;
}

void Arranger::put(const Column &column)
{
    for (size_t i = 0; i < column.boxes.size(); ++i) {
        put(column.boxes[i], QRectF(column.left, column.tops[i], m_columnWidth, column.heights[i]));
    }
}

/// Columns side by side over the whole sheet, in the order of the boxes.
void Arranger::arrangeInColumns()
{
    constexpr double columnWidth = 200;
    const size_t count = size_t(std::max(2.0, std::floor(m_area.width() / columnWidth)));
    m_columnWidth = cellWidth(m_area.width(), count);
    Indices all;
    for (const Indices *each : { &m_placed, &m_unplaced, &m_own }) {
        all.insert(all.end(), each->begin(), each->end());
    }
    std::ranges::sort(all);
    const std::vector<double> heights = neededHeights(all, m_columnWidth);
    const double share = stackHeight(heights, gap) / double(count);
    size_t next = 0;
    double used = 0;
    for (size_t i = 0; i < count; ++i) {
        Column column;
        column.left = m_area.left() + double(i) * (m_columnWidth + gap);
        while (next < all.size()
               && (i + 1 == count || used + heights[next] / 2 <= share * double(i + 1))) {
            used += heights[next] + gap;
            column.boxes.push_back(all[next]);
            column.heights.push_back(heights[next]);
            ++next;
        }
        const double gaps = column.boxes.empty() ? 0 : gap * double(column.boxes.size() - 1);
        column.heights = squeezed(column.heights, m_area.height() - gaps);
        column.tops = stacked(column.heights, std::vector<double>(column.boxes.size(), 0), gap,
                              m_area.top(), m_area.bottom());
        put(column);
    }
    if (!m_sheet.pictures.empty()) {
        SheetPicture &picture = m_sheet.pictures.front();
        picture.Left = float(std::round(m_area.center().x() - m_picture.size.width() / 2.0));
        picture.Top = float(std::max(0.0, m_area.center().y() - m_picture.size.height() / 2.0));
    }
}

} // namespace zeph::arranging
