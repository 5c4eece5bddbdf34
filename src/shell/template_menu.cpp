// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/template_menu.h"

#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/use_directives.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/help_menu.h"
#include "shell/mum.h"
#include "templates/templateform.h"
#include "text/macro_table.h"

namespace zeph {

namespace {

/// The help topic on the Template Editor.
constexpr int templatesTopic = 290;

} // namespace

TemplateMenu::TemplateMenu(const Context &context, Printers &printers, Mum &mum, Editor &editor,
                           HelpMenu &help)
    : QObject(&editor), m_context(context), m_printers(printers), m_mum(mum), m_editor(editor),
      m_help(help)
{
    MenuActions &on = editor.actions();
    on.connectTo(u"mnuAppsTemplateEditor", [this] { mnuAppsTemplateEditor_Click(); });
    on.connectTo(u"mnuAppsViewReadMe", [this] { mnuAppsViewReadMe_Click(); });
    const UseDirectives *files = &editor.useDirectives();
    connect(files, &UseDirectives::filesChanged, this, [this, files] {
        m_editor.actions().setCondition(When::ReadMe, !files->textFilePath().isEmpty());
    });
}

TemplateForm *TemplateMenu::make(QWidget *owner)
{
    TemplateHost host;
    host.showHelp = [this] {
        m_help.showTopic(templatesTopic);
    };
    host.macroKeys = [this](const QString &word) {
        return macroKeys(m_editor.macros().list().table(), word);
    };
    host.fileWritten = [this](const QString &path) {
        m_editor.opening().offerToReload({ path });
    };
    return new TemplateForm(m_context, m_printers, host, owner);
}

TemplateForm *TemplateMenu::mnuAppsTemplateEditor_Click()
{
    return m_mum.toolWindows().open<TemplateForm>([this](QWidget *owner) { return make(owner); });
}

void TemplateMenu::mnuAppsViewReadMe_Click()
{
    mnuAppsTemplateEditor_Click()->OpenReadMe(m_editor.useDirectives().textFilePath());
}

bool TemplateMenu::queryUnload()
{
    auto *form = m_mum.toolWindows().get<TemplateForm>();
    return !form || form->mayClose();
}

} // namespace zeph
