// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/clipboard_operations.h"

#include "documents/coloured_insert.h"
#include "documents/document.h"
#include "documents/editor_view.h"
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
    m_parts.view.copy();
}

void ClipboardOperations::mnuEditCut_Click()
{
    if (!m_parts.view.documents().refuseProtected()) {
        mnuEditCopy_Click();
        removeSelection();
    }
}

void ClipboardOperations::mnuEditDelete_Click()
{
    if (!m_parts.view.documents().refuseProtected()) {
        removeSelection();
    }
}

void ClipboardOperations::removeSelection()
{
    Document &document = m_parts.view.documents().selected();
    if (document.selLength() > 0) {
        Change change(document);
        document.removeSelection();
        change.commit();
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
    if (m_parts.view.documents().refuseProtected() || !holdsText(clipboard)) {
        return;
    }
    const RichText text =
        take(*clipboard,
             m_parts.view.documents().plainFormat(m_parts.view.documents().selected().kind()));
    if (text.text.isEmpty()) {
        return;
    }
    m_parts.insert.BeginColInsert();
    m_parts.insert.insertRich(text);
    m_parts.insert.EndColInsert();
}

} // namespace zeph
