// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_view.h"

#include "layouts/window/sheet_model.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace zeph {

namespace {

constexpr int scrollStep = 20;

/// Makes a place in one direction visible: the scroll value nearest to the present one.
int valueFor(int value, int from, int to, int extent)
{
    // Where it is larger than the window, its start counts.
    return std::min(std::max(value, to - extent), from);
}

} // namespace

SheetGeometry RepositionThePictureboxes(const QSize &client, const QSize &sheet, int barBreadth)
{
    const QSize needed = sheet + QSize(2 * sheetMargin, 2 * sheetMargin);
    bool hasAcross = needed.width() > client.width();
    const bool hasDown = needed.height() > client.height() - (hasAcross ? barBreadth : 0);
    hasAcross = needed.width() > client.width() - (hasDown ? barBreadth : 0);
    // A bar takes room, so that the other one may be needed too.
    const bool hasDownToo =
        hasDown || needed.height() > client.height() - (hasAcross ? barBreadth : 0);
    const QSize port(std::max(0, client.width() - (hasDownToo ? barBreadth : 0)),
                     std::max(0, client.height() - (hasAcross ? barBreadth : 0)));
    SheetGeometry geometry;
    geometry.port = QRect(QPoint(), port);
    geometry.across = std::max(0, needed.width() - port.width());
    geometry.down = std::max(0, needed.height() - port.height());
    geometry.corner = { geometry.across > 0 ? sheetMargin : (port.width() - sheet.width()) / 2,
                        geometry.down > 0 ? sheetMargin : (port.height() - sheet.height()) / 2 };
    return geometry;
}

SheetView::SheetView(SheetModel &model, QWidget *parent)
    : QWidget(parent), m_model(model), m_port(new QWidget(this)),
      m_canvas(new SheetCanvas(model, m_port)), m_across(new QScrollBar(Qt::Horizontal, this)),
      m_down(new QScrollBar(Qt::Vertical, this))
{
    setObjectName(u"Picture2"_s);
    m_across->setObjectName(u"HScroll1"_s);
    m_across->setAccessibleName(u"Scroll the sheet sideways"_s);
    m_down->setObjectName(u"VScroll1"_s);
    m_down->setAccessibleName(u"Scroll the sheet up and down"_s);
    m_port->setObjectName(u"SheetPort"_s);
    m_port->setBackgroundRole(QPalette::Mid);
    m_port->setAutoFillBackground(true);
    for (QScrollBar *bar : { m_across, m_down }) {
        bar->setSingleStep(scrollStep);
        connect(bar, &QScrollBar::valueChanged, this, &SheetView::scroll);
    }
    layOut();
}

void SheetView::showSheet(const Sheet &shown)
{
    const QSize before = m_canvas->size();
    m_canvas->showSheet(shown);
    if (m_canvas->size() != before) {
        layOut();
    }
}

void SheetView::layOut()
{
    const int breadth = m_down->sizeHint().width();
    m_geometry = RepositionThePictureboxes(size(), m_canvas->size(), breadth);
    const QSize port = m_geometry.port.size();
    m_port->setGeometry(m_geometry.port);
    m_across->setGeometry(0, port.height(), port.width(), breadth);
    m_down->setGeometry(port.width(), 0, breadth, port.height());
    m_across->setVisible(m_geometry.across > 0);
    m_down->setVisible(m_geometry.down > 0);
    m_across->setPageStep(port.width());
    m_down->setPageStep(port.height());
    m_across->setRange(0, m_geometry.across);
    m_down->setRange(0, m_geometry.down);
    scroll();
}

void SheetView::scroll()
{
    m_canvas->move(m_geometry.corner - QPoint(m_across->value(), m_down->value()));
}

void SheetView::showSelected()
{
    if (const LayoutTextBox *box = m_model.selectedBox()) {
        const QRect place = QRectF(box->Left, box->Top, box->Width, box->Height).toRect();
        const QRect on = place.translated(m_geometry.corner);
        m_across->setValue(
            valueFor(m_across->value(), on.left(), on.right(), m_geometry.port.width()));
        m_down->setValue(
            valueFor(m_down->value(), on.top(), on.bottom(), m_geometry.port.height()));
    }
}

void SheetView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    const bool isAcross = event->modifiers() & Qt::ShiftModifier
        || std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y());
    QApplication::sendEvent(isAcross ? m_across : m_down, event);
}

} // namespace zeph
