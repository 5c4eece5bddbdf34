// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QHash>
#include <QMenuBar>

class QAction;

namespace zeph {

/// The Key Tester's menus, made from one table. Only the mouse operates them, since the window
/// shows every key that reaches it.
class KeyTestMenus : public QMenuBar
{
    Q_OBJECT
public:
    explicit KeyTestMenus(QWidget *parent);

    /// The entry of that object name, or the action that opens the menu of that name.
    QAction *action(QStringView name) const;
    /// Ticks NAME_index and unticks the other entries NAME_i; an index without entry unticks all.
    void tickOnly(const QString &name, int index) const;

Q_SIGNALS:
    /// The user has chosen an entry: NAME and i of NAME_i, or its name and -1.
    void chosen(const QString &name, int index);

private:
    void addEntry(QMenu *menu, const QString &name, const QString &caption, bool isTick);

    QHash<QString, QAction *> m_actions;
};

} // namespace zeph
