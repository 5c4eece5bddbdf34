// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/band_bar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zeph {

namespace {

// Pixels on both sides of the bar, so that the borders at its ends can be seen and caught.
constexpr int offset = 4;
// Within so many pixels a border is caught.
constexpr double reach = 3;

} // namespace

BandBar::BandBar(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    // A click on a band leaves the focus to the box for its key.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(u"The bands of the axis"_s);
}

void BandBar::showBands(const Bands &bands, int band, Bands::Side side)
{
    m_bands = bands;
    m_band = band;
    m_side = side;
    describe();
    update();
}

void BandBar::describe()
{
    if (!m_bands.isApplied())
        return;
    setAccessibleDescription(
        u"Band %1 of %2, from %3 to %4 percent of the axis; the arrow keys move its %5 end"_s
            .arg(m_band + 1)
            .arg(m_bands.count())
            .arg(m_bands.shownBorder(m_band))
            .arg(m_bands.shownBorder(m_band + 1))
            .arg(m_side == Bands::Side::Low ? u"low"_s : u"high"_s));
}

QSize BandBar::sizeHint() const
{
    return { 600, 2 * fontMetrics().height() + 8 };
}

QSize BandBar::minimumSizeHint() const
{
    return { 300, sizeHint().height() };
}

double BandBar::barWidth() const
{
    return width() - 2 * offset;
}

double BandBar::placeOf(double percent) const
{
    return offset + percent / language::lastPercent * barWidth();
}

int BandBar::percentAt(double x) const
{
    return Bands::percentAt(x - offset, barWidth());
}

int BandBar::borderAt(double x) const
{
    int nearest = -1;
    double least = reach;
    for (int border = 0; border <= m_bands.count() && m_bands.isApplied(); ++border) {
        const double distance = std::abs(placeOf(double(m_bands.border(border))) - x);
        if (distance <= least) {
            nearest = border;
            least = distance;
        }
    }
    return nearest;
}

void BandBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const double x = event->position().x();
    if (const int border = borderAt(x); border >= 0)
        grab(border);
    else if (const auto band = m_bands.bandAt(percentAt(x)))
        Q_EMIT clicked(*band);
}

// The chosen band keeps being chosen where the border is one of its own.
void BandBar::grab(int border)
{
    m_isDragged = true;
    if (border == m_band + 1)
        Q_EMIT chosen(m_band, Bands::Side::High);
    else if (border == m_bands.count())
        Q_EMIT chosen(border - 1, Bands::Side::High);
    else
        Q_EMIT chosen(border, Bands::Side::Low);
}

void BandBar::mouseMoveEvent(QMouseEvent *event)
{
    const double x = event->position().x();
    if (m_isDragged) {
        Q_EMIT moved(percentAt(x));
        return;
    }
    setCursor(borderAt(x) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
    const auto band = m_bands.bandAt(percentAt(x));
    if (m_bands.type() == 5)
        setToolTip(band ? m_bands.macro(*band) : QString());
}

void BandBar::mouseReleaseEvent(QMouseEvent *)
{
    m_isDragged = false;
}

void BandBar::keyPressEvent(QKeyEvent *event)
{
    const int percent =
        m_bands.isApplied() ? m_bands.shownBorder(Bands::borderOf(m_band, m_side)) : 0;
    switch (event->key()) {
    case Qt::Key_Left:
        Q_EMIT moved(percent - 1);
        break;
    case Qt::Key_Right:
        Q_EMIT moved(percent + 1);
        break;
    case Qt::Key_Up:
        Q_EMIT chosen(std::max(m_band - 1, 0), m_side);
        break;
    case Qt::Key_Down:
        Q_EMIT chosen(std::min(m_band + 1, m_bands.count() - 1), m_side);
        break;
    case Qt::Key_Home:
        Q_EMIT chosen(m_band, Bands::Side::Low);
        break;
    case Qt::Key_End:
        Q_EMIT chosen(m_band, Bands::Side::High);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void BandBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF bar(offset, 2, barWidth(), height() - 4);
    painter.fillRect(bar, palette().mid());
    if (!m_bands.isApplied())
        return;
    for (int band = 0; band < m_bands.count(); ++band)
        paintBand(painter, band);
    for (int border = 0; border <= m_bands.count(); ++border)
        paintBorder(painter, border);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void BandBar::paintBand(QPainter &painter, int band) const
{
    const Bands::Span span = m_bands.barOf(band, barWidth(), offset);
    const QRectF place(span.left, 2, span.width, height() - 4);
    const bool isChosen = band == m_band;
    painter.fillRect(place, isChosen ? palette().highlight() : palette().base());
    painter.setPen(palette().color(isChosen ? QPalette::HighlightedText : QPalette::Text));
    const QString number = QString::number(band + 1);
    const QString macro = m_bands.type() == 5 ? m_bands.macro(band) : QString();
    const QString text = macro.isEmpty() ? number : number + u": "_s + macro;
    const int room = int(span.width) - 6;
    const auto fits = [&](const QString &caption) {
        return fontMetrics().horizontalAdvance(caption) <= room;
    };
    if (fits(number)) {
        painter.drawText(place, Qt::AlignCenter,
                         fits(number + u": \u2026"_s)
                             ? fontMetrics().elidedText(text, Qt::ElideRight, room)
                             : number);
    }
}

void BandBar::paintBorder(QPainter &painter, int border) const
{
    const bool isChosen = border == Bands::borderOf(m_band, m_side);
    // The two borders around the middle band have a colour of their own.
    const bool isMiddle = border > 0 && m_bands.isMiddleDivider(border - 1);
    const QColor colour = palette().color(isMiddle ? QPalette::Link : QPalette::Text);
    const double x = placeOf(double(m_bands.border(border)));
    const double thickness = isChosen || isMiddle ? 3 : 1;
    painter.fillRect(
        QRectF(x - thickness / 2, isChosen ? 0 : 2, thickness, isChosen ? height() : height() - 4),
        colour);
}

} // namespace zeph
