// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_canvas.h"

#include "livetools/pictures/picture_marks.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

/// Of a pixel: a place on the border of two belongs to the second in spite of rounding.
constexpr double roundingError = 1e-6;

int zoomed(int pixels, double zoom)
{
    return pixels == 0 ? 0 : std::max(1, int(std::lround(pixels * zoom)));
}

} // namespace

PictureCanvas::PictureCanvas(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    showCursor();
}

void PictureCanvas::setPicture(const QImage &picture)
{
    m_picture = picture;
    resizeToZoom();
}

void PictureCanvas::setZoom(double zoom)
{
    m_zoom = zoom;
    resizeToZoom();
}

void PictureCanvas::resizeToZoom()
{
    m_smaller = {};
    resize(zoomed(m_picture.width(), m_zoom), zoomed(m_picture.height(), m_zoom));
    update();
}

void PictureCanvas::setGesture(Gesture gesture)
{
    m_tracker.setGesture(gesture);
    // Shift may be let go while another window has the keyboard.
    QCoreApplication::instance()->removeEventFilter(this);
    if (gesture == Gesture::Target) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    showCursor();
    update();
}

void PictureCanvas::setMeasures(const Measures &measures)
{
    follow(m_tracker.setMeasures(measures));
}

void PictureCanvas::follow(GestureTracker::Outcome outcome)
{
    if (outcome.isChanged) {
        update();
        Q_EMIT measuresChanged();
    }
    if (outcome.isFinished) {
        Q_EMIT gestureFinished();
    }
}

void PictureCanvas::showCursor()
{
    if (m_panFrom) {
        setCursor(Qt::ClosedHandCursor);
    } else {
        setCursor(m_tracker.gesture() == Gesture::None ? Qt::OpenHandCursor : Qt::CrossCursor);
    }
}

QPointF PictureCanvas::pixelAt(const QPointF &at) const
{
    const auto pixel = [this](double place, int count) {
        return std::clamp(std::floor(place / m_zoom + roundingError), 0.0,
                          std::max(0.0, count - 1.0));
    };
    return { pixel(at.x(), m_picture.width()), pixel(at.y(), m_picture.height()) };
}

void PictureCanvas::mousePressEvent(QMouseEvent *event)
{
    const bool pans = event->button() == Qt::MiddleButton
        || (event->button() == Qt::LeftButton && m_tracker.gesture() == Gesture::None);
    if (pans) {
        m_panFrom = event->globalPosition().toPoint();
        m_panButton = event->button();
        showCursor();
    } else if (event->button() == Qt::LeftButton) {
        follow(m_tracker.press(pixelAt(event->position())));
    } else if (event->button() == Qt::RightButton) {
        follow(m_tracker.pressRight());
    }
}

void PictureCanvas::mouseMoveEvent(QMouseEvent *event)
{
    if (m_panFrom) {
        const QPoint now = event->globalPosition().toPoint();
        Q_EMIT panned(now - *m_panFrom);
        m_panFrom = now;
        return;
    }
    const QPointF pixel = pixelAt(event->position());
    follow(m_tracker.move(pixel, event->modifiers().testFlag(Qt::ShiftModifier)));
    Q_EMIT pointed(pixel.toPoint());
    if (m_tracker.isDrawing() && m_tracker.isDrawn()) {
        Q_EMIT drawnTo(event->position().toPoint());
    }
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    // A line may be drawn with the left button while the middle one moves the picture.
    if (m_panFrom && event->button() == m_panButton) {
        m_panFrom.reset();
        showCursor();
    } else if (event->button() == Qt::LeftButton) {
        follow(m_tracker.release(pixelAt(event->position())));
    }
}

void PictureCanvas::leaveEvent(QEvent *event)
{
    Q_EMIT pointed(std::nullopt);
    QWidget::leaveEvent(event);
}

bool PictureCanvas::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Shift) {
        follow(m_tracker.shiftReleased());
    }
    return QWidget::eventFilter(watched, event);
}

void PictureCanvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (m_zoom * devicePixelRatioF() < 1) {
        paintSmaller(painter);
    } else {
        paintLarger(painter, event->rect());
    }
    drawMarks(painter, m_tracker.measures(), m_tracker.meaning(), m_zoom, size());
}

void PictureCanvas::paintSmaller(QPainter &painter)
{
    const double ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size()) * ratio).toSize();
    if (m_smaller.size() != wanted) {
        m_smaller = m_picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_smaller.setDevicePixelRatio(ratio);
    }
    painter.drawImage(QPointF(), m_smaller);
}

/// Only what is to be seen: a large picture at a large zoom is larger than any screen.
void PictureCanvas::paintLarger(QPainter &painter, const QRect &part) const
{
    const QRect pixels =
        QRect(QPoint(int(std::floor(part.left() / m_zoom)), int(std::floor(part.top() / m_zoom))),
              QPoint(int(std::ceil((part.right() + 1) / m_zoom)),
                     int(std::ceil((part.bottom() + 1) / m_zoom))))
            .intersected(m_picture.rect());
    const QRectF place(QPointF(pixels.topLeft()) * m_zoom, QSizeF(pixels.size()) * m_zoom);
    painter.drawImage(place, m_picture, QRectF(pixels));
}

} // namespace zeph
