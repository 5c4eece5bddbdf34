// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The tables that menus are made of: a row a menu, and a row an entry with what it is called, where
// it is, how it looks and when it can be used.

#include "platform/core/base.h"

#include <QKeyCombination>

#include <span>
#include <type_traits>

namespace zeph {

/// The conditions that every window has. Custom entries start disabled; their owner enables them.
enum class CommonWhen { Always = -1, Custom = -2 };

/// When an entry can be used: one of CommonWhen, or of an enum of the window that owns the table,
/// whose values count from 0. Entries under a window's own condition start disabled.
class When
{
public:
    template <class Enum>
        requires std::is_enum_v<Enum>
    constexpr When(Enum condition) : m_number(int(condition))
    {
    }
    constexpr bool operator==(const When &) const = default;

private:
    int m_number;
};

enum class ActionKind {
    Entry,
    Repeats, ///< an entry whose key may be held down
    Tick, ///< an entry that is on or off
    Separator,
    Submenu
};

/// One entry, separator or submenu; the rows have the order of the menus.
struct ActionRow {
    const char16_t *menu; ///< object name of the menu that holds it; empty: the bar itself
    const char16_t *name; ///< object name; element i of an array is NAME_i
    const char16_t *caption;
    const char16_t *shortcut; ///< empty when it has none
    const char16_t *status; ///< longer description for the status bar, may be empty
    const char16_t *icon; ///< name of a picture in the icons folder, may be empty
    When when;
    ActionKind kind;
};

/// One menu of the menu bar; the rows go from left to right.
struct MenuRow {
    const char16_t *name; ///< object name
    const char16_t *caption;
};

constexpr ActionRow separator(const char16_t *menu, const char16_t *name = u"")
{
    return { menu, name, u"", u"", u"", u"", CommonWhen::Always, ActionKind::Separator };
}

/// Object name of the entry with that shortcut; empty when there is none.
QString entryWithShortcut(std::span<const ActionRow> rows, QKeyCombination keys);
/// The condition of the entry of that object name, which the table must have.
When conditionOf(std::span<const ActionRow> rows, QStringView name);
/// The shortcut of the entry of that object name as the table writes it ("Ctrl+S"); empty when
/// there is none.
QString shortcutOf(std::span<const ActionRow> rows, QStringView name);

} // namespace zeph
