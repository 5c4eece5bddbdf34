// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// The lines of a list that pilots may edit, trimmed, empty ones left out. A list that is missing
/// or cannot be read is empty.
QStringList linesOfListFile(const QString &path);

} // namespace zeph
