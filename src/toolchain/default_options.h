// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settings.h"

namespace zeph {

/// The options that the compiler applies unless a file's statements say otherwise: section Defaults
/// of the file that the toolchain shares. Only DownloadMode is a setting of a whole run, the window
/// that edits the others reads them anew.
struct DefaultOptions {
    /// The defaults.
    DefaultOptions();

    static std::span<const SettingRow<DefaultOptions>> rows();

    int POVhat; ///< the hat used as point of view, 1 to 4
    bool MicrostickMouse;
    bool POVUD;
    bool MicrostickUD;
    bool TG1enabled;
    bool S2enabled;
    bool MDEFrequired;
    bool DownloadMode;
    bool RCSType;

    friend bool operator==(const DefaultOptions &, const DefaultOptions &) = default;
};

/// Reads the section; what is absent or no number of 16 bits has its default.
DefaultOptions GetDefaultOptions(const SettingsFiles &files);
/// Writes, in one replacement, those of its nine keys that differ from what was read before or are
/// absent. All else stays as it is: a value that nobody changed, even one that could not be read,
/// and what other programs have written meanwhile.
Expected<void, FileError> SaveDefaultOptions(DefaultOptions options, DefaultOptions read,
                                             const SettingsFiles &files);

} // namespace zeph
