// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/arrange/leader_lines.h"
#include "layouts/draw/box_text.h"

#include <cmath>
#include <map>
#include <span>
#include <utility>
#include <vector>

namespace zeph::arranging {

inline constexpr double margin = 20;
inline constexpr double gap = 10;
/// Between a column and the picture where there is room for it.
inline constexpr double wideCorridor = 36;
/// Of two lines, or of a line and a box, in pixels of leader line.
inline constexpr double crossingCost = 2000;

using Indices = std::vector<size_t>;

/// Boxes that share a row, side by side.
struct Row {
    Indices boxes;
    double height = 0;
};

/// Which boxes stand where around the picture.
struct Plan {
    Indices left;
    Indices right;
    std::vector<Row> rows; ///< under the picture, from the top
};

/// What is against an arrangement.
struct Result {
    double lack = 0; ///< of height for the texts, in pixels
    double cost = 0; ///< of all, in pixels of leader line
};

struct Column {
    double left = 0;
    Indices boxes;
    std::vector<double> heights;
    std::vector<double> tops;
};

int crossings(const std::vector<QLineF> &lines);

/// Looks for the arrangement of a sheet's boxes that has least against it.
class Arranger
{
public:
    Arranger(Sheet &sheet, const PictureWithControls &picture, const CharFormat &plain)
        : m_sheet(sheet), m_picture(picture),
          m_area(margin, margin, sheet.width - 2 * margin, sheet.height - 2 * margin)
    {
        for (const LayoutTextBox &box : sheet.boxes) {
            m_texts.emplace_back(box.text, plain, 0);
        }
    }

    void run();

private:
    // Measures.
    double neededHeight(size_t box, double width);
    std::vector<double> neededHeights(const Indices &boxes, double width);
    std::vector<Row> rowsOf(const Indices &boxes, double width);
    static double cellWidth(double width, size_t cells)
    {
        return std::floor((width - gap * double(cells - 1)) / double(cells));
    }
    QRectF centre() const;
    bool fitsAroundPicture();
    double leastHeight(size_t moreRows) const;

    // Steps.
    void placeTitleBlock();
    void collect();
    std::vector<Row> wideRows();
    void placeWide(std::span<const Row> rows);
    Result arrangeAroundPicture();
    void arrangeInColumns();
    std::vector<Plan> plans();
    std::vector<Row> rowsWith(const Indices &below);
    double overflow(const Plan &plan);
    double place(const Plan &plan);
    void order(Column &column);
    void stack(Column &column) const;
    double cost(const Column &column) const;
    std::vector<QLineF> linesOf(const Column &column) const;
    double overOthers(const std::vector<QLineF> &lines, const Indices &boxes) const;
    void placeRows(const std::vector<Row> &rows);
    void putRow(const Row &row, const QRectF &space, double bottom, double height);
    void put(const Column &column);
    void put(size_t box, const QRectF &place);
    QRectF control(size_t box) const { return controlOnSheet(m_sheet, m_picture, box); }

    Sheet &m_sheet;
    const PictureWithControls &m_picture;
    QRectF m_area; ///< what is left for boxes and picture
    std::vector<BoxText> m_texts;
    std::map<std::pair<size_t, double>, double> m_heights; ///< needed by a box of some width
    Indices m_placed; ///< boxes whose controls are on the picture
    Indices m_unplaced; ///< boxes of other controls
    Indices m_own; ///< the pilot's own
    std::vector<QRectF> m_rowBoxes; ///< boxes under the picture
    double m_corridor = wideCorridor;
    double m_columnWidth = 0;
};

} // namespace zeph::arranging
