// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The four custom applications: programs of the user's on the Apps menu and its toolbar.

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "platform/process_launcher.h"

#include <QIcon>

#include <array>

namespace zeph {

struct CustomApp {
    QString CustomAppName;
    QString CustomAppPath; ///< with any switches behind it
    bool CustomAppUse = false; ///< whether it is shown
};

/// By place, which counts from 1 where it is told to the user or stands in a name.
using CustomApps = std::array<CustomApp, 4>;

CustomApps readCustomApps(const ProfileFile &store);
Expected<void, FileError> writeCustomApps(const ProfileFile &store, const CustomApps &apps);

/// How an application starts: in front, in the root of its drive.
Launch customAppLaunch(const CustomApp &app);

/// The file of an application's picture, place by place (1-based).
QString customAppPicture(const Paths &paths, int place);
/// Makes that file from the icon that the system shows for the application. False, and no file
/// changed, when the system has none.
bool makeCustomAppPicture(const CustomApp &app, const QString &file);
/// The picture; empty when there is no such file.
QIcon loadCustomAppPicture(const QString &file);

} // namespace zeph
