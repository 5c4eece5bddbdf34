// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The two drawings of Quick View's picture, and where the controls of its rows are on them.

#include "cougar/drawn_picture.h"
#include "cougar/handle_file.h"
#include "livetools/quickview/picture_plan.h"

namespace zeph {

/// A place on one of the two drawings, in its pixels; empty when the control is not on it.
struct DrawnPlace {
    bool onThrottle = false;
    QRectF place = {};
};

struct DrawnControls {
    DrawnPicture throttle;
    DrawnPicture stick;
    /// By row; a direction of a hat has a place of its own where the drawing tells it.
    std::array<DrawnPlace, rowCount> rows;
    std::array<DrawnPlace, hatCount> hats;

    const DrawnPlace &ofRow(int row) const { return rows[size_t(row - 1)]; }
    /// Where the line of a row's label leads: to the hat of a direction, else to the control.
    const DrawnPlace &joinedTo(int row) const;
};

/// The drawings of the program's folder, the stick with the handle that the settings file names. A
/// picture that cannot be read is missing, and so are the controls on it.
DrawnControls drawnControls(const QString &appFolder, const QString &iniPath);

/// Where a drawing is on the widget: in the middle of its room, in its own shape.
QRectF drawingOnWidget(const DrawnControls &controls, const PicturePlan &plan, bool throttle);
/// Where a place of a drawing is on the widget; empty when it is on none.
QRectF placeOnWidget(const DrawnControls &controls, const PicturePlan &plan,
                     const DrawnPlace &place);

} // namespace zeph
