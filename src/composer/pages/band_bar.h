// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/bands.h"

#include <QWidget>

namespace zeph {

/// The bar that shows the bands of an axis. One band is chosen, and one of its two borders. It
/// changes nothing itself, but tells what pointer and keys ask for: Left and Right move the border,
/// Up and Down go to the next band, Home and End to the other border.
class BandBar : public QWidget
{
    Q_OBJECT
public:
    explicit BandBar(QWidget *parent);

    void showBands(const Bands &bands, int band, Bands::Side side);

    /// Where a percent of the axis is, in pixels from the left end of the widget.
    double placeOf(double percent) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A band was clicked.
    void clicked(int band);
    /// A border is wanted by a key or is about to be dragged.
    void chosen(int band, zeph::Bands::Side side);
    /// The chosen border is wanted at a percent.
    void moved(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    double barWidth() const;
    int percentAt(double x) const;
    /// The border under the pointer, or -1.
    int borderAt(double x) const;
    void grab(int border);
    void describe();
    void paintBand(QPainter &painter, int band) const;
    void paintBorder(QPainter &painter, int border) const;

    Bands m_bands{ 5 };
    int m_band = 0;
    Bands::Side m_side = Bands::Side::Low;
    bool m_isDragged = false;
};

} // namespace zeph
