// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/version_check.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"
#include "platform/downloader.h"

namespace zeph {

namespace {

constexpr int timeoutMs = 15000;

} // namespace

Box versionUnknownBox()
{
    return { .title = u"Unable to retrieve version information"_s,
             .text = u"I couldn't connect to ZephSite to find out if you're running the latest "
                     "software. Please try again later."_s,
             .icon = BoxIcon::Exclamation };
}

Box versionBox(const QString &latest, const QString &running)
{
    if (latest == running) {
        return { .title = u"Version information"_s,
                 .text = u"You are running the latest version of Zeph, version "_s + running + u'.',
                 .icon = BoxIcon::Information };
    }
    return { .title = u"Newer software is available"_s,
             .text = u"There is a newer version (version "_s + latest
                 + u") of Zeph available to download.\nPlease visit Klaifi (links are in the Help "
                   "menu) to download it."_s,
             .icon = BoxIcon::Information };
}

void checkVersion(Downloader &downloader, Dialogs &dialogs, const Paths &paths,
                  const QString &address)
{
    // The answer is kept in a file, where it can be looked at when a pilot reports something
    // odd.
    const QString target = paths.inApp(u"VersionURL.txt");
    const auto body = downloader.fetch(address, timeoutMs);
    if (!body || !writeFileAtomically(target, *body)) {
        dialogs.box(versionUnknownBox());
        return;
    }
    const auto stored = readWholeFile(target);
    dialogs.box(stored ? versionBox(fromText1252(*stored), QString::fromUtf16(versionText))
                       : versionUnknownBox());
}

} // namespace zeph
