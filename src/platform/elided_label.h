// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace zeph {

/// A label of one line of plain text. What is too long ends in "…" instead of widening the window;
/// text() is whole.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(QWidget *parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }
    QSize minimumSizeHint() const override { return { 0, QLabel::minimumSizeHint().height() }; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect room = rect().adjusted(std::max(0, indent()), 0, 0, 0);
        style()->drawItemText(
            &painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
    }
};

} // namespace zeph
