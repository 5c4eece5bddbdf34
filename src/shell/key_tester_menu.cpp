// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/key_tester_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/mum.h"
#include "toolchain/modes/cougar_modes.h"

#include <QAction>

namespace zeph {

KeyTesterMenu::KeyTesterMenu(const Context &context, CougarModes &modes, Mum &mum, Editor &editor)
    : QObject(&editor), m_context(context), m_modes(modes), m_mum(mum), m_editor(editor)
{
    editor.actions().connectTo(u"mnuAppsKeyTester", [this] { mnuAppsKeyTester_Click(); });
}

KeyTestHost KeyTesterMenu::host()
{
    MenuActions *actions = &m_editor.actions();
    KeyTestHost host;
    host.changeButtonsMode = [this](bool programmed) {
        m_modes.changeButtonsMode(programmed ? ButtonsRequest::Programmed
                                             : ButtonsRequest::Windows);
    };
    host.emergencyOff = [this] {
        m_modes.emergencyOff();
    };
    host.mnuMemoryClear_Click = [actions](int index) {
        actions->trigger(u"mnuMemoryClear_"_s + QString::number(index));
    };
    host.hasDirectXTester = [actions] {
        return actions->action(u"mnuAppsDX8_0")->isVisible();
    };
    host.startDirectXTester = [actions] {
        actions->trigger(u"mnuAppsDX8_0");
    };
    return host;
}

void KeyTesterMenu::mnuAppsKeyTester_Click()
{
    ToolWindows &windows = m_mum.toolWindows();
    if (auto *open = windows.get<KeyTestForm>()) {
        ToolWindows::raise(*open);
        return;
    }
    auto *form = windows.load<KeyTestForm>(
        [this](QWidget *owner) { return new KeyTestForm(m_context, host(), owner); });
    if (form->Form_Load()) {
        ToolWindows::raise(*form);
    } else {
        windows.unload<KeyTestForm>();
    }
}

} // namespace zeph
