// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/version_check.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"
#include "platform/downloader.h"
#include "platform/package.h"
#include "platform/status_line.h"

#include <QRegularExpression>

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

Box noVersionBox()
{
    return { .title = u"Unable to retrieve version information"_s,
             .text = u"ZephSite answered, but not with a version. Please try again later."_s,
             .icon = BoxIcon::Exclamation };
}

bool isVersion(const QString &text)
{
    static const QRegularExpression version(u"\\A\\d{1,5}(\\.\\d{1,5}){0,4}\\z"_s);
    return version.match(text).hasMatch();
}

Box versionBox(const QString &latest, const QString &running, const QString &file)
{
    if (latest == running) {
        return { .title = u"Version information"_s,
                 .text = u"You are running the latest version of Zeph, version "_s + running + u'.',
                 .icon = BoxIcon::Information };
    }
    const QString fetch = file.isEmpty() ? QString() : u"\nThe file for you is "_s + file + u'.';
    return { .title = u"Newer software is available"_s,
             .text = u"There is a newer version (version "_s + latest
                 + u") of Zeph available to download.\nPlease visit Klaifi (links are in the Help "
                   "menu) to download it."_s
                 + fetch,
             .icon = BoxIcon::Information };
}

void checkVersion(Downloader &downloader, const Context &context, const QString &address,
                  const Package &package)
{
    // The answer is kept in a file, where it can be looked at when a pilot reports something
    // odd.
    const QString target = context.paths.inApp(u"VersionURL.txt");
    context.status.setText(u" Asking ZephSite for the latest version ..."_s);
    const auto body = downloader.fetch(address, timeoutMs);
    context.status.setText(u" Ready"_s);
    if (!body || !writeFileAtomically(target, *body)) {
        context.dialogs.box(versionUnknownBox());
        return;
    }
    const QString latest = fromText1252(*body).trimmed();
    if (!isVersion(latest)) {
        context.dialogs.box(noVersionBox());
        return;
    }
    context.dialogs.box(
        versionBox(latest, QString::fromUtf16(versionText), fileToFetch(package, latest)));
}

} // namespace zeph
