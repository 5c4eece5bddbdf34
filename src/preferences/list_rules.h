// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What holds for every list of named things that Preferences edits. Places are 0-based.

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// The name itself, or with the first free number behind it, as in "Falcon (2)".
QString uniqueName(const QString &wanted, const QStringList &taken);

/// The name that the entry at a place has while a name is typed for it: the typed one, with a
/// number when another entry has it already, and its own when nothing remains or the store cannot
/// hold what does. Its own stays even where a store of somebody's making has it twice.
QString nameWhileTyping(const QString &typed, QStringList names, qsizetype place);

/// Which entry is selected when the one at a place went; -1 when none is left.
qsizetype placeAfterRemoval(qsizetype place, qsizetype left);

} // namespace zeph
