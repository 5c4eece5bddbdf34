// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Is there a newer Zeph? The server's answer is a file that holds the latest version and no more.

#include "platform/dialogs.h"

namespace zeph {

class Downloader;
struct Paths;

/// What is told when the server could not be reached.
Box versionUnknownBox();
/// What is told of the server's text, which is compared exactly.
Box versionBox(const QString &latest, const QString &running);

/// Fetches the latest version into VersionURL.txt of the application's folder and tells how it
/// compares. Waits in a nested event loop.
void checkVersion(Downloader &downloader, Dialogs &dialogs, const Paths &paths,
                  const QString &address);

} // namespace zeph
