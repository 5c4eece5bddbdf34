// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// Whether a file is marked as read only. Asks the mark, not whether this user could write all the
/// same: an administrator's rights do not undo a mark that somebody set on purpose. A missing file
/// is not read only.
bool isReadOnlyFile(const QString &path);

} // namespace zeph
