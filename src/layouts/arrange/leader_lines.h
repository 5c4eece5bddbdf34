// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lines that lead from a box to its control on the picture.

#include "cougar/handle_file.h"
#include "layouts/sheet.h"

#include <QLineF>
#include <QRectF>

namespace zeph {

/// A picture and where the controls are on it, in its own pixels.
struct PictureWithControls {
    QSize size;
    std::vector<QRectF> controls; ///< one a box; null for a box whose control is not on the picture
};

/// The controls of a sheet's boxes on a drawing that ships, or on another picture with the hot
/// spots of its handle. The custom sheet's boxes have no controls.
PictureWithControls controlsOn(SheetKind kind, const Drawing &drawing);
PictureWithControls controlsOn(SheetKind kind, const QSize &picture, const QList<HotSpot> &spots);

/// Where a box's control is on the sheet; null when it has none there, and without a picture.
QRectF controlOnSheet(const Sheet &sheet, const PictureWithControls &picture, size_t box);

/// The shortest line from a box's edge to its control, ending in the control's middle. Null when
/// the box covers the control.
QLineF leaderLine(const QRectF &box, const QRectF &control);

/// The lines of all boxes that are shown, by box; null for those without one. None while the
/// picture is hidden.
std::vector<QLineF> leaderLines(const Sheet &sheet, const PictureWithControls &picture);

/// A box's place on the sheet.
inline QRectF placeOf(const LayoutTextBox &box)
{
    return { box.Left, box.Top, box.Width, box.Height };
}

} // namespace zeph
