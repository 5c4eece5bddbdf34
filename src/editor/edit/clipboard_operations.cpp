// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/clipboard_operations.h"

#include "documents/coloured_insert.h"
#include "documents/edit_step.h"
#include "documents/pasted_text.h"
#include "documents/text_control.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_mime.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zeph {

ClipboardOperations::ClipboardOperations(const Parts &parts) : m_parts(parts)
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuEditCut", [this] { mnuEditCut_Click(); });
    on.connectTo(u"mnuEditCopy", [this] { mnuEditCopy_Click(); });
    on.connectTo(u"mnuEditPaste", [this] { mnuEditPaste_Click(); });
    on.connectTo(u"mnuPasteSimple", [this] { mnuPasteSimple_Click(); });
    on.connectTo(u"mnuEditDelete", [this] { mnuEditDelete_Click(); });
}

void ClipboardOperations::mnuEditCopy_Click()
{
    m_parts.view.selected().control->copy();
}

void ClipboardOperations::mnuEditCut_Click()
{
    if (!m_parts.view.refuseProtected()) {
        mnuEditCopy_Click();
        removeSelection();
    }
}

void ClipboardOperations::mnuEditDelete_Click()
{
    if (!m_parts.view.refuseProtected()) {
        removeSelection();
    }
}

void ClipboardOperations::removeSelection()
{
    const EditorDocument &document = m_parts.view.selected();
    QTextCursor cursor = document.control->textCursor();
    if (cursor.hasSelection()) {
        const EditStep step(m_parts.view, m_parts.histories, document.kind);
        cursor.removeSelectedText();
        document.control->setTextCursor(cursor);
    }
}

void ClipboardOperations::mnuEditPaste_Click()
{
    paste(pastedText);
}

void ClipboardOperations::mnuPasteSimple_Click()
{
    paste(pastedSimpleText);
}

void ClipboardOperations::paste(RichText (*take)(const QMimeData &data, const CharFormat &plain))
{
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    if (m_parts.view.refuseProtected() || !holdsText(clipboard)) {
        return;
    }
    const RichText text = take(*clipboard, m_parts.view.plainFormat(m_parts.view.selected().kind));
    if (text.text.isEmpty()) {
        return;
    }
    m_parts.insert.BeginColInsert();
    m_parts.insert.insertRich(text);
    m_parts.insert.EndColInsert();
}

} // namespace zeph
