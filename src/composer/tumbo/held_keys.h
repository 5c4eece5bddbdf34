// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <set>

namespace zeph {

/// The board's keys that a statement leaves held down: those that KD and the D codes of USB press
/// and that nothing after them releases. Comments do not count, nor do keys that are typed, which
/// come up by themselves.
std::set<int> keysHeldBy(const QString &statement);

} // namespace zeph
