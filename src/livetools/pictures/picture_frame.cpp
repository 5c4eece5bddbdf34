// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_frame.h"

#include "livetools/pictures/picture_canvas.h"
#include "platform/core/base.h"

#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace zeph {

namespace {

/// In pixels, in both directions.
constexpr int leastSize = 20;
/// What a notch of the wheel and a key scroll, in pixels.
constexpr int notchStep = 60;
constexpr int keyStep = 20;
constexpr int notch = 120; // in eighths of a degree
constexpr double notchZoom = 1.25;

constexpr std::array zoomSteps = { 0.05, 0.1, 0.25, 0.33, 0.5, 0.67, 0.75, 1.0,
                                   1.5,  2.0, 3.0,  4.0,  6.0, 8.0,  12.0, 16.0 };
/// Two zooms that differ by less are one step.
constexpr double sameZoom = 0.001;

} // namespace

PictureFrame::PictureFrame(QWidget *parent)
    : QFrame(parent), m_port(new QWidget(this)),
      m_hint(new QLabel(u"No picture yet. Open one from the Image menu."_s, m_port)),
      m_canvas(new PictureCanvas(m_port)), m_horizontal(new QScrollBar(Qt::Horizontal, this)),
      m_vertical(new QScrollBar(Qt::Vertical, this))
{
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(leastSize, leastSize);
    setFocusPolicy(Qt::StrongFocus);
    m_hint->setObjectName(u"LabelNoPicture"_s);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_canvas->setObjectName(u"Picture3"_s);
    m_canvas->setAccessibleName(u"Picture"_s);
    m_horizontal->setObjectName(u"HScroll1"_s);
    m_horizontal->setAccessibleName(u"Scroll sideways"_s);
    m_vertical->setObjectName(u"VScroll1"_s);
    m_vertical->setAccessibleName(u"Scroll up and down"_s);
    for (QScrollBar *bar : { m_horizontal, m_vertical }) {
        bar->setSingleStep(keyStep);
        connect(bar, &QScrollBar::valueChanged, this, &PictureFrame::place);
    }
    connect(m_canvas, &PictureCanvas::panned, this, [this](const QPoint &by) { scrollBy(-by); });
    connect(m_canvas, &PictureCanvas::drawnTo, this, &PictureFrame::ensureVisible);
    RepositionControls();
}

void PictureFrame::showPicture(const QImage &picture)
{
    m_canvas->setPicture(picture);
    m_canvas->setZoom(1);
    m_horizontal->setValue(0);
    m_vertical->setValue(0);
    RepositionControls();
    Q_EMIT zoomChanged();
}

void PictureFrame::refreshPicture(const QImage &picture)
{
    m_canvas->setPicture(picture);
    RepositionControls();
}

double PictureFrame::zoom() const
{
    return m_canvas->zoom();
}

void PictureFrame::setZoom(double zoom)
{
    zoomAround(zoom, m_port->rect().center());
}

void PictureFrame::zoomIn()
{
    const auto *next = std::ranges::upper_bound(zoomSteps, zoom() + sameZoom);
    setZoom(next == zoomSteps.end() ? zoomSteps.back() : *next);
}

void PictureFrame::zoomOut()
{
    const auto *next = std::ranges::lower_bound(zoomSteps, zoom() - sameZoom);
    setZoom(next == zoomSteps.begin() ? zoomSteps.front() : *std::prev(next));
}

void PictureFrame::setFits(bool fits)
{
    m_fits = fits;
    RepositionControls();
    Q_EMIT zoomChanged();
}

double PictureFrame::fittingZoom() const
{
    const QSizeF picture = m_canvas->picture().size();
    if (picture.isEmpty()) {
        return 1;
    }
    const QSizeF room = contentsRect().size();
    return std::clamp(std::min(room.width() / picture.width(), room.height() / picture.height()),
                      zoomSteps.front(), zoomSteps.back());
}

void PictureFrame::zoomAround(double zoom, const QPoint &anchor)
{
    const QPointF pixel = QPointF(anchor - m_canvas->pos()) / m_canvas->zoom();
    m_fits = false;
    m_canvas->setZoom(std::clamp(zoom, zoomSteps.front(), zoomSteps.back()));
    RepositionControls();
    const QPoint corner = (pixel * m_canvas->zoom()).toPoint() - anchor;
    m_horizontal->setValue(corner.x());
    m_vertical->setValue(corner.y());
    Q_EMIT zoomChanged();
}

void PictureFrame::RepositionControls()
{
    if (m_fits && std::abs(fittingZoom() - m_canvas->zoom()) > 0) {
        m_canvas->setZoom(fittingZoom());
        Q_EMIT zoomChanged();
    }
    const QRect all = contentsRect();
    const QSize bars(m_vertical->sizeHint().width(), m_horizontal->sizeHint().height());
    const QSize picture = m_canvas->size();
    // A picture that fits may be a pixel too large by rounding.
    const QSize most = all.size() + (m_fits ? QSize(1, 1) : QSize(0, 0));
    // A bar takes room, which may make the other one necessary.
    bool isWide = picture.width() > most.width();
    const bool isHigh = picture.height() > most.height() - (isWide ? bars.height() : 0);
    isWide = picture.width() > most.width() - (isHigh ? bars.width() : 0);
    const QSize room = all.size() - QSize(isHigh ? bars.width() : 0, isWide ? bars.height() : 0);
    m_port->setGeometry(QRect(all.topLeft(), room));
    m_hint->setGeometry(m_port->rect());
    m_hint->setVisible(m_canvas->picture().isNull());
    m_horizontal->setGeometry(all.left(), all.top() + room.height(), room.width(), bars.height());
    m_vertical->setGeometry(all.left() + room.width(), all.top(), bars.width(), room.height());
    m_horizontal->setVisible(isWide);
    m_vertical->setVisible(isHigh);
    m_horizontal->setRange(0, isWide ? picture.width() - room.width() : 0);
    m_vertical->setRange(0, isHigh ? picture.height() - room.height() : 0);
    m_horizontal->setPageStep(std::max(1, room.width()));
    m_vertical->setPageStep(std::max(1, room.height()));
    place();
}

void PictureFrame::place()
{
    const QSize free = (m_port->size() - m_canvas->size()).expandedTo({ 0, 0 });
    m_canvas->move(free.width() / 2 - m_horizontal->value(),
                   free.height() / 2 - m_vertical->value());
}

void PictureFrame::scrollBy(const QPoint &by)
{
    m_horizontal->setValue(m_horizontal->value() + by.x());
    m_vertical->setValue(m_vertical->value() + by.y());
}

void PictureFrame::ensureVisible(const QPoint &at)
{
    const QPoint seen = at + m_canvas->pos();
    const auto beyond = [](int place, int size) {
        return std::min(place, 0) + std::max(place - size + 1, 0);
    };
    scrollBy({ beyond(seen.x(), m_port->width()), beyond(seen.y(), m_port->height()) });
}

void PictureFrame::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    RepositionControls();
}

void PictureFrame::wheelEvent(QWheelEvent *event)
{
    const QPoint turned = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoomAround(zoom() * std::pow(notchZoom, double(turned.y()) / notch),
                   m_port->mapFrom(this, event->position().toPoint()));
    } else {
        QPoint by = event->pixelDelta().isNull() ? turned * notchStep / notch : event->pixelDelta();
        // A picture that is only too wide is scrolled sideways by every wheel.
        if (by.x() == 0 && m_vertical->maximum() == 0) {
            by = by.transposed();
        }
        scrollBy(-by);
    }
    event->accept();
}

void PictureFrame::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return scrollBy({ -keyStep, 0 });
    case Qt::Key_Right:
        return scrollBy({ keyStep, 0 });
    case Qt::Key_Up:
        return scrollBy({ 0, -keyStep });
    case Qt::Key_Down:
        return scrollBy({ 0, keyStep });
    case Qt::Key_PageUp:
        return scrollBy({ 0, -m_vertical->pageStep() });
    case Qt::Key_PageDown:
        return scrollBy({ 0, m_vertical->pageStep() });
    default:
        QFrame::keyPressEvent(event);
    }
}

} // namespace zeph
