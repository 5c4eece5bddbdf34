// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/change.h"

namespace zeph {

Change::Change(Document &document)
    : m_document(document), m_before(document.states().present()),
      m_anchor(document.cursor().anchor()), m_caret(document.cursor().position())
{
    if (!document.history().canRedo()) {
        // Colours may have come since the last step; a state that was undone is no newest one.
        document.history().storeTop();
    }
    m_quiet.emplace(document);
}

Change::~Change()
{
    if (m_quiet) {
        m_document.states().restore(m_before);
        m_document.setCaret(m_anchor, m_caret);
    }
}

bool Change::commit()
{
    if (!m_quiet) {
        return false;
    }
    m_quiet.reset();
    if (m_document.states().present() == m_before) {
        return false;
    }
    m_document.history().UndoStepNext = 1;
    m_document.countEdit();
    return true;
}

} // namespace zeph
