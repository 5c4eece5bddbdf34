// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_codes_file.h"

#include "platform/core/file_io.h"
#include "platform/core/text1252.h"
#include "platform/dialogs.h"

namespace zeph {

namespace {

constexpr QStringView keyCodesFile = u"KeyCodes.txt";

/// Copies the file from the Info folder. Whether it is there now.
bool restoreKeyCodes(const Context &context, const QString &path)
{
    context.dialogs.tell(
        u"KeyCodes.txt is missing !!!"_s,
        u"You're missing a critical file, called KeyCodes.txt which should be located in Zeph's "
        "directory. A backup copy is in your Info subdirectory. I shall attempt to copy this "
        "across and restore the file. Please wait ..."_s,
        BoxIcon::Exclamation);
    const QString copy = existingPath(context.paths.infoFolder() + keyCodesFile.toString());
    if (const auto bytes = readWholeFile(copy)) {
        // A failure shows below, where the file is looked for.
        (void)writeFileAtomically(path, *bytes);
    }
    if (fileExists(path)) {
        context.dialogs.tell(
            u"Well I saved your butt!"_s,
            path
                + u" has been successfully restored. Please stop misbehaving with my file system!"_s);
        return true;
    }
    context.dialogs.tell(u"It didn't work :("_s,
                         u"I was unable to restore "_s + path
                             + u" - please close down the Key Tester and restore the file "
                               "manually."_s,
                         BoxIcon::Stop);
    return false;
}

} // namespace

std::optional<KeyTable> readKeyCodes(const Context &context)
{
    const QString path = context.paths.inApp(keyCodesFile);
    if (!fileExists(path) && !restoreKeyCodes(context, path)) {
        return std::nullopt;
    }
    const auto bytes = readWholeFile(existingPath(path));
    if (!bytes) {
        context.dialogs.tell(u"Key Tester"_s,
                             u"I can't read "_s + bytes.error().path + u":\n"_s
                                 + bytes.error().reason,
                             BoxIcon::Stop);
        return std::nullopt;
    }
    return keyTableFrom(fromText1252(*bytes));
}

} // namespace zeph
