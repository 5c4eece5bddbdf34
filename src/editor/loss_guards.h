// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/auto_save.h"
#include "editor/recovery.h"

namespace zeph {

/// What stands between the pilot and lost work.
struct LossGuards {
    AutoSave autoSave;
    Recovery recovery;
};

} // namespace zeph
