// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/action_row.h"

#include <QKeySequence>

#include <algorithm>

namespace zeph {

QString entryWithShortcut(std::span<const ActionRow> rows, QKeyCombination keys)
{
    const QKeySequence wanted(keys);
    const auto row = std::ranges::find_if(rows, [&wanted](const ActionRow &each) {
        return each.shortcut[0] != 0 && QKeySequence(QString::fromUtf16(each.shortcut)) == wanted;
    });
    return row == rows.end() ? QString() : QString::fromUtf16(row->name);
}

When conditionOf(std::span<const ActionRow> rows, QStringView name)
{
    return std::ranges::find_if(
               rows, [name](const ActionRow &each) { return name == QStringView(each.name); })
        ->when;
}

QString shortcutOf(std::span<const ActionRow> rows, QStringView name)
{
    const auto row = std::ranges::find_if(
        rows, [name](const ActionRow &each) { return name == QStringView(each.name); });
    return row == rows.end() ? QString() : QString::fromUtf16(row->shortcut);
}

} // namespace zeph
