// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/hot_spot_button.h"

#include <QKeyEvent>
#include <QPainter>

namespace zeph {

namespace {

// The pictures are light on every desktop, so these colours do not follow the palette. A user's own
// picture may be dark: the white around a ring shows it there too.
constexpr QColor ringColour(0x15, 0x5F, 0xC0);
constexpr QColor markColour(0xD0, 0x5A, 0x00);
constexpr QColor around(255, 255, 255, 220);

constexpr qreal pointedWidth = 1.25;
constexpr qreal focusedWidth = 2.25;
constexpr qreal widest = focusedWidth + 2;

QColor seeThrough(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

} // namespace

HotSpotButton::HotSpotButton(const QString &id, QWidget *parent) : QAbstractButton(parent)
{
    setObjectName(id);
    setText(controlOf(id));
    setAccessibleName(spokenName(id));
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAttribute(Qt::WA_Hover);
}

void HotSpotButton::setMarked(bool isMarked)
{
    m_isMarked = isMarked;
    update();
}

void HotSpotButton::setHasPicture(bool hasPicture)
{
    m_hasPicture = hasPicture;
    update();
}

void HotSpotButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void HotSpotButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_hasPicture) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRoundedRect(frame(), radius(), radius());
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
    if (m_isMarked || isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(seeThrough(isDown() ? ringColour : markColour, 80));
        painter.drawRoundedRect(frame(), radius(), radius());
    }
    if (hasFocus()) {
        drawRing(painter, ringColour, focusedWidth);
    } else if (underMouse()) {
        drawRing(painter, ringColour, pointedWidth);
    } else if (m_isMarked) {
        drawRing(painter, markColour, pointedWidth);
    }
}

void HotSpotButton::drawRing(QPainter &painter, const QColor &colour, qreal width) const
{
    painter.setBrush(Qt::NoBrush);
    for (const QPen &pen : { QPen(around, width + 2), QPen(colour, width) }) {
        painter.setPen(pen);
        painter.drawRoundedRect(frame(), radius(), radius());
    }
}

QRectF HotSpotButton::frame() const
{
    constexpr qreal inset = widest / 2;
    return QRectF(rect()).adjusted(inset, inset, -inset, -inset);
}

qreal HotSpotButton::radius() const
{
    return std::min(width(), height()) / 4.0;
}

} // namespace zeph
