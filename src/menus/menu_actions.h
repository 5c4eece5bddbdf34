// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "menus/action_row.h"
#include "platform/core/base.h"

#include <QHash>
#include <QObject>

#include <QList>
#include <QStringList>
#include <functional>
#include <span>

class QAction;
class QMenu;
class QMenuBar;

namespace zeph {

class Dialogs;

/// The menu entries of a window as live actions, made from its tables. The menus and the entries of
/// the bar itself become children of the window.
class MenuActions : public QObject
{
    Q_OBJECT
public:
    /// The tables must outlive this, and the window must outlive the calls below.
    MenuActions(Dialogs &dialogs, const QString &iconFolder, std::span<const MenuRow> menus,
                std::span<const ActionRow> rows, QWidget *window);

    /// The entry, or the menu's own action, of that object name. A name that no table has is a
    /// programming error. Its trigger() runs it, unless it is disabled.
    QAction *action(QStringView name) const;
    bool has(QStringView name) const;
    /// The menu or submenu of that object name; null when there is none.
    QMenu *menu(QStringView name) const;
    /// The menus of the menu bar from left to right.
    QList<QMenu *> menuBar() const;
    /// Adds the menus, and after them the entries of the bar itself.
    void addTo(QMenuBar &bar) const;

    /// Lets an entry run an operation. What escapes the operation is shown to the user.
    void connectTo(QStringView name, std::function<void()> operation);
    /// Lets all entries NAME_i run one operation, which receives the index i.
    void connectArray(const QString &name, std::function<void(int)> operation);

    /// Enables or disables all entries under a condition.
    void setCondition(When when, bool holds);
    /// Tells in tool tip and status text what an entry lacks, such as its program; an empty text
    /// gives it its own words back. While an entry lacks something and is not usable all the same,
    /// it is disabled; its condition must not be Custom.
    void setLack(QStringView name, const QString &lack, bool usable);
    /// What the entry lacks; empty when nothing.
    QString lackOf(QStringView name) const { return m_lacks.value(name.toString()).text; }

    /// Ticks the entry NAME_index of an array and no other of it; -1 ticks none.
    void tickOnly(const QString &name, int index) const;

Q_SIGNALS:
    /// An entry is about to run its operation.
    void aboutToRun();

private:
    struct Lack {
        QString text;
        bool usable = true;
    };

    void makeMenus();
    QAction *make(const ActionRow &row);
    void enable(const ActionRow &row);

    Dialogs &m_dialogs;
    QString m_iconFolder;
    std::span<const MenuRow> m_bar;
    std::span<const ActionRow> m_rows;
    QWidget *m_window;
    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
    QHash<QString, Lack> m_lacks;
    QList<When> m_holding; ///< the conditions that hold
};

/// The entries NAME_1 … NAME_n of a list of the user's, in a menu before one of its entries (or at
/// its end). An entry stays when the list changes, since the change may come from its own click.
class MenuArray : public QObject
{
    Q_OBJECT
public:
    /// The handler receives the 1-based place.
    using Handler = std::function<void(int)>;
    MenuArray(Dialogs &dialogs, QMenu &menu, QAction *before, const QString &name, Handler handler);

    /// Shows one entry a caption, as the user wrote it; a caption that is empty shows none.
    void setCaptions(const QStringList &captions);

private:
    void grow();

    Dialogs &m_dialogs;
    QMenu &m_menu;
    QAction *m_before;
    QString m_name;
    Handler m_handler;
    QList<QAction *> m_entries;
};

/// A text as a caption that shows it unchanged: an ampersand in it marks no letter.
QString captionOf(QString text);

} // namespace zeph
