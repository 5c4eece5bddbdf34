// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_test_menus.h"

#include <QAction>
#include <QMenu>

#include <array>

namespace zeph {

namespace {

enum class MenuKind { Menu, Entry, Tick, Line, TopEntry };

struct MenuRow {
    MenuKind kind;
    QStringView name; ///< object name; element i of an array is NAME_i
    QStringView caption;
};

using enum MenuKind;

// Entries belong to the menu above them.
constexpr std::array rows = {
    MenuRow{ Menu, u"mnuEmergency", u"EMERGENCY" },
    MenuRow{ Entry, u"mnuEmergencyOff", u"Emergency &OFF (switch to Windows mode)" },
    MenuRow{ Line, u"", u"" },
    MenuRow{ Entry, u"mnuMemoryClear_0", u"&Empty memory buffers" },
    MenuRow{ Entry, u"mnuMemoryClear_1", u"&Clear memory of program" },
    MenuRow{ Line, u"", u"" },
    MenuRow{ Entry, u"mnuYankCord", u"&Sod it, just yank the damned cord out!" },
    MenuRow{ Menu, u"mnuClear", u"Clear" },
    MenuRow{ Tick, u"mnuClearDelay_0", u"After &200ms from key up" },
    MenuRow{ Tick, u"mnuClearDelay_1", u"After &400ms from key up" },
    MenuRow{ Tick, u"mnuClearDelay_2", u"After &600ms from key up" },
    MenuRow{ Tick, u"mnuClearDelay_3", u"After &800ms from key up" },
    MenuRow{ Tick, u"mnuClearDelay_4", u"After &1000ms from key up" },
    MenuRow{ Line, u"", u"" },
    MenuRow{ Entry, u"mnuClearAll", u"&Clear now" },
    MenuRow{ Menu, u"mnuView", u"View" },
    MenuRow{ Tick, u"mnuViewKeyEvents", u"&Key events" },
    MenuRow{ Line, u"", u"" },
    MenuRow{ Tick, u"mnuFontSize_0", u"&Small text" },
    MenuRow{ Tick, u"mnuFontSize_1", u"&Medium text" },
    MenuRow{ Tick, u"mnuFontSize_2", u"&Large text" },
    MenuRow{ Menu, u"mnuCopy", u"Copy" },
    MenuRow{ Entry, u"mnuCopyList_0", u"The &keys" },
    MenuRow{ Entry, u"mnuCopyList_1", u"The key &events" },
    MenuRow{ TopEntry, u"mnuDX8KeyTester", u"Zeph's DX8 KeyTester" },
};

} // namespace

KeyTestMenus::KeyTestMenus(QWidget *parent) : QMenuBar(parent)
{
    setObjectName(u"KeyTestMenus"_s);
    QMenu *menu = nullptr;
    for (const MenuRow &row : rows) {
        const QString name = row.name.toString();
        switch (row.kind) {
        case Menu:
            menu = addMenu(row.caption.toString());
            menu->menuAction()->setObjectName(name);
            m_actions.insert(name, menu->menuAction());
            break;
        case Line:
            menu->addSeparator();
            break;
        case TopEntry:
            addEntry(nullptr, name, row.caption.toString(), false);
            break;
        case Entry:
        case Tick:
            addEntry(menu, name, row.caption.toString(), row.kind == Tick);
            break;
        }
    }
}

void KeyTestMenus::addEntry(QMenu *menu, const QString &name, const QString &caption, bool isTick)
{
    QAction *entry = menu ? menu->addAction(caption) : addAction(caption);
    entry->setObjectName(name);
    entry->setCheckable(isTick);
    m_actions.insert(name, entry);
    const qsizetype line = name.lastIndexOf(u'_');
    const QString array = line < 0 ? name : name.first(line);
    const int index = line < 0 ? -1 : name.sliced(line + 1).toInt();
    connect(entry, &QAction::triggered, this,
            [this, array, index] { Q_EMIT chosen(array, index); });
}

QAction *KeyTestMenus::action(QStringView name) const
{
    QAction *found = m_actions.value(name.toString());
    Q_ASSERT_X(found, "KeyTestMenus::action", qPrintable(name.toString()));
    return found;
}

void KeyTestMenus::tickOnly(const QString &name, int index) const
{
    for (int i = 0; QAction *entry = m_actions.value(name + u'_' + QString::number(i)); ++i) {
        entry->setChecked(i == index);
    }
}

} // namespace zeph
