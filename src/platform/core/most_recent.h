// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lists that hold the most recently used first.

#include <QList>

#include <algorithm>
#include <utility>

namespace zeph {

/// Puts an item at the front of a list of at most so many: an item that is the same leaves its
/// place, the others keep their order, and those after the limit are removed.
template <class T, class Same> void putFirst(QList<T> &list, T item, qsizetype most, Same same)
{
    const auto found =
        std::find_if(list.cbegin(), list.cend(), [&](const T &other) { return same(other, item); });
    if (found != list.cend()) {
        list.erase(found);
    }
    list.prepend(std::move(item));
    if (list.size() > most) {
        list.resize(most);
    }
}

} // namespace zeph
