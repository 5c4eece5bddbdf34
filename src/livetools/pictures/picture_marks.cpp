// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_marks.h"

#include "livetools/picture_geometry.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace zeph {

namespace {

// All lengths are device-independent pixels.
constexpr double lineWidth = 2;
constexpr double borderWidth = 5;
constexpr double letterBorder = 3;
constexpr double crossSize = 9;
constexpr double dotSize = 3;
constexpr double arrowSize = 11;
constexpr double arrowOpening = 25; // degrees
constexpr double numberDistance = 8;
// The arcs of the two angles lie within the circle, if it is large enough for that.
constexpr double arcLeast = 14;
constexpr double arcMost = 70;
constexpr double startArc = 0.4;
constexpr double targetArc = 0.65;

constexpr QColor light(0xFF, 0xF0, 0x60);
constexpr QColor dark(0, 0, 0, 0xD8);

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

QPointF towards(const QPointF &from, double degrees, double distance)
{
    return from + QPointF(std::cos(radians(degrees)), -std::sin(radians(degrees))) * distance;
}

class Marks
{
public:
    Marks(QPainter &painter, const QSizeF &area) : m_painter(painter), m_area(QPointF(), area) { }

    void stroke(const QPainterPath &path, Qt::PenStyle style = Qt::SolidLine)
    {
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(dark, borderWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(path);
        m_painter.setPen(QPen(light, lineWidth, style, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(path);
    }

    void line(const QPointF &from, const QPointF &to, Qt::PenStyle style = Qt::SolidLine)
    {
        QPainterPath path(from);
        path.lineTo(to);
        stroke(path, style);
    }

    void cross(const QPointF &at)
    {
        QPainterPath path;
        for (const QPointF &arm : { QPointF(crossSize, 0), QPointF(0, crossSize) }) {
            path.moveTo(at - arm);
            path.lineTo(at + arm);
        }
        stroke(path);
    }

    void dot(const QPointF &at)
    {
        QPainterPath path;
        path.addEllipse(at, dotSize, dotSize);
        stroke(path);
    }

    void arrowHead(const QPointF &from, const QPointF &tip)
    {
        const double back = QLineF(tip, from).angle();
        QPainterPath path(towards(tip, back + arrowOpening, arrowSize));
        path.lineTo(tip);
        path.lineTo(towards(tip, back - arrowOpening, arrowSize));
        stroke(path);
    }

    void circle(const QPointF &centre, double radius)
    {
        QPainterPath path;
        path.addEllipse(centre, radius, radius);
        stroke(path, Qt::DotLine);
    }

    void arc(const QPointF &centre, double radius, double degrees)
    {
        const QRectF box(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
        QPainterPath path;
        path.arcMoveTo(box, 0);
        path.arcTo(box, 0, degrees);
        stroke(path);
    }

    /// Writes a text with its middle there, moved into the area and off the numbers before it.
    void number(const QString &text, const QPointF &middle)
    {
        const QFontMetricsF metrics(m_painter.font());
        QRectF box(0, 0, metrics.horizontalAdvance(text) + letterBorder, metrics.height());
        box.moveCenter(middle);
        for (const QRectF &taken : m_numbers) {
            if (taken.intersects(box)) {
                box.moveTop(taken.bottom());
            }
        }
        box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, m_area.width() - box.width())));
        box.moveTop(std::clamp(box.top(), 0.0, std::max(0.0, m_area.height() - box.height())));
        m_numbers.append(box);
        QPainterPath letters;
        letters.addText(box.left() + letterBorder / 2, box.top() + metrics.ascent(),
                        m_painter.font(), text);
        m_painter.strokePath(letters,
                             QPen(dark, letterBorder, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.fillPath(letters, light);
    }

private:
    QPainter &m_painter;
    QRectF m_area;
    QList<QRectF> m_numbers;
};

/// Straight up, down, left or right: the one that is farthest from all these directions.
double freeDirection(const QList<double> &taken)
{
    double best = 0;
    double bestRoom = -1;
    for (const double direction : { 270.0, 90.0, 180.0, 0.0 }) {
        double room = 180;
        for (const double other : taken) {
            room = std::min(room, std::abs(std::remainder(direction - other, 360)));
        }
        if (room > bestRoom) {
            best = direction;
            bestRoom = room;
        }
    }
    return best;
}

struct Rotation {
    QPointF centre;
    QPointF from;
    std::optional<QPointF> to;
    double drawnRadius;
};

void drawRotation(Marks &marks, const Measures &measures, const Rotation &drawn)
{
    const double arc = std::clamp(drawn.drawnRadius, arcLeast, arcMost);
    const double start = CalculateTheta1(measures);
    const double end = CalculateTheta2(measures);
    const auto tell = [&marks, &drawn](double angle) {
        marks.number(markNumber(angle) + u'\u00b0',
                     towards(drawn.centre, angle, drawn.drawnRadius + 3.5 * numberDistance));
    };
    marks.circle(drawn.centre, drawn.drawnRadius);
    marks.line(drawn.centre, towards(drawn.centre, 0, drawn.drawnRadius), Qt::DotLine);
    marks.line(drawn.centre, drawn.from);
    marks.arc(drawn.centre, arc * startArc, start);
    marks.dot(drawn.from);
    QList<double> taken = { 0, start };
    if (drawn.to) {
        marks.line(drawn.centre, *drawn.to);
        marks.arc(drawn.centre, arc * targetArc, end);
        marks.arrowHead(drawn.centre, *drawn.to);
        taken.append(end);
    }
    marks.cross(drawn.centre);
    tell(start);
    if (drawn.to) {
        tell(end);
    }
    // Between the arcs and the circle, or outside of a circle that leaves no room there.
    const double inside = arc * targetArc + 2 * numberDistance;
    const double outside = drawn.drawnRadius + 2 * numberDistance;
    const bool hasRoom = inside + 2 * numberDistance < drawn.drawnRadius;
    marks.number(u"r "_s + markNumber(radiusOf(measures)),
                 towards(drawn.centre, freeDirection(taken), hasRoom ? inside : outside));
}

} // namespace

QString markNumber(double value)
{
    QString text = QString::number(value, 'f', 1);
    if (text.endsWith(u".0")) {
        text.chop(2);
    }
    return text;
}

void drawMarks(QPainter &painter, const Measures &measures, Gesture meaning, double zoom,
               const QSizeF &area)
{
    if (!measures.from || meaning == Gesture::None) {
        return;
    }
    // The middle of a pixel stands for it.
    const auto onArea = [zoom](const QPointF &pixel) {
        return (pixel + QPointF(0.5, 0.5)) * zoom;
    };
    painter.setRenderHint(QPainter::Antialiasing);
    Marks marks(painter, area);
    const QPointF from = onArea(*measures.from);
    if (meaning == Gesture::Point || !measures.to) {
        marks.cross(from);
    } else if (meaning == Gesture::Line) {
        marks.dot(from);
        marks.line(from, onArea(*measures.to));
        marks.arrowHead(from, onArea(*measures.to));
    } else {
        const auto target =
            measures.target ? std::optional(onArea(*measures.target)) : std::nullopt;
        drawRotation(marks, measures,
                     { from, onArea(*measures.to), target, radiusOf(measures) * zoom });
    }
}

} // namespace zeph
