// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/picture_gestures.h"

class QPainter;
class QSizeF;

namespace zeph {

/// Draws what was measured over a picture: light lines with a dark border, which can be seen on
/// any picture, as thin at every zoom. The zoom turns the picture's pixels into the painter's;
/// numbers stay within the area.
void drawMarks(QPainter &painter, const Measures &measures, Gesture meaning, double zoom,
               const QSizeF &area);

/// A number with at most one digit after the point, as the marks show it.
QString markNumber(double value);

} // namespace zeph
