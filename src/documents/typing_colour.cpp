// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/typing_colour.h"

#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"

#include <QKeyEvent>

namespace zeph {

TypingColour::TypingColour(EditorView &view, Highlighting &highlighting,
                           const DocumentSettings &settings)
    : m_documents(view.documents()), m_highlighting(highlighting), m_settings(settings)
{
    view.watch(*this);
}

bool TypingColour::eventFilter(QObject *, QEvent *event)
{
    if (m_settings.ColourWithTyping && endsLine(*event)) {
        const bool isProtected =
            m_documents.isProtected() && m_documents.selected().kind() == DocumentKind::Macro;
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
        return m_documents.selected().selLength() > 0;
    default:
        return false;
    }
}

} // namespace zeph
