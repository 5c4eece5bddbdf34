// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace zeph {

class Dialogs;

/// Takes all keys of a window while it is on, and tells which keys of the board they are; none
/// of them is a shortcut or does anything else meanwhile. It ends by a click in the window, when
/// the window is no longer the active one or the owner is hidden, and by Escape pressed twice.
class KeyListener : public QObject
{
    Q_OBJECT
public:
    /// It listens in the window that the owner is in or is. The button turns it on and off, and
    /// shows whether it is on.
    KeyListener(Dialogs &dialogs, QWidget &owner, QAbstractButton &button);

    bool isOn() const { return m_isOn; }
    void stop();

Q_SIGNALS:
    /// It was turned on or off.
    void toggled(bool on);
    /// The board's key of that index went down while these modifiers were held.
    void keyPressed(int index, Qt::KeyboardModifiers held);
    /// A key went down that the board lacks.
    void unknownKeyPressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setOn(bool on);
    bool isOurs(const QWidget *widget) const;
    bool takeKey(QObject *watched, QEvent &event);
    void keyDown(const QKeyEvent &event);

    Dialogs &m_dialogs;
    QWidget &m_owner;
    QAbstractButton &m_button;
    bool m_isOn = false;
    bool m_escapeBefore = false; ///< the key before was Escape
};

} // namespace zeph
