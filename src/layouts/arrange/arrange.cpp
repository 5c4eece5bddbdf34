// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/arrange/arrange.h"

#include "layouts/arrange/arranger.h"
#include "layouts/arrange/stacking.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <tuple>

namespace zeph {

namespace arranging {

namespace {

constexpr double ownBoxHeight = 50; ///< of the pilot's own boxes, at least
constexpr double titleShare = 0.2; ///< of the sheet's height, at most
constexpr size_t titleBoxes = 3;
constexpr size_t ownBoxes = 3;
constexpr size_t mostInRow = 3;
constexpr size_t mostBelow = 3; ///< boxes of controls that may stand under the picture
// Between a column and the picture, at least.
constexpr double leastCorridor = 16;
constexpr double goodColumn = 150;
constexpr double leastColumn = 100;
// For each pixel of height that the texts lack, in pixels of leader line.
constexpr double lackCost = 2;
// Plans that lack so much more height than the best are not looked into.
constexpr double worthATry = 500;

} // namespace

void Arranger::run()
{
    placeTitleBlock();
    collect();
    // The more rows stand over the whole width, the better the sheet looks, if there is room.
    const std::vector<Row> rows = wideRows();
    const auto all = std::tuple(m_area, m_unplaced, m_own);
    std::optional<Sheet> best;
    Result bestResult{ .lack = 1, .cost = std::numeric_limits<double>::max() };
    for (size_t first = 0; first <= rows.size() && bestResult.lack > 0; ++first) {
        std::tie(m_area, m_unplaced, m_own) = all;
        placeWide(std::span(rows).subspan(first));
        if (!fitsAroundPicture()) {
            continue;
        }
        if (const Result result = arrangeAroundPicture(); result.cost < bestResult.cost) {
            best = m_sheet;
            bestResult = result;
        }
    }
    if (best) {
        m_sheet = *best;
    } else {
        std::tie(m_area, m_unplaced, m_own) = all;
        arrangeInColumns();
    }
}

double Arranger::neededHeight(size_t box, double width)
{
    const auto [known, isNew] = m_heights.try_emplace({ box, width });
    if (isNew) {
        m_texts[box].setBoxWidth(width);
        known->second = std::max(std::ceil(m_texts[box].neededHeight()), double(leastBoxHeight));
    }
    return known->second;
}

std::vector<double> Arranger::neededHeights(const Indices &boxes, double width)
{
    std::vector<double> heights;
    for (const size_t box : boxes) {
        heights.push_back(neededHeight(box, width));
    }
    return heights;
}

/// Rows of up to three boxes within a width, as high as their texts need.
std::vector<Row> Arranger::rowsOf(const Indices &boxes, double width)
{
    std::vector<Row> rows;
    for (size_t i = 0; i < boxes.size(); i += mostInRow) {
        const auto from = boxes.begin() + std::ptrdiff_t(i);
        const auto count = std::min(mostInRow, boxes.size() - i);
        Row row{ .boxes = Indices(from, from + std::ptrdiff_t(count)) };
        row.height = std::ranges::max(neededHeights(row.boxes, cellWidth(width, count)));
        if (row.boxes.front() >= m_sheet.boxes.size() - ownBoxes) {
            row.height = std::max(row.height, ownBoxHeight);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

QRectF Arranger::centre() const
{
    return m_area.adjusted(m_columnWidth + gap, 0, -m_columnWidth - gap, 0);
}

void Arranger::put(size_t box, const QRectF &place)
{
    LayoutTextBox &moved = m_sheet.boxes[box];
    moved.Left = float(place.left());
    moved.Top = float(place.top());
    moved.Width = float(place.width());
    moved.Height = float(place.height());
}

void Arranger::placeTitleBlock()
{
    const size_t first = m_sheet.boxes.size() - ownBoxes - titleBoxes;
    Indices boxes;
    double shares = 0;
    // The file's path is the longest.
    const auto share = [first](size_t box) {
        return box == first + 1 ? 2.0 : 1.0;
    };
    for (size_t box = first; box < first + titleBoxes; ++box) {
        if (m_sheet.boxes[box].Visible) {
            boxes.push_back(box);
            shares += share(box);
        }
    }
    if (boxes.empty()) {
        return;
    }
    double height = 0;
    std::vector<double> widths;
    for (const size_t box : boxes) {
        widths.push_back(std::floor(m_area.width() * share(box) / shares));
        height = std::max(height, neededHeight(box, widths.back()));
    }
    height = std::min(height, std::floor(m_area.height() * titleShare));
    double left = m_area.left();
    for (size_t i = 0; i < boxes.size(); ++i) {
        const double right = i + 1 < boxes.size() ? left + widths[i] : m_area.right();
        put(boxes[i], QRectF(left, m_area.bottom() - height, right - left, height));
        left = right;
    }
    m_area.setBottom(m_area.bottom() - height - gap);
}

void Arranger::collect()
{
    const size_t controls = m_sheet.boxes.size() - ownBoxes - titleBoxes;
    for (size_t box = 0; box < m_sheet.boxes.size(); ++box) {
        const bool isTitle = box >= controls && box < controls + titleBoxes;
        if (isTitle || !m_sheet.boxes[box].Visible) {
            continue;
        }
        Indices &kind = box >= controls ? m_own : control(box).isNull() ? m_unplaced : m_placed;
        kind.push_back(box);
    }
}

bool Arranger::fitsAroundPicture()
{
    if (m_sheet.pictures.empty() || !m_sheet.pictures.front().Visible || m_picture.size.isEmpty()) {
        return false;
    }
    const double room = (m_area.width() - m_picture.size.width()) / 2;
    m_corridor = std::clamp(room - goodColumn, leastCorridor, wideCorridor);
    // On a large sheet, a column that is wider than its texts would only make the lines longer.
    double widest = goodColumn;
    for (const size_t box : m_placed) {
        widest = std::max(widest, m_texts[box].unbrokenWidth());
    }
    m_columnWidth = std::floor(std::min(room - m_corridor, widest));
    return m_columnWidth >= leastColumn && leastHeight(0) <= m_area.height();
}

/// The height of the picture and of the rows under it when they are as low as they can be.
double Arranger::leastHeight(size_t moreRows) const
{
    const auto rowCount = [](const Indices &boxes) {
        return (boxes.size() + mostInRow - 1) / mostInRow;
    };
    const size_t rows = moreRows + rowCount(m_unplaced) + rowCount(m_own);
    return m_picture.size.height() + double(rows) * (leastBoxHeight + gap);
}

/// The rows of the boxes that need not be near the picture, over the whole width.
std::vector<Row> Arranger::wideRows()
{
    std::vector<Row> rows = rowsOf(m_unplaced, m_area.width());
    std::ranges::move(rowsOf(m_own, m_area.width()), std::back_inserter(rows));
    return rows;
}

/// Puts rows at the foot of the sheet.
void Arranger::placeWide(std::span<const Row> rows)
{
    for (size_t i = rows.size(); i-- > 0;) {
        putRow(rows[i], m_area, m_area.bottom(), rows[i].height);
        m_area.setBottom(m_area.bottom() - rows[i].height - gap);
        for (const size_t box : rows[i].boxes) {
            std::erase(m_unplaced, box);
            std::erase(m_own, box);
        }
    }
}

/// Rows under the picture: of controls that stand there, of controls that the picture does not
/// show, and of the pilot's own boxes.
std::vector<Row> Arranger::rowsWith(const Indices &below)
{
    std::vector<Row> rows;
    for (const Indices *boxes : { &below, &std::as_const(m_unplaced), &std::as_const(m_own) }) {
        std::ranges::move(rowsOf(*boxes, centre().width()), std::back_inserter(rows));
    }
    return rows;
}

/// All ways to part the controls that a vertical cut and a number of the lowest controls under the
/// picture give.
std::vector<Plan> Arranger::plans()
{
    Indices byHeight = m_placed;
    std::ranges::stable_sort(byHeight, std::greater(),
                             [this](size_t box) { return control(box).center().y(); });
    const auto byPlace = [this](size_t box) {
        return control(box).center().x();
    };
    std::vector<Plan> plans;
    for (size_t count = 0; count <= std::min(mostBelow, byHeight.size()); ++count) {
        if (count > 0 && leastHeight(1) > m_area.height()) {
            break;
        }
        const auto cut = byHeight.begin() + std::ptrdiff_t(count);
        Indices below(byHeight.begin(), cut);
        Indices beside(cut, byHeight.end());
        std::ranges::stable_sort(below, {}, byPlace);
        std::ranges::stable_sort(beside, {}, byPlace);
        const std::vector<Row> rows = rowsWith(below);
        for (size_t split = 0; split <= beside.size(); ++split) {
            const auto middle = beside.begin() + std::ptrdiff_t(split);
            plans.push_back(
                { Indices(beside.begin(), middle), Indices(middle, beside.end()), rows });
        }
    }
    return plans;
}

/// How many pixels of height the plan lacks.
double Arranger::overflow(const Plan &plan)
{
    double lacks = 0;
    for (const Indices &boxes : { plan.left, plan.right }) {
        const double height = stackHeight(neededHeights(boxes, m_columnWidth), gap);
        lacks += std::max(0.0, height - m_area.height());
    }
    double rows = m_picture.size.height();
    for (const Row &row : plan.rows) {
        rows += gap + row.height;
    }
    return lacks + std::max(0.0, rows - m_area.height());
}

Result Arranger::arrangeAroundPicture()
{
    const std::vector<Plan> all = plans();
    std::vector<double> lacks;
    for (const Plan &plan : all) {
        lacks.push_back(overflow(plan));
    }
    const double least = std::ranges::min(lacks);
    const Plan *best = nullptr;
    Result result{ .lack = least, .cost = std::numeric_limits<double>::max() };
    for (size_t i = 0; i < all.size(); ++i) {
        // Under the picture only when the columns do not hold all: the plans come in that order.
        const bool hasMoreBelow = best && least == 0 && all[i].rows.size() > best->rows.size();
        if (lacks[i] > (least == 0 ? 0 : least + worthATry) || hasMoreBelow) {
            continue;
        }
        if (const double cost = place(all[i]) + lackCost * lacks[i]; cost < result.cost) {
            best = &all[i];
            result = { lacks[i], cost };
        }
    }
    place(*best);
    return result;
}

/// Puts everything where the plan wants it; gives what speaks against the result.
double Arranger::place(const Plan &plan)
{
    placeRows(plan.rows);
    m_rowBoxes.clear();
    for (const Row &row : plan.rows) {
        for (const size_t box : row.boxes) {
            m_rowBoxes.push_back(placeOf(m_sheet.boxes[box]));
        }
    }
    double value = 0;
    std::vector<QLineF> lines;
    for (const bool isLeft : { true, false }) {
        Column column;
        column.left = isLeft ? m_area.left() : m_area.right() - m_columnWidth;
        column.boxes = isLeft ? plan.left : plan.right;
        order(column);
        put(column);
        value += cost(column);
        std::ranges::copy(linesOf(column), std::back_inserter(lines));
    }
    for (const Row &row : plan.rows) {
        for (const size_t box : row.boxes) {
            if (const QRectF end = control(box); !end.isNull()) {
                lines.push_back(leaderLine(placeOf(m_sheet.boxes[box]), end));
                value += lines.back().length();
            }
        }
    }
    return value + crossingCost * crossings(lines);
}

void Arranger::putRow(const Row &row, const QRectF &space, double bottom, double height)
{
    const double width = cellWidth(space.width(), row.boxes.size());
    double left = space.left();
    for (const size_t box : row.boxes) {
        const double right = box == row.boxes.back() ? space.right() : left + width;
        put(box, QRectF(left, bottom - height, right - left, height));
        left += width + gap;
    }
}

/// Rows stand at the foot of the space between the columns, the picture in the middle of the rest.
void Arranger::placeRows(const std::vector<Row> &rows)
{
    std::vector<double> heights;
    for (const Row &row : rows) {
        heights.push_back(row.height);
    }
    const QRectF space = centre();
    const double gaps = gap * double(rows.size());
    heights = squeezed(heights, space.height() - m_picture.size.height() - gaps);
    double bottom = space.bottom();
    for (size_t i = rows.size(); i-- > 0;) {
        putRow(rows[i], space, bottom, heights[i]);
        bottom -= heights[i] + gap;
    }
    SheetPicture &picture = m_sheet.pictures.front();
    picture.Left = float(std::round(space.center().x() - m_picture.size.width() / 2.0));
    const double room = rows.empty() ? space.bottom() : bottom;
    picture.Top = float(std::floor((space.top() + room - m_picture.size.height()) / 2));
}

} // namespace arranging

void RepositionTextBoxes(Sheet &sheet, const PictureWithControls &picture, const CharFormat &plain)
{
    if (sheet.kind != SheetKind::Custom
        && sheet.boxes.size() > arranging::titleBoxes + arranging::ownBoxes) {
        arranging::Arranger(sheet, picture, plain).run();
    }
}

} // namespace zeph
