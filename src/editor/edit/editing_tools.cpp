// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/editing_tools.h"

#include "documents/editor_view.h"
#include "menus/menu_actions.h"

namespace zeph {

EditingTools::EditingTools(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_clipboard({ parts.view, parts.actions, parts.insert }),
      m_blocks({ parts.view, parts.actions, parts.highlighting, parts.insert }),
      m_alignment(context, { parts.view, parts.actions, parts.highlighting })
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuEditFind", [this] { mnuEditFind_Click(); });
    on.connectTo(u"mnuEditReplace", [this] { mnuEditReplace_Click(); });
    on.connectTo(u"mnuEditGoto", [this] { mnuEditGoto_Click(); });
}

EditingTools::~EditingTools()
{
    delete m_find;
}

void EditingTools::mnuEditFind_Click()
{
    openFind(FindAndReplace::Tab::Find);
}

void EditingTools::mnuEditReplace_Click()
{
    openFind(FindAndReplace::Tab::Replace);
}

void EditingTools::mnuEditGoto_Click()
{
    openFind(FindAndReplace::Tab::GoToLine);
}

void EditingTools::openFind(FindAndReplace::Tab tab)
{
    if (!m_find) {
        m_find = new FindAndReplace(m_context, { m_parts.view }, m_parts.view.window());
        connect(m_find, &FindAndReplace::helpOn, this, &EditingTools::helpOn);
    }
    m_find->showTab(tab);
}

void EditingTools::applySettings()
{
    m_alignment.applySettings();
}

} // namespace zeph
