// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Which Zeph this is, and whether there is a newer one: the server's answer is a file that holds
// the latest version and nothing else.

#include "platform/context.h"
#include "platform/dialogs.h"

namespace zeph {

class Downloader;
struct Package;

/// The running version as it is told, compared and shown.
inline constexpr char16_t versionText[] = u"4.4.02";

/// The message when the server could not be reached.
Box versionUnknownBox();
/// The message when the server's text is no version, such as nothing or a page.
Box noVersionBox();
/// The message about the latest version, which is compared exactly with the running one; of a newer
/// one it names the file to fetch, unless that is empty.
Box versionBox(const QString &latest, const QString &running, const QString &file);
/// Whether a text looks like a version: numbers with dots between them, and nothing else.
bool isVersion(const QString &text);

/// Fetches the latest version into VersionURL.txt of the application's folder and tells how it
/// compares; blanks and line ends around it do not count. Waits in a nested event loop, and the
/// status line says so.
void checkVersion(Downloader &downloader, const Context &context, const QString &address,
                  const Package &package);

} // namespace zeph
