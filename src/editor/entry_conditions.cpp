// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/entry_conditions.h"

#include "documents/documents.h"
#include "editor/actions.h"
#include "editor/editor_settings.h"
#include "editor/files/use_directives.h"
#include "menus/menu_actions.h"
#include "platform/richtext/rich_text_mime.h"

#include <QApplication>
#include <QClipboard>

namespace zeph {

EntryConditions::EntryConditions(const Parts &parts, const EditorSettings &settings)
    : m_parts(parts), m_settings(settings)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        connect(&parts.documents.of(kind), &Document::selectionChanged, this,
                &EntryConditions::update);
    }
    connect(&parts.documents, &Documents::selectedChanged, this, &EntryConditions::update);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &EntryConditions::update);
    connect(&parts.useDirectives, &UseDirectives::filesChanged, this, [this] {
        m_parts.actions.setCondition(EditorWhen::ReadMe,
                                     !m_parts.useDirectives.textFilePath().isEmpty());
        m_parts.actions.setCondition(EditorWhen::Graphic,
                                     !m_parts.useDirectives.imageFilePath().isEmpty());
    });
    update();
}

void EntryConditions::update()
{
    const Document &selected = m_parts.documents.selected();
    MenuActions &actions = m_parts.actions;
    actions.setCondition(EditorWhen::Selection, selected.selLength() > 0);
    actions.setCondition(EditorWhen::PasteReady, holdsText(QApplication::clipboard()->mimeData()));
    actions.setCondition(EditorWhen::JoystickText,
                         selected.kind() == DocumentKind::Joystick
                             || m_settings.AlwaysShowCompileDownload);
}

} // namespace zeph
