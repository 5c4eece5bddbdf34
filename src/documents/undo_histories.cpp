// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "documents/line_blink.h"
#include "documents/text_control.h"
#include "documents/undo_history.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/settings.h"

#include <QAction>

namespace zeph {

namespace {

/// Shows on an entry how many steps it has left.
void showSteps(QAction &entry, const QString &word, int steps)
{
    const QString count = steps > 0 ? u" ("_s + QString::number(steps) + u')' : QString();
    entry.setText(u'&' + word + count);
    entry.setToolTip(word + count);
    entry.setEnabled(steps > 0);
}

} // namespace

UndoHistories::UndoHistories(const Context &context, EditorView &view, MenuActions &actions)
    : m_context(context), m_view(view), m_actions(actions),
      m_histories{
          UndoHistory(view.document(DocumentKind::Joystick),
                      context.settings.of<DocumentSettings>().UndoMax),
          UndoHistory(view.document(DocumentKind::Macro),
                      context.settings.of<DocumentSettings>().UndoMax),
      },
      m_blink(new LineBlink(view, this))
{
    follow(DocumentKind::Joystick);
    follow(DocumentKind::Macro);
    connect(&view, &EditorView::edited, this, &UndoHistories::textChanged);
    connect(&view, &EditorView::tabSelected, this, &UndoHistories::UpdateUndoRedoMenus);
    actions.connectTo(u"mnuEditUndo", [this] { mnuEditUndo_Click(); });
    actions.connectTo(u"mnuEditRedo", [this] { mnuEditRedo_Click(); });
    actions.connectTo(u"mnuEditSelectLine", [this] { mnuEditSelectLine_Click(); });
    UpdateUndoRedoMenus();
}

void UndoHistories::follow(DocumentKind kind)
{
    connect(m_view.document(kind).control, &TextControl::keyComing, this,
            [this, kind](int key) { of(kind).keyPressed(key); });
}

void UndoHistories::textChanged(DocumentKind kind)
{
    m_view.setState(m_view.document(kind), EditorDocument::Modified);
    const bool undone = of(kind).canRedo();
    if (of(kind).textChanged() || undone) {
        UpdateUndoRedoMenus();
    }
}

void UndoHistories::mnuEditUndo_Click()
{
    step(&UndoHistory::undo, of(m_view.selected().kind).canUndo());
}

void UndoHistories::mnuEditRedo_Click()
{
    step(&UndoHistory::redo, of(m_view.selected().kind).canRedo());
}

void UndoHistories::step(void (UndoHistory::*way)(), bool possible)
{
    if (m_view.refuseProtected() || !possible) {
        return;
    }
    EditorDocument &document = m_view.selected();
    const BusyGuard busy(m_view);
    m_blink->stop();
    (of(document.kind).*way)();
    m_context.status.setLine(document.control->caretLine());
    UpdateUndoRedoMenus();
    if (m_context.settings.of<DocumentSettings>().HighlightLineOnUndo) {
        m_blink->start(document);
    }
}

void UndoHistories::mnuEditSelectLine_Click()
{
    SelectLine(*m_view.selected().control);
}

void UndoHistories::UpdateUndoRedoMenus()
{
    const UndoHistory &history = of(m_view.selected().kind);
    showSteps(*m_actions.action(u"mnuEditUndo"), u"Undo"_s, history.slots() - history.UndoIndex());
    showSteps(*m_actions.action(u"mnuEditRedo"), u"Redo"_s, history.UndoIndex() - 1);
    Q_EMIT menusUpdated();
}

void UndoHistories::startOver(DocumentKind kind)
{
    of(kind).reset();
    UpdateUndoRedoMenus();
}

void UndoHistories::DeleteUndosFromMemory()
{
    of(DocumentKind::Joystick).forget();
    of(DocumentKind::Macro).forget();
    UpdateUndoRedoMenus();
}

} // namespace zeph
