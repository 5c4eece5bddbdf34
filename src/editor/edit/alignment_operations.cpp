// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/alignment_operations.h"

#include "documents/edit_step.h"
#include "documents/highlighting.h"
#include "documents/text_control.h"
#include "documents/undo_history.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/alignment.h"
#include "text/text_lines.h"

#include <QAction>

namespace zeph {

namespace {

/// Puts a text in place of the whole one. Caret and view stay with the line that they were at.
void replaceAll(TextControl &control, const QString &text)
{
    const int line = control.caretLine();
    const int down = control.place().down;
    QTextCursor cursor(control.document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, toTextFormat(control.plainFormat()));
    const int start = int(lineRange(text, line).value_or(LineRange()).start);
    control.setPlace({ start, start, 0, down });
}

} // namespace

AlignmentOperations::AlignmentOperations(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuAlignSlash", [this] { mnuAlignSlash_Click(); });
    on.connectTo(u"mnuIndentSlashes", [this] { mnuIndentSlashes_Click(); });
    on.connectTo(u"mnuViewrefreshIndent", [this] { mnuViewrefreshIndent_Click(); });
    applySettings();
}

void AlignmentOperations::applySettings()
{
    m_parts.actions.action(u"mnuIndentSlashes")
        ->setChecked(m_context.settings.of<EditorSettings>().IndentAsWell);
}

void AlignmentOperations::mnuAlignSlash_Click()
{
    if (m_parts.view.refuseProtected()) {
        return;
    }
    EditorDocument &joystick = m_parts.view.document(DocumentKind::Joystick);
    const QString text = joystick.control->text();
    if (text.isEmpty()) {
        return;
    }
    m_context.status.setTextNow(u" Hang on - this could take time ..."_s);
    m_parts.view.select(DocumentKind::Joystick);
    const QString aligned = AlignSlashes(text,
                                         { m_context.settings.of<EditorSettings>().IndentAsWell,
                                           m_context.settings.of<EditorSettings>().IndentSpaces });
    if (aligned != text) {
        const EditStep step(m_parts.view, m_parts.histories, DocumentKind::Joystick);
        replaceAll(*joystick.control, aligned);
    }
    m_parts.highlighting.mnuViewColourJoystick_Click();
    m_context.status.setText(u" OK - done!"_s);
}

void AlignmentOperations::mnuIndentSlashes_Click()
{
    m_context.settings.of<EditorSettings>().IndentAsWell =
        m_parts.actions.action(u"mnuIndentSlashes")->isChecked();
}

void AlignmentOperations::mnuViewrefreshIndent_Click()
{
    EditorDocument &document = m_parts.view.selected();
    if (m_parts.view.refuseProtected() || document.control->end() == 0) {
        return;
    }
    const BusyGuard busy(m_parts.view);
    m_context.status.setText(u"Reformatting layout. Please wait ..."_s);
    setParagraphFormat(*document.control->document(), documentParagraph);
    m_parts.view.UpdateSavedIcon();
    m_context.status.setText(u"Layout refreshed ... (I wish I was!)"_s);
    m_parts.histories.of(document.kind).storeTop();
}

} // namespace zeph
