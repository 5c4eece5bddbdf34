// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/line_margin.h"

#include "platform/core/base.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

constexpr int space = 6; // pixels on either side of the numbers
constexpr int fewestDigits = 3;
constexpr double readable = 4.5;

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

QColor mix(const QColor &from, const QColor &to, double part)
{
    const auto between = [part](int one, int other) {
        return int(std::lround(one + (other - one) * part));
    };
    return QColor(between(from.red(), to.red()), between(from.green(), to.green()),
                  between(from.blue(), to.blue()));
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05);
}

MarginColours marginColours(const QColor &textBackground)
{
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const bool dark = contrast(textBackground, white) > contrast(textBackground, black);
    const QColor &ink = dark ? white : black;
    MarginColours colours;
    colours.mark = mix(textBackground, ink, dark ? 0.10 : 0.06);
    colours.background = mix(textBackground, ink, 0.05);
    if (contrast(colours.background, ink) < readable) {
        // Nearer to the ink, a background of medium brightness leaves it unreadable: go away from
        // it.
        colours.background = mix(textBackground, dark ? black : white, 0.05);
    }
    colours.current = ink;
    // The faintest colour that can still be read.
    for (int percent = 50; percent <= 100; percent += 5) {
        colours.number = mix(colours.background, ink, percent / 100.0);
        if (contrast(colours.background, colours.number) >= readable) {
            break;
        }
    }
    return colours;
}

LineMargin::LineMargin(QPlainTextEdit &text, SeenLines seenLines)
    : QWidget(&text), m_text(text), m_seenLines(std::move(seenLines))
{
    setObjectName(u"LineMargin"_s);
}

int LineMargin::wantedWidth() const
{
    const auto digits = QString::number(m_text.blockCount()).size();
    const QString widest(std::max(digits, qsizetype(fewestDigits)), u'8');
    return m_text.fontMetrics().horizontalAdvance(widest) + 2 * space;
}

void LineMargin::paintEvent(QPaintEvent *event)
{
    const MarginColours colours = marginColours(m_text.palette().color(QPalette::Base));
    QPainter painter(this);
    painter.fillRect(event->rect(), colours.background);
    painter.setFont(m_text.font());
    const int right = width() - space;
    const int current = m_text.textCursor().blockNumber() + 1;
    for (const SeenLine &line : m_seenLines()) {
        const QString number = QString::number(line.number);
        painter.setPen(line.number == current ? colours.current : colours.number);
        painter.drawText(
            QPointF(right - m_text.fontMetrics().horizontalAdvance(number), line.baseline), number);
    }
}

void LineMargin::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_text.viewport(), event);
}

} // namespace zeph
