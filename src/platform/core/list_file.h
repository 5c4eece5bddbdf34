// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// Returns the lines of a list file that pilots may edit, trimmed and without empty ones; no lines
/// when it is missing or cannot be read.
QStringList linesOfListFile(const QString &path);

} // namespace zeph
