// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/list_rules.h"

#include "platform/core/storable.h"

namespace zeph {

QString uniqueName(const QString &wanted, const QStringList &taken)
{
    QString name = wanted;
    for (int number = 2; taken.contains(name); ++number) {
        const QString suffix = u" (%1)"_s.arg(number);
        name = wanted.left(longestStorable - suffix.size()) + suffix;
    }
    return name;
}

QString nameWhileTyping(const QString &typed, QStringList names, qsizetype place)
{
    const QString own = names.takeAt(place);
    const QString name = storableOr(typed, own);
    return name.isEmpty() || name == own ? own : uniqueName(name, names);
}

qsizetype placeAfterRemoval(qsizetype place, qsizetype left)
{
    return std::min(place, left - 1);
}

} // namespace zeph
