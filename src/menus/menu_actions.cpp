// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/menu_actions.h"

#include "platform/dialogs.h"
#include "platform/handlers.h"

#include "platform/icon_file.h"
#include <QAction>
#include <QFile>
#include <QMenu>

namespace zeph {

namespace {

QString text(const char16_t *characters)
{
    return QString::fromUtf16(characters);
}

} // namespace

MenuActions::MenuActions(Dialogs &dialogs, const QString &iconFolder,
                         std::span<const MenuRow> menus, std::span<const ActionRow> rows,
                         QObject *parent)
    : QObject(parent), m_dialogs(dialogs), m_iconFolder(iconFolder), m_bar(menus), m_rows(rows)
{
    makeMenus();
}

MenuActions::~MenuActions()
{
    // A menu cannot have this object as its parent, since it is no widget; submenus go with their
    // menus.
    for (QMenu *menu : std::as_const(m_menus)) {
        if (!menu->parent()) {
            menu->deleteLater();
        }
    }
}

void MenuActions::makeMenus()
{
    for (const MenuRow &row : m_bar) {
        auto *menu = new QMenu(text(row.caption));
        menu->setObjectName(text(row.name));
        m_menus.insert(menu->objectName(), menu);
    }
    for (const ActionRow &row : m_rows) {
        QMenu *menu = m_menus.value(text(row.menu));
        QAction *action = nullptr;
        if (row.kind == ActionKind::Separator) {
            action = menu->addSeparator();
        } else if (row.kind == ActionKind::Submenu) {
            auto *submenu = new QMenu(text(row.caption), menu);
            m_menus.insert(text(row.name), submenu);
            action = menu->addMenu(submenu);
        } else {
            action = menu->addAction(text(row.caption));
            action->setShortcut(QKeySequence(text(row.shortcut)));
            action->setCheckable(row.kind == ActionKind::Tick);
        }
        action->setObjectName(text(row.name));
        action->setStatusTip(text(row.status));
        if (row.icon[0] != 0) {
            action->setIcon(iconFromFile(m_iconFolder + text(row.icon) + u".svg"_s));
        }
        if (row.name[0] != 0) {
            m_actions.insert(text(row.name), action);
        }
        action->setEnabled(row.kind == ActionKind::Separator || row.when == When::Always);
    }
}

QAction *MenuActions::action(QStringView name) const
{
    QAction *found = m_actions.value(name.toString());
    Q_ASSERT_X(found, "MenuActions::action", qPrintable(name.toString()));
    return found;
}

bool MenuActions::has(QStringView name) const
{
    return m_actions.contains(name.toString());
}

QMenu *MenuActions::menu(QStringView name) const
{
    return m_menus.value(name.toString());
}

QList<QMenu *> MenuActions::menuBar() const
{
    QList<QMenu *> bar;
    for (const MenuRow &row : m_bar) {
        bar.append(m_menus.value(text(row.name)));
    }
    return bar;
}

void MenuActions::connectTo(QStringView name, std::function<void()> operation)
{
    connect(action(name), &QAction::triggered, this,
            guarded(m_dialogs, [operation = std::move(operation)](bool) { operation(); }));
}

bool MenuActions::trigger(QStringView name)
{
    QAction *found = action(name);
    if (!found->isEnabled()) {
        return false;
    }
    found->trigger();
    return true;
}

void MenuActions::setCondition(When when, bool holds)
{
    for (const ActionRow &row : m_rows) {
        if (row.when == when && row.kind != ActionKind::Separator) {
            action(QStringView(row.name))->setEnabled(holds);
        }
    }
}

} // namespace zeph
