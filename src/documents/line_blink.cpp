// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/line_blink.h"

#include "documents/documents.h"
#include "documents/editor_view.h"
#include "documents/text_control.h"

#include <QEvent>
#include <QTextBlock>

#include <chrono>

namespace zeph {

using namespace std::chrono_literals;

namespace {

QTextBlock caretsLine(const Document &document)
{
    return document.cursor().block();
}

} // namespace

void SelectLine(Document &document)
{
    const QTextBlock line = caretsLine(document);
    document.select(line.position(), line.length() - 1);
}

LineBlink::LineBlink(EditorView &view, QObject *parent) : QObject(parent), m_view(view)
{
    m_timer.setObjectName(u"TimerBlinkLine"_s);
    m_timer.setInterval(100ms);
    connect(&m_timer, &QTimer::timeout, this, &LineBlink::tick);
    connect(&view.documents(), &Documents::selectedChanged, this, &LineBlink::stop);
    view.watch(*this);
}

void LineBlink::start(DocumentKind kind)
{
    m_kind = kind;
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
    // The document's caret stays where the undo put it: the selection is only for the eye.
    const QTextBlock line = caretsLine(m_view.documents().of(m_kind));
    m_view.control(m_kind).mark(line.position(), line.length() - 1);
}

void LineBlink::putCaretBack()
{
    m_view.control(m_kind).showCaret();
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
