// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/key_box.h"

#include "composer/generators/digital_axis.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace zeph {

void KeyBox::mousePressEvent(QMouseEvent *event)
{
    const bool isMovement = event->modifiers().testFlag(Qt::ShiftModifier)
        && (event->button() == Qt::LeftButton || event->button() == Qt::RightButton);
    if (isMovement) {
        setFocus(Qt::MouseFocusReason);
        const MouseShortcut shortcut =
            withMouseShortcut(text(), event->button() == Qt::RightButton);
        setText(shortcut.text);
        setSelection(int(shortcut.selectionStart), int(shortcut.selectionLength));
        m_keepsSelection = true;
    } else if (!m_keepsSelection) {
        QLineEdit::mousePressEvent(event);
    }
}

void KeyBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (!std::exchange(m_keepsSelection, false))
        QLineEdit::mouseReleaseEvent(event);
}

// The right button with Shift writes a movement, and opens no menu over it.
void KeyBox::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (byKey || !event->modifiers().testFlag(Qt::ShiftModifier))
        QLineEdit::contextMenuEvent(event);
}

void KeyBox::dropEvent(QDropEvent *event)
{
    setText(text() + event->mimeData()->text());
    // A copy: the place that it comes from keeps it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void KeyBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    highlight(true);
    const bool comesBack =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!comesBack)
        selectAll();
    m_keepsSelection = event->reason() == Qt::MouseFocusReason;
}

void KeyBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    highlight(false);
}

void KeyBox::highlight(bool on)
{
    if (!on) {
        setPalette({});
        return;
    }
    // A touch of the highlight, so that text is read as well as before, on dark windows too.
    constexpr double share = 0.25;
    const QColor base = palette().base().color();
    const QColor mark = palette().highlight().color();
    const auto mixed = [](int from, int to) {
        return int(from + (to - from) * share);
    };
    QPalette lit = palette();
    lit.setColor(QPalette::Base,
                 QColor(mixed(base.red(), mark.red()), mixed(base.green(), mark.green()),
                        mixed(base.blue(), mark.blue())));
    setPalette(lit);
}

} // namespace zeph
