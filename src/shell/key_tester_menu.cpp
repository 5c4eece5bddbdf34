// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/key_tester_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/mum.h"
#include "toolchain/cougar_tools.h"

#include <QAction>

namespace zeph {

KeyTesterMenu::KeyTesterMenu(const Context &context, CougarTools &tools, Mum &mum, Editor &editor)
    : QObject(&editor), m_context(context), m_tools(tools), m_mum(mum), m_editor(editor)
{
    editor.actions().connectTo(u"mnuAppsKeyTester", [this] { mnuAppsKeyTester_Click(); });
}

void KeyTesterMenu::mnuAppsKeyTester_Click()
{
    ToolWindows &windows = m_mum.toolWindows();
    if (auto *open = windows.get<KeyTestForm>()) {
        ToolWindows::raise(*open);
        return;
    }
    const KeyTestForm::Parts parts{ m_tools.modes(), m_tools.externalTools(),
                                    *m_editor.action(u"mnuAppsDX8_0") };
    auto *form = windows.load<KeyTestForm>(
        [&](QWidget *owner) { return new KeyTestForm(m_context, parts, owner); });
    if (form->Form_Load()) {
        ToolWindows::raise(*form);
    } else {
        windows.unload<KeyTestForm>();
    }
}

} // namespace zeph
