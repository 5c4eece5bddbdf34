// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QHash>
#include <QMenuBar>

class QAction;

namespace zeph {

/// The Key Tester's menus, made from one table. They are the mouse's alone: every key that reaches
/// the window is there to be shown.
class KeyTestMenus : public QMenuBar
{
    Q_OBJECT
public:
    explicit KeyTestMenus(QWidget *parent);

    /// The entry, or the menu's own action, of that object name.
    QAction *action(QStringView name) const;
    /// Ticks the entry NAME_index of a list of exclusive ones; another index ticks none.
    void tickOnly(const QString &name, int index) const;

Q_SIGNALS:
    /// An entry was chosen; element i of NAME_i is the index, -1 for entries of their own.
    void chosen(const QString &name, int index);

private:
    void addEntry(QMenu *menu, const QString &name, const QString &caption, bool isTick);

    QHash<QString, QAction *> m_actions;
};

} // namespace zeph
