// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/pictures/gesture_tracker.h"

#include <QImage>
#include <QWidget>

namespace zeph {

/// A picture at a zoom, as large as it is drawn, with the marks of what was measured on it. Knows
/// nothing of scrolling.
class PictureCanvas : public QWidget
{
    Q_OBJECT
public:
    explicit PictureCanvas(QWidget *parent);

    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }
    /// At 1, a pixel of the picture is one device-independent pixel.
    void setZoom(double zoom);
    double zoom() const { return m_zoom; }

    const GestureTracker &tracker() const { return m_tracker; }
    void setGesture(Gesture gesture);
    void setMeasures(const Measures &measures);

Q_SIGNALS:
    void measuresChanged();
    void gestureFinished();
    /// A line is being drawn to that place of this widget.
    void drawnTo(const QPoint &at);
    /// The picture is to follow the mouse by that much.
    void panned(const QPoint &by);
    /// The pixel below the mouse; none when the mouse has left the picture.
    void pointed(const std::optional<QPoint> &pixel);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void resizeToZoom();
    void follow(GestureTracker::Outcome outcome);
    void showCursor();
    QPointF pixelAt(const QPointF &at) const;
    void paintSmaller(QPainter &painter);
    void paintLarger(QPainter &painter, const QRect &part) const;

    QImage m_picture;
    QImage m_smaller; ///< the picture as it is drawn when that is smaller than it is
    double m_zoom = 1;
    GestureTracker m_tracker;
    std::optional<QPoint> m_panFrom; ///< on the screen, while the picture follows the mouse
    Qt::MouseButton m_panButton = Qt::NoButton; ///< whose release ends that
};

} // namespace zeph
