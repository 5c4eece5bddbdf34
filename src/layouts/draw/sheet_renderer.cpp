// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_renderer.h"

#include "platform/colours.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

void drawPictures(QPainter &painter, const Sheet &sheet, const SheetLook &look)
{
    const size_t count = std::min(sheet.pictures.size(), look.pictures.size());
    for (size_t i = 0; i < count; ++i) {
        const SheetPicture &picture = sheet.pictures[i];
        if (picture.Visible) {
            look.pictures[i].draw(
                painter,
                QRectF(QPointF(picture.Left, picture.Top), QSizeF(look.pictures[i].size())));
        }
    }
}

void drawLeaderLines(QPainter &painter, const std::vector<QLineF> &lines)
{
    const auto all = [&](const QPen &pen) {
        painter.setPen(pen);
        for (const QLineF &line : lines) {
            if (!line.isNull()) {
                painter.drawLine(line);
            }
        }
    };
    all(QPen(Qt::white, leaderHalo, Qt::SolidLine, Qt::FlatCap));
    all(QPen(toColor(ruleColour), leaderWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setPen(QPen(Qt::white, leaderWidth));
    painter.setBrush(toColor(ruleColour));
    for (const QLineF &line : lines) {
        if (!line.isNull()) {
            painter.drawEllipse(line.p2(), leaderDot, leaderDot);
        }
    }
}

void drawFrame(QPainter &painter, const QRectF &box, bool isWhite)
{
    painter.setPen(
        QPen(toColor(frameColour), frameWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(isWhite ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
    painter.drawRect(
        box.adjusted(frameWidth / 2, frameWidth / 2, -frameWidth / 2, -frameWidth / 2));
    painter.fillRect(QRectF(box.topLeft(), QSizeF(box.width(), topRuleWidth)), toColor(ruleColour));
}

} // namespace

std::vector<size_t> paintingOrder(const Sheet &sheet, const std::vector<int> &raised)
{
    std::vector<size_t> order;
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        if (std::ranges::find(raised, int(i)) == raised.end()) {
            order.push_back(i);
        }
    }
    for (const int box : raised) {
        if (box >= 0 && box < int(sheet.boxes.size())) {
            order.push_back(size_t(box));
        }
    }
    return order;
}

std::array<QPointF, 3> overflowMark(const QRectF &box)
{
    const QPointF corner = box.bottomRight() - QPointF(frameWidth, frameWidth);
    return { corner, corner - QPointF(overflowMarkSize, 0), corner - QPointF(0, overflowMarkSize) };
}

void SheetRenderer::drawPaper(QPainter &painter, const Sheet &sheet)
{
    painter.fillRect(0, 0, sheet.width, sheet.height, Qt::white);
}

void SheetRenderer::draw(QPainter &painter, const Sheet &sheet, const SheetLook &look,
                         int withoutText)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(QRectF(0, 0, sheet.width, sheet.height), Qt::IntersectClip);
    drawPictures(painter, sheet, look);
    if (look.leaderLines) {
        drawLeaderLines(painter, leaderLines(sheet, look.controls));
    }
    for (const size_t i : paintingOrder(sheet, look.raised)) {
        if (sheet.boxes[i].Visible) {
            drawBox(painter, sheet, look, i, int(i) != withoutText);
        }
    }
    painter.restore();
}

void SheetRenderer::drawBox(QPainter &painter, const Sheet &sheet, const SheetLook &look,
                            size_t box, bool withText)
{
    const QRectF place = placeOf(sheet.boxes[box]);
    painter.save();
    drawFrame(painter, place, look.whiteBoxes);
    if (withText) {
        const BoxText &laidOut = text(sheet, look, box);
        painter.setClipRect(place, Qt::IntersectClip);
        painter.translate(place.topLeft());
        laidOut.draw(painter, place.height());
        painter.translate(-place.topLeft());
        if (look.overflowMarks && !laidOut.fits(place.height())) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(toColor(overflowColour));
            painter.drawPolygon(overflowMark(place).data(), 3);
        }
    }
    painter.restore();
}

const BoxText &SheetRenderer::text(const Sheet &sheet, const SheetLook &look, size_t box)
{
    if (m_texts.size() < sheet.boxes.size()) {
        m_texts.resize(sheet.boxes.size());
    }
    Kept &kept = m_texts[box];
    const LayoutTextBox &wanted = sheet.boxes[box];
    if (!kept.text || kept.source != wanted.text || kept.plain != look.plain) {
        kept.text = std::make_unique<BoxText>(wanted.text, look.plain, wanted.Width);
        kept.source = wanted.text;
        kept.plain = look.plain;
    } else if (kept.width != wanted.Width) {
        kept.text->setBoxWidth(wanted.Width);
    }
    kept.width = wanted.Width;
    return *kept.text;
}

Expected<void, QString> printSheet(QPagedPaintDevice &device, const Sheet &sheet,
                                   const SheetLook &look)
{
    // A sheet as large as the paper has its one page in spite of rounded sizes.
    constexpr double tolerance = 0.5;
    const double across = device.logicalDpiX() / sheetDotsPerInch;
    const double down = device.logicalDpiY() / sheetDotsPerInch;
    const QSizeF page(device.width() / across, device.height() / down);
    const int columns = std::max(1, int(std::ceil((sheet.width - tolerance) / page.width())));
    const int rows = std::max(1, int(std::ceil((sheet.height - tolerance) / page.height())));
    QPainter painter;
    if (!painter.begin(&device)) {
        return Unexpected<QString>(u"the printer doesn't take anything."_s);
    }
    SheetRenderer renderer;
    for (int i = 0; i < rows * columns; ++i) {
        if (i > 0 && !device.newPage()) {
            return Unexpected<QString>(u"it takes no page %1."_s.arg(i + 1));
        }
        painter.save();
        painter.scale(across, down);
        // What fits stands in the middle of its page.
        painter.translate(columns > 1 ? -page.width() * (i % columns)
                                      : std::max(0.0, (page.width() - sheet.width) / 2),
                          rows > 1 ? -page.height() * (i / columns)
                                   : std::max(0.0, (page.height() - sheet.height) / 2));
        renderer.draw(painter, sheet, look);
        painter.restore();
    }
    if (!painter.end()) {
        return Unexpected<QString>(u"it didn't finish."_s);
    }
    return {};
}

} // namespace zeph
