// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/typing_colour.h"

#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "documents/text_control.h"

#include <QKeyEvent>

namespace zeph {

TypingColour::TypingColour(EditorView &view, Highlighting &highlighting,
                           const DocumentSettings &settings)
    : m_view(view), m_highlighting(highlighting), m_settings(settings)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        TextControl *control = view.document(kind).control;
        control->installEventFilter(this);
        // The mouse speaks to the viewport.
        control->viewport()->installEventFilter(this);
    }
}

bool TypingColour::eventFilter(QObject *, QEvent *event)
{
    if (m_settings.ColourWithTyping && endsLine(*event)) {
        const bool isProtected =
            m_view.isProtected() && m_view.selected().kind == DocumentKind::Macro;
        if (!isProtected) {
            m_highlighting.BlockColour();
        }
    }
    return false;
}

bool TypingColour::endsLine(const QEvent &event) const
{
    const auto keyOf = [&event] {
        return static_cast<const QKeyEvent &>(event).key();
    };
    switch (event.type()) {
    case QEvent::KeyPress:
        return keyOf() == Qt::Key_Space || keyOf() == Qt::Key_Return || keyOf() == Qt::Key_Enter;
    case QEvent::KeyRelease:
        return keyOf() == Qt::Key_Backspace || keyOf() == Qt::Key_Right;
    case QEvent::MouseButtonRelease:
        return m_view.selected().control->textCursor().hasSelection();
    default:
        return false;
    }
}

} // namespace zeph
