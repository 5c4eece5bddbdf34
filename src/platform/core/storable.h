// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Texts that a profile file can hold: no longer than the reads' buffer, in the file's code page.

#include "platform/core/profile_file.h"

#include <QStringList>

namespace zeph {

constexpr int longestStorable = profileTextBuffer - 1;

bool isStorable(const QString &text);

/// What stays of a field: what was typed, without the blanks around it, or what was there before
/// when the store could not give it back.
QString storableOr(const QString &typed, const QString &before);

/// Tells the user the first character among the texts that cannot be stored; empty when all can.
QString unstorableHint(const QStringList &texts);

} // namespace zeph
