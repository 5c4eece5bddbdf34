// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <span>

class QAction;
class QMenu;

namespace zeph {

class Dialogs;

/// The menu entries of a window as live actions, made from its tables. Owns the menus.
class MenuActions : public QObject
{
    Q_OBJECT
public:
    /// The tables must outlive this.
    MenuActions(Dialogs &dialogs, const QString &iconFolder, std::span<const MenuRow> menus,
                std::span<const ActionRow> rows, QObject *parent = nullptr);
    ~MenuActions() override;

    /// The entry of that object name. Every name of the table has one; another is a programming
    /// error.
    QAction *action(QStringView name) const;
    bool has(QStringView name) const;
    QMenu *menu(QStringView name) const;
    /// The menus of the menu bar in order, for whoever owns the bar.
    QList<QMenu *> menuBar() const;

    /// Connects an entry with what it does, through the guard that every handler has.
    void connectTo(QStringView name, std::function<void()> operation);
    /// Does what the entry does, if it is enabled. False when it is not.
    bool trigger(QStringView name);

    /// Enables or disables all entries that depend on a condition.
    void setCondition(When when, bool holds);

private:
    void makeMenus();

    Dialogs &m_dialogs;
    QString m_iconFolder;
    std::span<const MenuRow> m_bar;
    std::span<const ActionRow> m_rows;
    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
};

} // namespace zeph
