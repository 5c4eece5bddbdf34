// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/image_viewer_settings.h"

#include <array>

namespace zeph {

namespace {

using S = ImageViewerSettings;

constexpr QStringView section = u"Image Viewer";

constexpr std::array rows = {
    row(section, u"HideAppsToolBar", &S::HideAppsToolBar, false),
    row(section, u"ImagesDirectory", &S::ImagesDirectory, u""),
};

} // namespace

ImageViewerSettings::ImageViewerSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ImageViewerSettings>> ImageViewerSettings::rows()
{
    return zeph::rows;
}

} // namespace zeph
