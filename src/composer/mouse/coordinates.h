// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// From places on a picture to the coordinates of the mouse statements.

#include "platform/core/base.h"

#include <QPointF>
#include <QSize>

namespace zeph {

/// The places from which statements count: the four corners of the screen (upper, down, left,
/// right), and its centre in both spellings. ComboCoordinate and ComboOrigin have them in this
/// order.
inline constexpr QStringView mouseOrigins[] = { u"UL", u"DL", u"UR", u"DR", u"CENTER", u"CENTRE" };

enum class MouseUnit : quint8 { Pixels, Percent };

/// A place of a picture, in its pixels from the upper left corner, as an origin counts it: from a
/// corner towards the inside, so that all of the picture is positive; from the centre to the right
/// and down.
QPointF countedFrom(QStringView origin, const QPointF &place, const QSize &picture);

/// Lengths along the picture in a unit. Percentages are of its width for x and of its height for y;
/// those of an empty picture are 0.
QPointF inUnit(MouseUnit unit, const QPointF &pixels, const QSize &picture);

/// "200, 140" or "19.5%, 18.2%", with this text between the two numbers.
QString pairText(MouseUnit unit, const QPointF &pair, QStringView separator);
/// One number of it.
QString lengthText(MouseUnit unit, double length);

} // namespace zeph
