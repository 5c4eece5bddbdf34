// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_list_menu.h"

#include "editor/macros/macro_list.h"
#include "menus/menu_actions.h"
#include "platform/handlers.h"

#include <QAction>
#include <QMenu>

namespace zeph {

MacroListMenu::MacroListMenu(const Context &context, MacroList &list, MenuActions &actions)
    : m_context(context), m_list(list), m_actions(actions)
{
    connect(&list, &MacroList::popUpWanted, this, [this](const QPoint &at) { build()->exec(at); });
}

std::unique_ptr<QMenu> MacroListMenu::build()
{
    auto menu = std::make_unique<QMenu>();
    menu->setObjectName(u"mnuRHList"_s);
    const auto add = [this, &menu](const QString &name, const QString &caption,
                                   std::function<void()> run, bool needsMacro = true) {
        QAction *entry = menu->addAction(caption);
        entry->setObjectName(name);
        entry->setEnabled(!needsMacro || !m_list.SelectedMacro.isEmpty());
        connect(entry, &QAction::triggered, this,
                guarded(m_context.dialogs, [run = std::move(run)](bool) { run(); }));
    };
    const auto entryOf = [this](const char16_t *name) {
        return [this, name] {
            m_actions.trigger(QStringView(name));
        };
    };
    add(u"mnuRHListInsert"_s, u"&Insert into Joystick file"_s, [this] { m_list.List1_DblClick(); });
    add(u"mnuFindInJoyFile"_s, u"&Find in Joystick file"_s, entryOf(u"mnuFindInJoyFile"));
    add(u"mnuRHListIdentify"_s, u"Identify &macros used"_s, entryOf(u"mnuMacrosIdentify"), false);
    menu->addSeparator();
    add(
        u"mnuRHListQuickTip"_s, u"&Quick tip - read me"_s, [this] { Q_EMIT quickTipWanted(); },
        false);
    menu->addSeparator();
    add(u"mnuRHListRename"_s, u"&Rename in both files"_s, entryOf(u"mnuRenameMacro"));
    add(u"mnuRHListEdit"_s, u"&Edit"_s, [this] { m_list.mnuRHListEdit_Click(); });
    return menu;
}

} // namespace zeph
