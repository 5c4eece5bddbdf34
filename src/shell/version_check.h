// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which Zeph this is, and whether there is a newer one: the server's answer is a file that holds
// the latest version and nothing else.

#include "platform/dialogs.h"

namespace zeph {

class Downloader;
struct Paths;

/// The running version as it is told, compared and shown.
inline constexpr char16_t versionText[] = u"4.4.02";

/// The message when the server could not be reached.
Box versionUnknownBox();
/// The message about the server's text, which is compared exactly with the running version.
Box versionBox(const QString &latest, const QString &running);

/// Fetches the latest version into VersionURL.txt of the application's folder and tells how it
/// compares. Waits in a nested event loop.
void checkVersion(Downloader &downloader, Dialogs &dialogs, const Paths &paths,
                  const QString &address);

} // namespace zeph
