// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/undo_histories.h"
#include "documents/document_settings.h"
#include "documents/documents.h"
#include "documents/editor_view.h"
#include "documents/line_blink.h"
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
    : m_context(context), m_view(view), m_actions(actions), m_documents(view.documents()),
      m_blink(new LineBlink(view, this))
{
    m_documents.forEach([this](Document &each) {
        connect(&each, &Document::stepsChanged, this, &UndoHistories::UpdateUndoRedoMenus);
    });
    connect(&m_documents, &Documents::selectedChanged, this, &UndoHistories::UpdateUndoRedoMenus);
    connect(&m_documents.joystick(), &Document::written, this, [this](Document::Save save) {
        if (clearsOn(save)) {
            DeleteUndosOnSaveJ();
        }
    });
    connect(&m_documents.macro(), &Document::written, this, [this](Document::Save save) {
        if (clearsOn(save)) {
            DeleteUndosOnSaveM();
        }
    });
    connect(&actions, &MenuActions::aboutToRun, m_blink, &LineBlink::stop);
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
    step(&Document::undo, m_documents.selected().history().canUndo());
}

void UndoHistories::mnuEditRedo_Click()
{
    step(&Document::redo, m_documents.selected().history().canRedo());
}

void UndoHistories::step(void (Document::*way)(), bool possible)
{
    if (m_documents.refuseProtected() || !possible) {
        return;
    }
    Document &document = m_documents.selected();
    m_blink->stop();
    (document.*way)();
    m_context.status.setLine(document.caretLine());
    if (m_context.settings.of<DocumentSettings>().HighlightLineOnUndo) {
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
}

bool UndoHistories::clearsOn(Document::Save save) const
{
    return save == Document::Save::Asked
        && m_context.settings.of<DocumentSettings>().UndoClearOnSave;
}

void UndoHistories::startOver(DocumentKind kind)
{
    of(kind).reset();
    UpdateUndoRedoMenus();
}

void UndoHistories::DeleteUndosFromMemory()
{
    startOver(DocumentKind::Joystick);
    startOver(DocumentKind::Macro);
}

} // namespace zeph
