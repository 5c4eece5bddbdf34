// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The geometry of what is drawn on a picture. Angles are degrees from 0 to 360 and grow
// counter-clockwise from the right-hand horizontal, although y of a picture points downwards.

#include "livetools/picture_gestures.h"

namespace zeph {

/// The angle of the line from the centre to the place to rotate from; 0 when one of them is
/// missing, or when both are the same place.
float CalculateTheta1(const Measures &measures);
/// The same of the line to the place to rotate to.
float CalculateTheta2(const Measures &measures);

/// The distance between the two ends of a drag in pixels; 0 when there is no drag.
double radiusOf(const Measures &measures);

/// The place on the circle in the direction of the pointer. A pointer on the centre itself gives
/// the place at the right.
QPointF pointOnCircle(const QPointF &centre, double radius, const QPointF &pointer);

} // namespace zeph
