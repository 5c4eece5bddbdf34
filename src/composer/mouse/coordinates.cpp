// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/coordinates.h"

#include "composer/mouse/number_text.h"

namespace zeph {

QPointF countedFrom(QStringView origin, const QPointF &place, const QSize &picture)
{
    // Corners are two letters: U or D, then L or R.
    constexpr qsizetype cornerLength = 2;
    const QPointF size(picture.width(), picture.height());
    if (origin.size() != cornerLength)
        return place - size / 2;
    return { origin[1] == u'R' ? size.x() - place.x() : place.x(),
             origin[0] == u'D' ? size.y() - place.y() : place.y() };
}

QPointF inUnit(MouseUnit unit, const QPointF &pixels, const QSize &picture)
{
    if (unit == MouseUnit::Pixels)
        return pixels;
    if (picture.isEmpty())
        return {};
    constexpr double whole = 100;
    return { pixels.x() * whole / picture.width(), pixels.y() * whole / picture.height() };
}

QString pairText(MouseUnit unit, const QPointF &pair, QStringView separator)
{
    return lengthText(unit, pair.x()).append(separator).append(lengthText(unit, pair.y()));
}

QString lengthText(MouseUnit unit, double length)
{
    return unit == MouseUnit::Percent ? numberText(length) + u'%' : numberText(length);
}

} // namespace zeph
