// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The options that the compiler applies unless a file's statements say otherwise: section Defaults
// of the file that the toolchain shares.

#include "platform/core/profile_file.h"

namespace zeph {

struct DefaultOptions {
    qint16 POVhat = 1; ///< the hat used as point of view, 1 to 4
    qint16 POVUD = 0;
    qint16 MicrostickMouse = 1;
    qint16 MicrostickUD = 0;
    qint16 TG1enabled = 1;
    qint16 S2enabled = 1;
    qint16 RCSType = 0;
    qint16 MDEFrequired = 1;
    qint16 DownloadMode = 1;

    friend bool operator==(const DefaultOptions &, const DefaultOptions &) = default;
};

/// The flags, in the order of the ticks CHK_Default_0 to CHK_Default_7.
constexpr qint16 DefaultOptions::*defaultFlags[] = {
    &DefaultOptions::POVUD,        &DefaultOptions::MicrostickMouse, &DefaultOptions::MicrostickUD,
    &DefaultOptions::TG1enabled,   &DefaultOptions::S2enabled,       &DefaultOptions::RCSType,
    &DefaultOptions::MDEFrequired, &DefaultOptions::DownloadMode,
};

/// Reads the section; what is absent or no number of 16 bits has its default.
DefaultOptions GetDefaultOptions(const ProfileFile &hotasIni);
/// Writes its nine keys in one replacement; all else in the file stays.
Expected<void, FileError> SaveDefaultOptions(const DefaultOptions &options,
                                             const ProfileFile &hotasIni);

} // namespace zeph
