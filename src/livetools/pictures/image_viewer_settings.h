// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/setting_row.h"

namespace zeph {

/// What the Image Viewer keeps.
struct ImageViewerSettings {
    /// The defaults.
    ImageViewerSettings();

    static std::span<const SettingRow<ImageViewerSettings>> rows();

    bool HideAppsToolBar;
    QString ImagesDirectory; ///< where the last picture was opened; may be empty
};

} // namespace zeph
