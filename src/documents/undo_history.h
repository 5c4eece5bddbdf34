// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The undo history of a document. Each slot holds a whole state; in memory, states share what they
// have in common.

#include "documents/document_states.h"

#include <deque>

namespace zeph {

class ColouredText;

/// One document's history. Slot 1 is the newest state; UndoIndex is the slot now shown.
class UndoHistory
{
public:
    /// The text and undoMax must outlive the history.
    UndoHistory(ColouredText &text, const int &undoMax);

    /// Starts over with one slot, which holds the document as it is now and the caret at 0.
    void reset();
    /// A real change took place: overwrites slot 1, or pushes a new one when UndoStepNext is 1 or
    /// while something is undone, which stays within reach then. True when a slot was pushed.
    bool textChanged();
    /// Puts the document as it stands, and its caret, into the slot now shown, without making a
    /// step: its looks may have become others, or its stamp.
    void storeShown();
    /// The word rules, before the change that a key brings: Qt::Key values. A key starts a step if
    /// the caret has been elsewhere than the last change left it.
    void keyPressed(int key);
    /// Shows the next older state in the document; does nothing at the oldest.
    void undo();
    /// Shows the next newer state in the document; does nothing at the newest.
    void redo();

    int slots() const { return int(m_slots.size()); }
    int UndoIndex() const { return m_index; }
    bool canUndo() const { return slots() != UndoIndex(); }
    bool canRedo() const { return UndoIndex() != 1; }
    /// Bytes that all slots take together.
    qsizetype bytesHeld() const;

    /// 1: the next change pushes a slot. 0: it overwrites slot 1, unless something is undone.
    qint16 UndoStepNext = 1;

private:
    struct Slot {
        DocumentState state;
        int caret = 0;
    };

    Slot present();
    void show(int index);

    ColouredText &m_text;
    const int &m_undoMax;
    DocumentStates &m_states;
    std::deque<Slot> m_slots; ///< slot 1 comes first
    int m_index = 1;
    bool m_lastKeyWasSpace = false;
    bool m_lastKeyWasEnter = false;
};

} // namespace zeph
