// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/highlighting.h"

#include "editor/coloured_copies.h"
#include "editor/editor_view.h"
#include "editor/text_control.h"
#include "platform/status_line.h"

namespace zeph {

Highlighting::Highlighting(const Context &context, EditorView &view, ColouredCopies &copies)
    : m_context(context), m_view(view), m_copies(copies)
{
}

void Highlighting::mnuViewReformat_Click(EditorDocument &document)
{
    const BusyGuard busy(m_view);
    const int caret = document.control->selStart();
    document.control->setText(document.control->text());
    document.control->select(caret, 0);
}

void Highlighting::ApplyColourHighlighting(EditorDocument &document)
{
    if (auto saved = m_copies.SaveColouredText(document); !saved) {
        m_context.status.setText(u"The coloured copy couldn't be written: "_s + saved.error().path
                                 + u": "_s + saved.error().reason);
    }
}

} // namespace zeph
