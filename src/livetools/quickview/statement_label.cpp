// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/statement_label.h"

#include "livetools/quickview/fitting_lines.h"
#include "platform/colours.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace zeph {

namespace {

constexpr qreal padding = 4;
constexpr qreal corner = 3;
constexpr qreal caretBar = 3;
constexpr qreal foldSize = 7;
constexpr qreal diamondSize = 4;
constexpr qreal diamondFromRight = 12;
/// How much of a mark's colour is in the ground below a text, which must stay easy to read.
constexpr qreal tint = 0.3;
/// How much of the ground's colour is in the control's name, which is fainter than the text.
/// Without a statement it is fainter still, but the pilot has to see which control does nothing.
constexpr qreal nameFaintness = 0.35;
constexpr qreal emptyNameFaintness = 0.45;
constexpr qreal focusWidth = 2;

constexpr QColor soughtColour(0xF0, 0xB0, 0x00);
constexpr QColor otherwiseColour(0xE0, 0x50, 0x20);
constexpr QColor pressedColour(0x00, 0xC0, 0x00);

QPainterPath diamondAround(const QPointF &centre)
{
    QPainterPath path(centre - QPointF(0, diamondSize));
    path.lineTo(centre + QPointF(diamondSize, 0));
    path.lineTo(centre + QPointF(0, diamondSize));
    path.lineTo(centre - QPointF(diamondSize, 0));
    path.closeSubpath();
    return path;
}

} // namespace

StatementLabel::StatementLabel(const QString &shownName, const QString &spokenName, QWidget *parent)
    : QLabel(parent), m_shownName(shownName), m_spokenName(spokenName)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    showText({}, {}, false);
}

void StatementLabel::showText(const QString &text, const QString &tip, bool hasStatement)
{
    if (text != this->text()) {
        setText(text);
    }
    // Statements can hold "<" and are no mark-up; as paragraphs, long ones are broken into lines.
    const QString shownTip =
        tip.isEmpty() ? QString() : Qt::convertFromPlainText(tip, Qt::WhiteSpaceNormal);
    if (shownTip != toolTip()) {
        setToolTip(shownTip);
    }
    enable(hasStatement);
    speak();
}

void StatementLabel::enable(bool enabled)
{
    if (enabled == isEnabled()) {
        return;
    }
    if (!enabled && window()->focusWidget() == this) {
        // Else the next label would get it, and a small window would scroll there.
        parentWidget()->setFocus(Qt::OtherFocusReason);
        m_isFocusLent = true;
    }
    setEnabled(enabled);
    if (enabled && std::exchange(m_isFocusLent, false)
        && window()->focusWidget() == parentWidget()) {
        setFocus(Qt::OtherFocusReason);
    }
}

void StatementLabel::speak()
{
    QString words = m_spokenName + u": "_s + text();
    if (isPressed()) {
        words += u", pressed"_s;
    }
    if (words != accessibleName()) {
        setAccessibleName(words);
    }
}

void StatementLabel::setPressed(bool pressed)
{
    if (pressed != isPressed()) {
        QFont changed = font();
        changed.setBold(pressed);
        setFont(changed);
        speak();
    }
}

void StatementLabel::setMarks(const LabelMarks &marks)
{
    if (marks != m_marks) {
        m_marks = marks;
        update();
    }
}

void StatementLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    const QFontMetricsF metrics(font());
    QFont nameFont = font();
    nameFont.setBold(true);
    const QRectF room = QRectF(rect()).adjusted(caretBar + padding, 0, -marksWidth(), 0);
    const qreal nameWidth = QFontMetricsF(nameFont).horizontalAdvance(m_shownName) + 2 * padding;
    const int mostLines = std::max(1, int(room.height() / metrics.height()));
    const QStringList lines = fittingLines(text(), font(), room.width() - nameWidth, mostLines);
    const qreal top = room.top()
        + (room.height() - qreal(std::max<qsizetype>(1, lines.size())) * metrics.height()) / 2;
    const QColor words = palette().color(QPalette::Active, QPalette::WindowText);
    painter.setPen(isPressed() ? words
                               : mixed(words, palette().color(QPalette::Active, QPalette::Base),
                                       isEnabled() ? nameFaintness : emptyNameFaintness));
    painter.setFont(nameFont);
    painter.drawText(QPointF(room.left(), top + metrics.ascent()), m_shownName);
    painter.setPen(words);
    painter.setFont(font());
    qreal baseline = top + metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText(QPointF(room.left() + nameWidth, baseline), line);
        baseline += metrics.height();
    }
    paintMarks(painter);
}

void StatementLabel::paintGround(QPainter &painter) const
{
    QColor ground = palette().color(isEnabled() ? QPalette::Base : QPalette::Window);
    if (m_marks.sends == SendsSought::Here) {
        ground = mixed(ground, soughtColour, tint);
    }
    if (isPressed()) {
        ground = mixed(ground, pressedColour, tint);
    }
    const QPen frame = hasFocus() ? QPen(palette().color(QPalette::Highlight), focusWidth)
                                  : QPen(palette().color(QPalette::Mid), 1);
    const qreal inside = frame.widthF() / 2;
    painter.setPen(frame);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inside, inside, -inside, -inside), corner,
                            corner);
}

qreal StatementLabel::marksWidth() const
{
    if (m_marks.sends != SendsSought::No) {
        return diamondFromRight + diamondSize + padding;
    }
    return m_marks.isReadOtherwise ? foldSize + 1 : padding;
}

void StatementLabel::paintMarks(QPainter &painter) const
{
    const QRectF all(rect());
    if (m_marks.hasCaret) {
        painter.fillRect(QRectF(1, 2, caretBar, all.height() - 4),
                         palette().color(QPalette::Highlight));
    }
    painter.setPen(Qt::NoPen);
    if (m_marks.isReadOtherwise) {
        QPainterPath fold(QPointF(all.right() - foldSize, 1));
        fold.lineTo(all.right() - 1, 1);
        fold.lineTo(all.right() - 1, 1 + foldSize);
        fold.closeSubpath();
        painter.fillPath(fold, otherwiseColour);
    }
    if (m_marks.sends != SendsSought::No) {
        painter.setPen(QPen(soughtColour, 1.5));
        painter.setBrush(m_marks.sends == SendsSought::Here ? QBrush(soughtColour)
                                                            : QBrush(Qt::NoBrush));
        painter.drawPath(diamondAround(QPointF(all.right() - diamondFromRight, all.center().y())));
    }
}

void StatementLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        Q_EMIT activated();
    }
}

void StatementLabel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT activated();
        break;
    case Qt::Key_Down:
        focusNextChild();
        break;
    case Qt::Key_Up:
        focusPreviousChild();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void StatementLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    update();
    Q_EMIT focused();
}

void StatementLabel::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    update();
}

} // namespace zeph
