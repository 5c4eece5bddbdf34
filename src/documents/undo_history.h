// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The undo history of a document: whole states in observable behaviour, shared structure in memory.

#include "documents/document_states.h"

#include <deque>

namespace zeph {

class ColouredText;

/// One document's history. Slot 1 is the newest state; UndoIndex is the slot now shown.
class UndoHistory
{
public:
    /// Text and setting outlive the history.
    UndoHistory(ColouredText &text, const int &undoMax);

    /// One slot holding the document as it stands, caret 0: after load, new and clearing.
    void reset();
    /// One slot holding nothing: all memory is given back.
    void forget();
    /// A real change took place: overwrites slot 1, or pushes a new one when UndoStepNext is 1.
    /// True when a slot was pushed.
    bool textChanged();
    /// Puts the document as it stands, and its caret, into slot 1, without making a step.
    void storeTop();
    /// The word rules, before the change that a key brings: Qt::Key values.
    void keyPressed(int key);
    /// Shows the next older (newer) state in the document.
    void undo();
    void redo();

    int slots() const { return int(m_slots.size()); }
    int UndoIndex() const { return m_index; }
    bool canUndo() const { return slots() != UndoIndex(); }
    bool canRedo() const { return UndoIndex() != 1; }
    /// Bytes that all slots hold together.
    qsizetype bytesHeld() const;

    /// 1: the next change pushes a slot. 0: it overwrites slot 1.
    qint16 UndoStepNext = 1;

private:
    struct Slot {
        DocumentState state;
        int caret = 0;
    };

    Slot present();
    void startWith(const DocumentState &state);
    void show(int index);

    ColouredText &m_text;
    const int &m_undoMax;
    DocumentStates &m_states;
    std::deque<Slot> m_slots; ///< slot 1 in front
    int m_index = 1;
    bool m_lastKeyWasSpace = false;
    bool m_lastKeyWasEnter = false;
};

} // namespace zeph
