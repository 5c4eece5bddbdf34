// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/edit_step.h"

#include "documents/undo_history.h"

namespace zeph {

EditStep::EditStep(EditorView &view, UndoHistories &histories, DocumentKind kind)
    : m_view(view), m_histories(histories), m_kind(kind)
{
    if (!m_histories.of(kind).canRedo()) {
        // Colours may have come since the last step; a state that was undone is no newest one.
        m_histories.of(kind).storeTop();
    }
    ++m_view.ColouringBusy;
}

EditStep::~EditStep()
{
    --m_view.ColouringBusy;
    m_histories.of(m_kind).UndoStepNext = 1;
    m_histories.textChanged(m_kind);
}

} // namespace zeph
