// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/axes_grid.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace zeph {

namespace {

constexpr int axes = AxesConfig::axes;

/// A cell that shows its text; it is as bright as a text box while it has one.
class AxisCell : public QAbstractButton
{
public:
    using QAbstractButton::QAbstractButton;

    /// Marks a column that can be used by the user's own leave.
    bool isExtra = false;

    QSize sizeHint() const override
    {
        const int line = fontMetrics().height();
        return { 3 * line, line + 8 };
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect area = rect();
        painter.fillRect(area, text().isEmpty() ? palette().button() : palette().base());
        if (isExtra && isEnabled()) {
            QColor mark = palette().color(QPalette::Highlight);
            mark.setAlphaF(0.25F);
            painter.fillRect(area, mark);
        }
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
        painter.setPen(palette().color(QPalette::Text));
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.drawText(area, Qt::AlignCenter, text());
        if (hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.drawRect(area.adjusted(2, 2, -2, -2));
        }
    }
};

QString nameOf(int row, int column, const QString &sign)
{
    const QString state = sign == u"-" ? u"reversed"_s : sign == u"+" ? u"forward"_s : u"no"_s;
    return u"%1 drives DirectX axis %2: %3"_s.arg(cougarAxes[size_t(row)])
        .arg(column + 1)
        .arg(state);
}

} // namespace

AxesGrid::AxesGrid(QWidget *parent) : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(2);
    for (int column = 0; column < axes; ++column) {
        auto *caption = new QLabel(QString::number(column + 1), this);
        caption->setObjectName(u"LBL_DirectXAxis_%1"_s.arg(column));
        caption->setAlignment(Qt::AlignCenter);
        grid->addWidget(caption, 0, column + 1);
        m_columns.push_back(caption);
    }
    for (int row = 0; row < axes; ++row) {
        grid->addWidget(new QLabel(cougarAxes[size_t(row)].toString(), this), row + 1, 0);
        for (int column = 0; column < axes; ++column)
            grid->addWidget(addCell(row, column), row + 1, column + 1);
    }
    m_cells.front()->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_cells.front());
    showConfig();
}

QAbstractButton *AxesGrid::addCell(int row, int column)
{
    auto *cell = new AxisCell(this);
    const int index = row * axes + column;
    cell->setObjectName(u"LBL_UseAxes_%1"_s.arg(index));
    cell->setFocusPolicy(Qt::ClickFocus);
    cell->isExtra = column >= AxesConfig::firstExtra;
    cell->installEventFilter(this);
    connect(cell, &QAbstractButton::clicked, this, [this, index] { click(index); });
    m_cells.push_back(cell);
    return cell;
}

void AxesGrid::setConfig(const AxesConfig &config)
{
    m_config = config;
    showConfig();
    Q_EMIT changed();
}

void AxesGrid::click(int cell)
{
    focusOn(cell);
    m_config.click(cell / axes, cell % axes);
    showConfig();
    Q_EMIT changed();
}

void AxesGrid::focusOn(int cell)
{
    m_cells[size_t(m_reached)]->setFocusPolicy(Qt::ClickFocus);
    m_reached = cell;
    QAbstractButton *reached = m_cells[size_t(cell)];
    reached->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(reached);
    reached->setFocus();
}

void AxesGrid::showConfig()
{
    for (int column = 0; column < axes; ++column) {
        const bool isEnabled = m_config.isEnabled(column);
        m_columns[size_t(column)]->setEnabled(isEnabled);
        for (int row = 0; row < axes; ++row) {
            QAbstractButton &cell = *m_cells[size_t(row * axes + column)];
            const QString sign = m_config.caption(row, column);
            cell.setText(sign);
            cell.setEnabled(isEnabled);
            cell.setAccessibleName(nameOf(row, column, sign));
        }
    }
}

bool AxesGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    int row = m_reached / axes;
    int column = m_reached % axes;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
        --column;
        break;
    case Qt::Key_Right:
        ++column;
        break;
    case Qt::Key_Up:
        --row;
        break;
    case Qt::Key_Down:
        ++row;
        break;
    default:
        return QWidget::eventFilter(watched, event);
    }
    const bool exists = row >= 0 && row < axes && column >= 0 && column < axes;
    if (exists && m_config.isEnabled(column))
        focusOn(row * axes + column);
    return true;
}

} // namespace zeph
