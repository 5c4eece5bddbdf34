// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/alignment_operations.h"

#include "documents/change.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/alignment.h"
#include "text/text_lines.h"

#include <QAction>

namespace zeph {

namespace {

/// Puts a text in place of the whole one. Caret and view stay with the line that they were at.
void replaceAll(EditorView &view, Document &document, const QString &text)
{
    const int line = document.caretLine();
    const EditorView::KeptLine place(view, document);
    document.replaceWhole(text);
    document.select(int(lineRange(text, line).value_or(LineRange()).start), 0);
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
    if (m_parts.view.documents().refuseProtected()) {
        return;
    }
    Document &joystick = m_parts.view.documents().joystick();
    const QString text = joystick.text();
    if (text.isEmpty()) {
        return;
    }
    m_context.status.setTextNow(u" Hang on - this could take time ..."_s);
    m_parts.view.documents().select(DocumentKind::Joystick);
    const auto &settings = m_context.settings.of<EditorSettings>();
    const QString aligned = AlignSlashes(text, { settings.IndentAsWell, settings.IndentSpaces });
    if (aligned != text) {
        Change change(joystick);
        replaceAll(m_parts.view, joystick, aligned);
        change.commit();
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
    Document &document = m_parts.view.documents().selected();
    if (m_parts.view.documents().refuseProtected() || document.length() == 0) {
        return;
    }
    m_context.status.setText(u"Reformatting layout. Please wait ..."_s);
    document.setMargins();
    m_parts.view.UpdateSavedIcon();
    m_context.status.setText(u"Layout refreshed ... (I wish I was!)"_s);
    document.history().storeTop();
}

} // namespace zeph
