// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/files/auto_save.h"
#include "editor/files/changed_files.h"
#include "editor/files/recovery.h"

namespace zeph {

/// The objects that save the pilot from losing work.
struct LossGuards {
    AutoSave autoSave;
    Recovery recovery;
    ChangedFiles changedFiles;
};

} // namespace zeph
