// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/menu_actions.h"

#include "platform/dialogs.h"
#include "platform/icon_file.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <utility>

namespace zeph {

namespace {

QString text(const char16_t *characters)
{
    return QString::fromUtf16(characters);
}

QString element(const QString &array, int index)
{
    return array + u'_' + QString::number(index);
}

} // namespace

MenuActions::MenuActions(Dialogs &dialogs, const QString &iconFolder,
                         std::span<const MenuRow> menus, std::span<const ActionRow> rows,
                         QWidget *window)
    : m_dialogs(dialogs), m_iconFolder(iconFolder), m_bar(menus), m_rows(rows), m_window(window)
{
    makeMenus();
}

void MenuActions::makeMenus()
{
    for (const MenuRow &row : m_bar) {
        auto *menu = new QMenu(text(row.caption), m_window);
        menu->setObjectName(text(row.name));
        menu->menuAction()->setObjectName(text(row.name));
        // Only a tool tip that is more than the caption is shown.
        menu->setToolTipsVisible(true);
        m_menus.insert(menu->objectName(), menu);
        m_actions.insert(menu->objectName(), menu->menuAction());
    }
    for (const ActionRow &row : m_rows) {
        QAction *action = make(row);
        action->setObjectName(text(row.name));
        action->setStatusTip(text(row.status));
        if (row.icon[0] != 0) {
            action->setIcon(iconFromFile(m_iconFolder + text(row.icon) + u".svg"_s));
        }
        if (row.name[0] != 0) {
            m_actions.insert(text(row.name), action);
        }
        action->setEnabled(row.kind == ActionKind::Separator || row.when == CommonWhen::Always);
    }
}

QAction *MenuActions::make(const ActionRow &row)
{
    QMenu *menu = m_menus.value(text(row.menu));
    if (row.kind == ActionKind::Separator) {
        return menu->addSeparator();
    }
    if (row.kind == ActionKind::Submenu) {
        auto *submenu = new QMenu(text(row.caption), menu);
        submenu->setToolTipsVisible(true);
        m_menus.insert(text(row.name), submenu);
        return menu->addMenu(submenu);
    }
    auto *action = new QAction(text(row.caption), menu ? static_cast<QWidget *>(menu) : m_window);
    if (menu) {
        menu->addAction(action);
    }
    action->setShortcut(QKeySequence(text(row.shortcut)));
    action->setCheckable(row.kind == ActionKind::Tick);
    action->setAutoRepeat(row.kind == ActionKind::Repeats);
    return action;
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

void MenuActions::addTo(QMenuBar &bar) const
{
    for (QMenu *menu : menuBar()) {
        bar.addMenu(menu);
    }
    for (const ActionRow &row : m_rows) {
        if (row.menu[0] == 0) {
            bar.addAction(action(text(row.name)));
        }
    }
}

void MenuActions::connectTo(QStringView name, std::function<void()> operation)
{
    connect(action(name), &QAction::triggered, this,
            guarded(m_dialogs, [this, operation = std::move(operation)](bool) {
                Q_EMIT aboutToRun();
                operation();
            }));
}

void MenuActions::connectArray(const QString &name, std::function<void(int)> operation)
{
    Q_ASSERT_X(has(element(name, 0)) || has(element(name, 1)), "MenuActions::connectArray",
               qPrintable(name));
    // Some arrays count from 1.
    for (int i = has(element(name, 0)) ? 0 : 1; has(element(name, i)); ++i) {
        connectTo(element(name, i), [operation, i] { operation(i); });
    }
}

void MenuActions::setCondition(When when, bool holds)
{
    m_holding.removeAll(when);
    if (holds) {
        m_holding.append(when);
    }
    for (const ActionRow &row : m_rows) {
        if (row.when == when && row.kind != ActionKind::Separator) {
            enable(row);
        }
    }
}

void MenuActions::enable(const ActionRow &row)
{
    const bool holds = row.when == CommonWhen::Always || m_holding.contains(row.when);
    action(QStringView(row.name))->setEnabled(holds && m_lacks.value(text(row.name)).usable);
}

void MenuActions::setLack(QStringView name, const QString &lack, bool usable)
{
    if (lackOf(name) == lack) {
        return;
    }
    m_lacks.insert(name.toString(), { lack, usable || lack.isEmpty() });
    const auto row = std::ranges::find_if(
        m_rows, [name](const ActionRow &each) { return QStringView(each.name) == name; });
    Q_ASSERT_X(row != m_rows.end(), "MenuActions::setLack", qPrintable(name.toString()));
    // An empty tool tip is the caption again.
    action(name)->setToolTip(lack);
    action(name)->setStatusTip(lack.isEmpty() ? text(row->status) : lack);
    if (!usable) {
        enable(*row);
    }
}

void MenuActions::tickOnly(const QString &name, int index) const
{
    for (int i = 0; has(element(name, i)); ++i) {
        action(element(name, i))->setChecked(i == index);
    }
}

MenuArray::MenuArray(Dialogs &dialogs, QMenu &menu, QAction *before, const QString &name,
                     Handler handler)
    : QObject(&menu), m_dialogs(dialogs), m_menu(menu), m_before(before), m_name(name),
      m_handler(std::move(handler))
{
}

void MenuArray::setCaptions(const QStringList &captions)
{
    while (m_entries.size() < captions.size()) {
        grow();
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const QString caption = captions.value(i);
        m_entries[i]->setText(captionOf(caption));
        m_entries[i]->setVisible(!caption.isEmpty());
    }
}

void MenuArray::grow()
{
    const int place = int(m_entries.size()) + 1;
    auto *entry = new QAction(&m_menu);
    entry->setObjectName(m_name + u'_' + QString::number(place));
    connect(entry, &QAction::triggered, this,
            guarded(m_dialogs, [this, place](bool) { m_handler(place); }));
    m_menu.insertAction(m_before, entry);
    m_entries.append(entry);
}

QString captionOf(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

} // namespace zeph
