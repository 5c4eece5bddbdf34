// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_listener.h"

#include "livetools/listen.h"
#include "platform/dialogs.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace zeph {

KeyListener::KeyListener(Dialogs &dialogs, QWidget &owner, QAbstractButton &button)
    : QObject(&owner), m_dialogs(dialogs), m_owner(owner), m_button(button)
{
    connect(&button, &QAbstractButton::toggled, this,
            guarded(dialogs, [this](bool on) { setOn(on); }));
}

void KeyListener::stop()
{
    m_button.setChecked(false);
}

void KeyListener::setOn(bool on)
{
    m_isOn = on;
    m_escapeBefore = false;
    // Menu bars and shortcuts see a key before the window that has the focus; a filter of the
    // application sees it first of all.
    if (on) {
        QCoreApplication::instance()->installEventFilter(this);
    } else {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    Q_EMIT toggled(on);
}

bool KeyListener::isOurs(const QWidget *widget) const
{
    return widget && widget->window() == m_owner.window();
}

bool KeyListener::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return takeKey(watched, *event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        // The button turns itself off.
        const auto *widget = qobject_cast<QWidget *>(watched);
        if (isOurs(widget) && widget != &m_button) {
            stop();
        }
        return false;
    }
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        if (watched == &m_owner) {
            stop();
        }
        return false;
    default:
        return false;
    }
}

bool KeyListener::takeKey(QObject *watched, QEvent &event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!isOurs(widget)) {
        return false;
    }
    event.accept();
    const auto &key = static_cast<QKeyEvent &>(event);
    if (event.type() == QEvent::KeyPress && !key.isAutoRepeat()) {
        guarded(m_dialogs, [this, &key] { keyDown(key); })();
    }
    return true;
}

void KeyListener::keyDown(const QKeyEvent &event)
{
    const bool isEscape = event.key() == Qt::Key_Escape;
    if (std::exchange(m_escapeBefore, isEscape) && isEscape) {
        stop();
        return;
    }
    const auto index = listenedKey({ Qt::Key(event.key()), event.modifiers(),
                                     event.nativeScanCode(), event.nativeVirtualKey() });
    if (index) {
        Q_EMIT keyPressed(*index, event.modifiers());
    } else {
        Q_EMIT unknownKeyPressed();
    }
}

} // namespace zeph
