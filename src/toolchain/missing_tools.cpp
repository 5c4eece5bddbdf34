// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/missing_tools.h"

#include <QStringBuilder>

namespace zeph {

namespace {

Box told(const QString &title, const QString &text)
{
    return { .title = title, .text = text, .icon = BoxIcon::Exclamation };
}

QString cannotFind(QStringView program)
{
    return u"I can't find "_s % program % u" buddy"_s;
}

} // namespace

Box noControlPanelBox(const Paths &paths)
{
    return told(u"Where is the Cougar Control Panel?"_s,
                u"I couldn't find the Cougar Control Panel - it should be in your HOTAS folder: "_s
                    + paths.hotasFolder);
}

Box missingToolBox(QStringView program, QStringView note)
{
    return told(
        cannotFind(program),
        u"I was unable to find "_s % program % note
            % u". It should be in the main HOTAS folder along with the compiler, firmware and CCP."
              " If it's not there, then you probably don't have the latest TM software installed, "
              "as this application was not present in earlier versions."
              " Goto the TM site or Klaifi and download the latest Cougar software, and install "
              "that."_s);
}

Box missingCompanionBox(const Paths &paths, QStringView program)
{
    return told(cannotFind(program),
                u"I was unable to find "_s + paths.inApp(program)
                    + u". It's one of Zeph's companion programs, and it should be in the same "
                      "folder as Zeph itself."_s);
}

Box missingProfileBox(const QString &name, bool isStored)
{
    QString text = u"Error! Unable to find profile: "_s + name
        + u".tmc.\n\n"
          "I'm trying to download the above profile, but I couldn't find it. "
          "It should be in your HOTAS Profiles folder. Have you deleted it? "_s;
    if (isStored) {
        text += u"\nSelect the Reset options menu from the Download menu to locate it or choose "
                "another profile."_s;
    }
    return told(u"Cannot find profile in HOTAS Profiles folder"_s, text);
}

Box noProfilesBox(const QString &folder)
{
    return told(u"You don't even have a Default profile buddy"_s,
                u"No profiles were found in "_s + folder
                    + u". You need to run the Cougar Control Panel and allow it to set up at least "
                      "the Default.tmc profile."_s);
}

} // namespace zeph
