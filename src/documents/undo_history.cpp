// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/undo_history.h"

#include "documents/coloured_text.h"

namespace zeph {

UndoHistory::UndoHistory(ColouredText &text, const int &undoMax)
    : m_text(text), m_undoMax(undoMax), m_states(text.states())
{
    reset();
}

void UndoHistory::reset()
{
    m_slots.clear();
    m_slots.push_front({ m_states.present(), 0 });
    m_index = 1;
    UndoStepNext = 1;
    m_text.caretMark().set(m_text.selStart());
    m_lastKeyWasSpace = m_lastKeyWasEnter = false;
}

UndoHistory::Slot UndoHistory::present()
{
    return { m_states.present(), m_text.selStart() };
}

bool UndoHistory::textChanged()
{
    Slot now = present();
    const bool pushes = UndoStepNext == 1 || canRedo();
    UndoStepNext = 1;
    m_text.caretMark().set(m_text.selStart());
    if (now.state == m_slots[size_t(m_index) - 1].state) {
        return false;
    }
    if (pushes) {
        const bool full = slots() > m_undoMax;
        m_slots.push_front(std::move(now));
        if (full) {
            m_slots.pop_back();
        }
    } else {
        m_slots.front() = std::move(now);
    }
    m_index = 1;
    return pushes;
}

void UndoHistory::storeShown()
{
    m_slots[size_t(m_index) - 1] = present();
}

void UndoHistory::keyPressed(int key)
{
    if (key == Qt::Key_Delete) {
        UndoStepNext = 1;
        return;
    }
    const bool space = key == Qt::Key_Space;
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    // What the key replaces, and what was typed elsewhere before, must stay within reach.
    const bool startsElsewhere = m_text.caretMark().isLeft() || m_text.selLength() > 0;
    if (space && m_text.length() == 0) {
        UndoStepNext = 0;
    } else if (slots() == 1 || key == Qt::Key_Backspace || startsElsewhere) {
        UndoStepNext = 1;
    } else {
        // A run of blanks or of line ends is one boundary of words.
        const bool goesOn = enter ? m_lastKeyWasEnter : m_lastKeyWasSpace;
        UndoStepNext = (space || enter) && !goesOn ? 1 : 0;
        m_lastKeyWasSpace = space;
        m_lastKeyWasEnter = enter;
    }
}

void UndoHistory::undo()
{
    if (canUndo()) {
        show(m_index + 1);
    }
}

void UndoHistory::redo()
{
    if (canRedo()) {
        show(m_index - 1);
    }
}

void UndoHistory::show(int index)
{
    m_index = index;
    const Slot &slot = m_slots[size_t(index) - 1];
    m_states.restore(slot.state);
    m_text.select(slot.caret, 0);
    // The next key goes on from here, not from the word that was typed last.
    m_text.caretMark().leave();
}

qsizetype UndoHistory::bytesHeld() const
{
    std::vector<DocumentState> states;
    for (const Slot &slot : m_slots) {
        states.push_back(slot.state);
    }
    return DocumentState::bytesHeld(states) + slots() * qsizetype(sizeof(Slot));
}

} // namespace zeph
