// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/picture_geometry.h"

#include <cmath>

namespace zeph {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double halfTurn = 180;

double degreesOf(double vertical, double horizontal)
{
    return std::atan(vertical / horizontal) * halfTurn / pi;
}

double angleOf(const QPointF &centre, const QPointF &point)
{
    const double right = point.x() - centre.x();
    const double up = centre.y() - point.y();
    if (right > 0) {
        const double angle = degreesOf(up, right);
        return angle < 0 ? angle + 2 * halfTurn : angle;
    }
    if (right < 0) {
        return halfTurn - degreesOf(up, -right);
    }
    if (up == 0) {
        return 0;
    }
    return up > 0 ? halfTurn / 2 : halfTurn * 3 / 2;
}

float angleOf(const std::optional<QPointF> &centre, const std::optional<QPointF> &point)
{
    return centre && point ? float(angleOf(*centre, *point)) : 0;
}

} // namespace

float CalculateTheta1(const Measures &measures)
{
    return angleOf(measures.from, measures.to);
}

float CalculateTheta2(const Measures &measures)
{
    return angleOf(measures.from, measures.target);
}

double radiusOf(const Measures &measures)
{
    if (!measures.from || !measures.to) {
        return 0;
    }
    const QPointF way = *measures.to - *measures.from;
    return std::sqrt(way.x() * way.x() + way.y() * way.y());
}

QPointF pointOnCircle(const QPointF &centre, double radius, const QPointF &pointer)
{
    const double angle = angleOf(centre, pointer) * pi / halfTurn;
    return centre + QPointF(radius * std::cos(angle), -radius * std::sin(angle));
}

} // namespace zeph
