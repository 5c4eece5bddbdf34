// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace zeph {

/// A box for keys and macros. What is dropped into it, such as a macro from the list, goes to its
/// end. A press of a mouse button with Shift appends a movement of the mouse, with the number
/// selected to type over. While it has the focus it is highlighted.
class KeyBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit KeyBox(QWidget *parent) : QLineEdit(parent) { }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void highlight(bool on);

    /// A press brought the focus and so selected all, or wrote a movement: its release leaves the
    /// selection alone.
    bool m_keepsSelection = false;
};

} // namespace zeph
