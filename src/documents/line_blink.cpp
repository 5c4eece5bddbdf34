// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/line_blink.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"

#include <QEvent>
#include <QTextBlock>

#include <chrono>

namespace zeph {

using namespace std::chrono_literals;

void SelectLine(TextControl &control)
{
    const QTextBlock line = control.textCursor().block();
    control.select(line.position(), line.length() - 1);
}

LineBlink::LineBlink(EditorView &view, QObject *parent) : QObject(parent), m_view(view)
{
    m_timer.setObjectName(u"TimerBlinkLine"_s);
    m_timer.setInterval(100ms);
    connect(&m_timer, &QTimer::timeout, this, &LineBlink::tick);
    connect(&view, &EditorView::tabSelected, this, &LineBlink::stop);
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        TextControl *control = view.document(kind).control;
        control->installEventFilter(this);
        control->viewport()->installEventFilter(this);
    }
}

void LineBlink::start(EditorDocument &document)
{
    const BusyGuard busy(m_view);
    m_document = &document;
    m_caret = document.caret;
    m_count = 0;
    showLine();
    m_timer.start();
}

void LineBlink::stop()
{
    if (m_timer.isActive()) {
        m_timer.stop();
        putCaretBack();
    }
}

void LineBlink::tick()
{
    if (m_count == 1) {
        showLine();
    } else {
        putCaretBack();
    }
    if (++m_count > 2) {
        m_timer.stop();
    }
}

void LineBlink::showLine()
{
    const BusyGuard busy(m_view);
    SelectLine(*m_document->control);
    // The document's caret stays where the undo put it: the selection is only for the eye.
    m_document->caret = m_caret;
    m_document->selLength = 0;
}

void LineBlink::putCaretBack()
{
    const BusyGuard busy(m_view);
    m_document->control->select(m_caret, 0);
}

bool LineBlink::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::DragEnter:
        stop();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zeph
