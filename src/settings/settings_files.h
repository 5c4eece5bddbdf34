// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "settings/global_settings.h"

namespace zeph {

/// The files in which a run with these paths keeps its settings.
inline SettingsFiles settingsFilesOf(const Paths &paths)
{
    return { ProfileFile(paths.iniPath), ProfileFile(paths.hotasIni()) };
}

} // namespace zeph
