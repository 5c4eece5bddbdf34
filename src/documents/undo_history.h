// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The undo history of the two documents: whole states in observable behaviour, shared structure in
// memory.

#include "documents/document_states.h"
#include "documents/editor_document.h"
#include "platform/context.h"

#include <array>
#include <deque>

namespace zeph {

class MenuActions;
class EditorView;
class LineBlink;

/// One document's history. Slot 1 is the newest state; UndoIndex is the slot now shown.
class UndoHistory
{
public:
    /// Both are outlived by document and setting.
    UndoHistory(EditorDocument &document, const int &undoMax);

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
    /// Shows the next older (newer) state in the control; the caller has raised ColouringBusy.
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

    EditorDocument &m_document;
    const int &m_undoMax;
    DocumentStates &m_states;
    std::deque<Slot> m_slots; ///< slot 1 in front
    int m_index = 1;
    bool m_lastKeyWasSpace = false;
    bool m_lastKeyWasEnter = false;
};

/// Both histories, and the menu entries that follow the selected document's.
class UndoHistories : public QObject
{
    Q_OBJECT
public:
    UndoHistories(const Context &context, EditorView &view, MenuActions &actions);

    UndoHistory &of(DocumentKind kind) { return m_histories[size_t(kind)]; }
    /// The document's text-changed operation: state, saved icon, history, menus.
    void JoystickTextChanged() { textChanged(DocumentKind::Joystick); }
    void MacroTextChanged() { textChanged(DocumentKind::Macro); }
    void textChanged(DocumentKind kind);
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();
    /// Selects the caret's line in the selected document.
    void mnuEditSelectLine_Click();
    void UpdateUndoRedoMenus();
    /// A fresh history for a document that was loaded or emptied.
    void startOver(DocumentKind kind);
    /// When a save clears the history (UndoClearOnSave), this is what it does.
    void DeleteUndosOnSaveJ() { startOver(DocumentKind::Joystick); }
    void DeleteUndosOnSaveM() { startOver(DocumentKind::Macro); }
    /// Both documents, with an empty slot.
    void DeleteUndosFromMemory();

Q_SIGNALS:
    /// Captions and tooltips of undo and redo changed: the toolbar follows.
    void menusUpdated();

private:
    void follow(DocumentKind kind);
    void step(void (UndoHistory::*way)(), bool possible);

    Context m_context;
    EditorView &m_view;
    MenuActions &m_actions;
    std::array<UndoHistory, 2> m_histories;
    LineBlink *m_blink;
};

} // namespace zeph
