// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_messages.h"

#include <QStringBuilder>

namespace zeph {

namespace {

constexpr QStringView passControl =
    u"I'm going to pass control back to you now, as I'm worried that there may be a problem";
constexpr QStringView tooLong = u" - it's just taking too long for my liking.";
constexpr QStringView playSafe =
    u" I could be wrong of course, but I'd prefer to play it safe, and I presume you do too.";
constexpr QStringView noProblem =
    u"If you know for certain that there isn't a problem with your Cougar";
constexpr QStringView waitLonger =
    u" you can increase the amount of time I sit around waiting for ";
constexpr QStringView whichTopic = u" To do this, see the help topic 'Unsupported options.'";
constexpr QStringView looksCrashed =
    u"If it looks like Zeph has crashed (it hasn't by the way otherwise you wouldn't be reading "
    u"this) then"
    u" sometimes it can help to disconnect your controllers from your computer to try to"
    u" force the compiler to recognise the controllers aren't plugged in. This can help to prevent"
    u" the compiler crashing and hanging your machine if you're suspicious that this is about to "
    u"happen. ";
constexpr QStringView myExperience = u" Well, that's my experience anyway! ";
constexpr QStringView blankLine = u"\n\n";

/// What differs between the three messages.
struct Wording {
    QStringView troubleWith;
    QStringView orFiles;
    QStringView waitedFor;
};

constexpr Wording modeWording = {
    u" with the TM applications and their communication with your Cougar",
    u", then",
    u"the Cougar to respond back to me.",
};

/// In the order of CompilerTask.
constexpr Wording compilerWordings[] = {
    {
        u" with the compile and the Compiler's communication with your Cougar",
        u" or your files, then",
        u"the compiler to compile your file.",
    },
    {
        u" with the download and the Compiler's communication with your Cougar",
        u" or your files, then",
        u"the compiler to download your file.",
    },
};

QString worry(const Wording &wording)
{
    return passControl % wording.troubleWith % tooLong % playSafe % blankLine % noProblem
        % wording.orFiles % waitLonger % wording.waitedFor % whichTopic;
}

Box timeOutBox(const QString &addressee, const QString &text)
{
    Box box;
    box.title = u"Now this is taking rather a long time "_s + addressee + u", isn't it?!"_s;
    box.text = text;
    box.icon = BoxIcon::Exclamation;
    return box;
}

Box told(const QString &title, const QString &text)
{
    return { .title = title, .text = text, .icon = BoxIcon::Exclamation };
}

QString cannotFind(QStringView program)
{
    return u"I can't find "_s % program % u" buddy"_s;
}

} // namespace

Box compilerTimeOutBox(CompilerTask task, const QString &callsign)
{
    return timeOutBox(callsign,
                      worry(compilerWordings[size_t(task)]) % blankLine % looksCrashed % blankLine
                          % myExperience);
}

Box gameTimeOutBox(const QString &callsign)
{
    const Wording &download = compilerWordings[size_t(CompilerTask::Download)];
    Box box = timeOutBox(
        callsign,
        passControl % download.troubleWith % tooLong % playSafe % blankLine % noProblem
            % download.orFiles
            % u" you can simply wait for the compiler to finish, and continue to launch your game."_s
            % u" Would you like me to continue with running your game now?"_s);
    box.buttons = { BoxButton::Yes, BoxButton::No };
    box.defaultButton = BoxButton::No;
    return box;
}

Box modeTimeOutBox()
{
    return timeOutBox(u"buddy"_s, worry(modeWording));
}

QString panelAfterCompilerWait(bool givenUp)
{
    return givenUp ? u"Control returned to you"_s : u"Done"_s;
}

QString panelAfterModeWait(bool givenUp)
{
    return givenUp ? u" Control returned to you"_s : u" Ready"_s;
}

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

Box quoteInNameBox(const QString &name)
{
    return told(u"That name has a quote in it"_s,
                u"The name "_s + name
                    + u" holds a double quote, and Thrustmaster's software would never see it: a "
                      "command line loses it. Give it another name first, buddy."_s);
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
