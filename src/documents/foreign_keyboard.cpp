// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/foreign_keyboard.h"

#include "documents/document_settings.h"
#include "platform/input/keyboard.h"

#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace zeph {

ForeignKeyBSupport::ForeignKeyBSupport(Keyboard &keyboard, const DocumentSettings &settings,
                                       QWidget *window)
    : QObject(window), m_keyboard(keyboard), m_settings(settings), m_layout(keyboard.layoutName())
{
    for (QWidget *child : window->findChildren<QWidget *>()) {
        if (qobject_cast<QLineEdit *>(child) || qobject_cast<QTextEdit *>(child)
            || qobject_cast<QPlainTextEdit *>(child)) {
            child->installEventFilter(this);
        }
    }
}

bool ForeignKeyBSupport::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && m_settings.ForeignLanguageKBInputFix
        && m_keyboard.layoutName() != m_layout) {
        m_keyboard.loadLayout(m_layout);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zeph
