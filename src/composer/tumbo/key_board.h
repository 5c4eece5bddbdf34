// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QWidget>

#include <map>
#include <set>

class QAbstractButton;

namespace zeph {

class KeyButton;

/// Tumbo's board: each key is a button, Command1_ and its index. The board grows and shrinks with
/// its window and keeps its shape. Tab reaches the board, the arrow keys go from key to key, Space
/// presses the one with the focus.
class KeyBoard : public QWidget
{
    Q_OBJECT
public:
    explicit KeyBoard(QWidget *parent = nullptr);

    /// The button of a key of the table; its text is the caption that it shows, with an ampersand
    /// doubled.
    QAbstractButton *key(int index) const;
    /// Shows the captions with Shift, or those without.
    void setShifted(bool shifted);
    /// Marks the keys that a statement holds down, and no others.
    void setHeld(const std::set<int> &held);
    /// Marks the key whose notations are shown; -1 marks none.
    void setShown(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A key was pressed.
    void pressed(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class KeyButton;

    /// The height at which the board fills its width.
    int fittingHeight() const;
    /// A quarter of a usual key's width, in pixels.
    qreal cellWidth() const;
    /// Where cells of the board are, in whole pixels.
    QRect onWidget(const QRect &cells) const;
    /// The mouse's body below its buttons.
    void drawMouse(QPainter &painter) const;
    /// The board's font in another size.
    QFont sized(qreal pixels) const;
    void moveFocus(int from, Qt::Key direction);
    /// Makes this key the one that Tab reaches.
    void setTabStop(KeyButton *key);

    std::map<int, KeyButton *> m_keys;
    KeyButton *m_tabStop = nullptr;
};

} // namespace zeph
