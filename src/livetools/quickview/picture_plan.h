// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where everything is on Quick View's picture: the two drawings, and around them a label for each
// row of the table. Rows count from 1, all places are in pixels of the picture's widget.

#include "livetools/quickview/control_rows.h"

#include <QRectF>

#include <vector>

namespace zeph {

/// The picture's size at scale 1.
inline constexpr QSize pictureSize(924, 594);
/// The least room around it.
inline constexpr int pictureMargin = 20;

/// The boxes by which the column is selected: /U, /M, /D, /I and /O.
inline constexpr int positionCount = 5;

struct PicturePlan {
    /// By how much everything is larger than at scale 1; never below 1.
    qreal scale = 1;
    QRectF picture; ///< all of it, centred in the widget
    QRectF throttle; ///< room for the drawing, which keeps its shape in it
    QRectF stick;
    QRectF title;
    QRectF microstick; ///< the caption of T1's label
    std::array<QRectF, positionCount> positions;
    std::array<QRectF, rowCount> labels; ///< empty for rows 11 to 14
    std::array<QRectF, hatCount> hats; ///< the frame around a hat's labels, with room for its name
    std::array<qreal, hatCount> hatNames = {}; ///< the height of that room, at the frame's top

    const QRectF &label(int row) const { return labels[size_t(row - 1)]; }
};

/// The plan for a widget of that size. Both drawings and the texts grow with it; what it is wider
/// than the picture's shape goes to the labels. A widget that is too small gets a plan for the
/// least size.
PicturePlan picturePlan(const QSizeF &widget);

/// The way of the line that joins a control to its label, or to the frame of its hat: from the edge
/// of that, over a point beside other labels, to the control. Empty without a place.
std::vector<QPointF> joiningLine(const PicturePlan &plan, int row, const QPointF &control);

/// The hat of a row, 0 to 3; -1 for a row of another control.
constexpr int hatOfRow(int row)
{
    const int at = row - firstHatRow;
    return at >= 0 && at < hatCount * hatRowCount ? at / hatRowCount : -1;
}

} // namespace zeph
