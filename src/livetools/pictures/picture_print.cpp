// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_print.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace zeph {

namespace {

constexpr double screenDpi = 96;
constexpr double millimetresPerInch = 25.4;

} // namespace

QSize pageInPixels(const QPrinter &printer)
{
    const QSizeF page = printer.pageLayout().paintRect(QPageLayout::Millimeter).size();
    return (page / millimetresPerInch * screenDpi).toSize().expandedTo({ 1, 1 });
}

QList<QRect> pagesOf(const QSize &picture, const QSize &page)
{
    QList<QRect> pages;
    for (int top = 0; top < picture.height(); top += page.height()) {
        for (int left = 0; left < picture.width(); left += page.width()) {
            pages.append(QRect(QPoint(left, top), page).intersected(QRect(QPoint(), picture)));
        }
    }
    return pages;
}

Expected<void, QString> printPicture(QPrinter &printer, const QImage &picture, const QString &name)
{
    printer.setDocName(name);
    QPainter painter;
    if (!painter.begin(&printer)) {
        return Unexpected<QString>(u"the printer can't be reached"_s);
    }
    painter.scale(printer.logicalDpiX() / screenDpi, printer.logicalDpiY() / screenDpi);
    bool isFirst = true;
    for (const QRect &part : pagesOf(picture.size(), pageInPixels(printer))) {
        if (!std::exchange(isFirst, false) && !printer.newPage()) {
            return Unexpected<QString>(u"the printer took no further page"_s);
        }
        painter.drawImage(QRectF(QPointF(), QSizeF(part.size())), picture, QRectF(part));
    }
    if (!painter.end()) {
        return Unexpected<QString>(u"the printer has stopped"_s);
    }
    return {};
}

} // namespace zeph
