// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_exports.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

namespace zeph {

namespace {

/// A4 with the sheet's orientation, or paper of its own size.
QPageLayout pageFor(const Sheet &sheet)
{
    constexpr double pointsPerPixel = 72 / sheetDotsPerInch;
    const QSizeF size = QSizeF(sheet.width, sheet.height) * pointsPerPixel;
    const auto orientation =
        sheet.width > sheet.height ? QPageLayout::Landscape : QPageLayout::Portrait;
    const QPageLayout paper(QPageSize(QPageSize::A4), orientation, QMarginsF());
    const QSizeF room = paper.fullRect(QPageLayout::Point).size();
    if (size.width() <= room.width() && size.height() <= room.height()) {
        return paper;
    }
    // Such a page has its size as it is; an orientation would turn it.
    return { QPageSize(QSizeF(std::ceil(size.width()), std::ceil(size.height())), QPageSize::Point,
                       QString(), QPageSize::ExactMatch),
             QPageLayout::Portrait, QMarginsF() };
}

} // namespace

Expected<QByteArray, QString> pdfOf(const Sheet &sheet, const SheetLook &look, const QString &title)
{
    constexpr int dotsPerInch = 1200;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(u"Zeph"_s);
    writer.setResolution(dotsPerInch);
    writer.setPageLayout(pageFor(sheet));
    if (const auto drawn = printSheet(writer, sheet, look); !drawn) {
        return Unexpected<QString>(drawn.error());
    }
    return buffer.data();
}

Expected<QByteArray, QString> pngOf(const Sheet &sheet, const SheetLook &look, int scale)
{
    QImage image(QSize(sheet.width, sheet.height) * scale, QImage::Format_RGB32);
    if (image.isNull()) {
        return Unexpected<QString>(u"the picture would be too large."_s);
    }
    constexpr double inchesPerMetre = 1 / 0.0254;
    image.setDotsPerMeterX(qRound(sheetDotsPerInch * scale * inchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    painter.scale(scale, scale);
    SheetRenderer::drawPaper(painter, sheet);
    SheetRenderer().draw(painter, sheet, look);
    painter.end();
    QBuffer buffer;
    QImageWriter writer(&buffer, "PNG");
    if (!writer.write(image)) {
        return Unexpected<QString>(writer.errorString());
    }
    return buffer.data();
}

QStringList exportEndings()
{
    return { u"pdf"_s, u"svg"_s, u"png"_s, u"html"_s };
}

Expected<QByteArray, QString> exportSheet(QStringView ending, const Sheet &sheet,
                                          const SheetLook &look, const QString &title, int scale)
{
    if (ending == u"pdf") {
        return pdfOf(sheet, look, title);
    }
    if (ending == u"svg") {
        return svgOf(sheet, look, title);
    }
    if (ending == u"png") {
        return pngOf(sheet, look, scale);
    }
    return htmlOf(sheet, look, title);
}

} // namespace zeph
