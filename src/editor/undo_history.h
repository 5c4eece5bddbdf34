// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The undo history of the two documents: whole states in observable behaviour, shared structure in
// memory.

#include "editor/context.h"
#include "editor/editor_document.h"

#include <QObject>

#include <memory>

namespace zeph {

class EditorActions;
class EditorView;

/// One document's history. Slot 1 is the newest state; UndoIndex is the slot now shown.
class UndoHistory
{
public:
    UndoHistory(EditorDocument &document, const qint16 &undoMax);
    ~UndoHistory();

    /// One slot holding the document as it stands, caret 0: after load, new and clearing.
    void reset();
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

    int slots() const;
    int UndoIndex() const;
    bool canUndo() const { return slots() != UndoIndex(); }
    bool canRedo() const { return UndoIndex() != 1; }
    /// 1: the next change pushes a slot. 0: it overwrites slot 1.
    qint16 UndoStepNext = 1;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// Both histories, and the menu entries that follow the selected document's.
class UndoHistories : public QObject
{
    Q_OBJECT
public:
    UndoHistories(const Context &context, EditorView &view, EditorActions &actions);
    ~UndoHistories() override;

    UndoHistory &of(DocumentKind kind);
    /// The document's text-changed operation: state, saved icon, history, menus.
    void JoystickTextChanged();
    void MacroTextChanged();
    void textChanged(DocumentKind kind);
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();
    void UpdateUndoRedoMenus();
    void DeleteUndosOnSaveJ();
    void DeleteUndosOnSaveM();
    /// Both documents, with an empty slot.
    void DeleteUndosFromMemory();

Q_SIGNALS:
    /// Captions and tooltips of undo and redo changed: the toolbar follows.
    void menusUpdated();

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace zeph
