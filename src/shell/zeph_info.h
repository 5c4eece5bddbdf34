// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// ZephInfo.ini of the Info folder: what the Help menu offers beyond its own entries.

#include "platform/core/paths.h"

#include <QList>

namespace zeph {

struct InfoEntry {
    QString caption;
    /// Full path of the entry's file, which need not exist.
    QString path;
};

struct ZephInfo {
    QList<InfoEntry> onlineHelp; ///< the How do I entries, texts of the Info folder
    QList<InfoEntry> manuals;
};

/// No value when the file is missing. A numbered entry without a caption is left out.
std::optional<ZephInfo> readZephInfo(const Paths &paths);

} // namespace zeph
