// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/undo_histories.h"

#include "documents/documents.h"
#include "documents/editor_view.h"
#include "documents/line_blink.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/global_settings.h"

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
    : m_context(context), m_view(view), m_actions(actions), m_documents(view.documents()),
      m_blink(new LineBlink(view, this))
{
    m_documents.forEach([this](Document &each) {
        connect(&each, &Document::stepsChanged, this, &UndoHistories::UpdateUndoRedoMenus);
    });
    connect(&m_documents, &Documents::selectedChanged, this, &UndoHistories::UpdateUndoRedoMenus);
    actions.connectTo(u"mnuEditUndo", [this] { mnuEditUndo_Click(); });
    actions.connectTo(u"mnuEditRedo", [this] { mnuEditRedo_Click(); });
    actions.connectTo(u"mnuEditSelectLine", [this] { mnuEditSelectLine_Click(); });
    UpdateUndoRedoMenus();
}

UndoHistory &UndoHistories::of(DocumentKind kind)
{
    return m_documents.of(kind).history();
}

void UndoHistories::mnuEditUndo_Click()
{
    step(&UndoHistory::undo, m_documents.selected().history().canUndo());
}

void UndoHistories::mnuEditRedo_Click()
{
    step(&UndoHistory::redo, m_documents.selected().history().canRedo());
}

void UndoHistories::step(void (UndoHistory::*way)(), bool possible)
{
    if (m_documents.refuseProtected() || !possible) {
        return;
    }
    Document &document = m_documents.selected();
    m_blink->stop();
    (document.history().*way)();
    m_context.status.setLine(document.caretLine());
    UpdateUndoRedoMenus();
    if (m_context.settings.HighlightLineOnUndo == 1) {
        m_blink->start(document.kind());
    }
}

void UndoHistories::mnuEditSelectLine_Click()
{
    SelectLine(m_documents.selected());
}

void UndoHistories::UpdateUndoRedoMenus()
{
    const UndoHistory &history = m_documents.selected().history();
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
