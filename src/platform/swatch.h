// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colours.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace zeph {

/// A picture of a colour in a thin frame, which is seen on light and dark windows and is the same
/// when it is selected. The size is in pixels of the window, the scale the screen's.
inline QIcon swatchOf(ColorRef colour, const QSize &size, qreal scale)
{
    QPixmap swatch(size * scale);
    swatch.setDevicePixelRatio(scale);
    swatch.fill(toColor(colour));
    QPainter painter(&swatch);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    painter.end();
    QIcon icon;
    icon.addPixmap(swatch, QIcon::Normal);
    icon.addPixmap(swatch, QIcon::Selected);
    return icon;
}

} // namespace zeph
