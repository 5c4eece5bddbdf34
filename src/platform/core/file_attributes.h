// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// Whether a file is marked as read only. The mark counts, not whether this user could write in
/// spite of it: somebody set it on purpose, and an administrator's rights do not undo that. A
/// missing file is not read only.
bool isReadOnlyFile(const QString &path);

} // namespace zeph
