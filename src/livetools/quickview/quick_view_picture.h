// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/drawn_controls.h"

#include <QPixmap>
#include <QWidget>

#include <bitset>

class QLabel;
class QPushButton;

namespace zeph {

class StatementLabel;

/// Quick View's picture: the drawings of throttle and stick, and a label for each row of the table,
/// joined to its control by a line. It grows with its widget; sizeHint() is its least size.
class QuickViewPicture : public QWidget
{
    Q_OBJECT
public:
    explicit QuickViewPicture(QWidget *parent = nullptr);

    void showControls(const DrawnControls &controls);
    void setTitle(const QString &title);
    /// What LabelBTN_4 reads, above T1's label.
    void setMicrostickTitle(const QString &title);

    /// The label Label1_n of row n + 1; null for rows 11 to 14.
    StatementLabel *label(int row) const { return m_labels[size_t(row - 1)]; }
    /// Label3_n, from 0 on.
    QPushButton *position(int index) const { return m_positions[size_t(index)]; }
    /// Colours the boxes of the positions that are in force.
    void light(const std::bitset<positionCount> &lit);
    /// Makes a row's label bold or plain and rings its control on the drawing.
    void setPressed(int row, bool pressed);
    /// Gives everything its place for the widget's size.
    void RepositionOnResize();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// A label was clicked twice, or Return was pressed on it.
    void activated(int row);
    /// A label has got the focus.
    void focused(int row);
    void positionClicked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeLabels();
    void makePositions();
    void paintGround(QPainter &painter) const;
    void paintFrames(QPainter &painter) const;
    void paintLines(QPainter &painter) const;

    DrawnControls m_controls;
    PicturePlan m_plan;
    QLabel *m_title;
    QLabel *m_microstick;
    std::array<StatementLabel *, rowCount> m_labels{};
    std::array<QPushButton *, positionCount> m_positions{};
    std::bitset<positionCount> m_lit;
    QPixmap m_ground; ///< everything but labels and rings, in the widget's size; null when stale
};

} // namespace zeph
