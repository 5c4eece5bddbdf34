// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/editor_texts.h"

#include "settings/colour_settings.h"

namespace zeph {

Box saveQuestion(const Document &document, const QString &why)
{
    return { u" Save "_s + document.name() + u" now?"_s,
             document.name() + why,
             BoxIcon::Exclamation,
             { BoxButton::Yes, BoxButton::No, BoxButton::Cancel },
             BoxButton::Yes };
}

Box wontContinueBox(const Document &document, DocumentKind wanted)
{
    const QString kind =
        wanted == DocumentKind::Joystick ? u"new joystick file"_s : u"new macro file"_s;
    return { u"Hmmm...let me think..."_s,
             document.name() + u" wasn't saved, so I won't continue to load up a "_s + kind
                 + u" just in case you pressed the cancel button by accident."_s,
             BoxIcon::Information };
}

Box reloadBox(const Document &document)
{
    const QString loss = document.isModified()
        ? u" What you've changed since you last saved it would be gone."_s
        : QString();
    return { u"Open "_s + document.name() + u" again?"_s,
             document.name()
                 + u" is open here, and its file has just been overwritten. Shall I open the new "
                   "one instead of what you see?"_s
                 + loss,
             BoxIcon::Question,
             { BoxButton::Yes, BoxButton::No },
             document.isModified() ? BoxButton::No : BoxButton::Yes };
}

Box fileProtectedBox()
{
    return { u"File protected"_s,
             u"The macro file is protected, and therefore this option is disabled. To remove the "
             "protection from the macro file, deselect Protect Macro File in the Macros menu."_s,
             BoxIcon::Exclamation };
}

QString tabStatus(const QString &current, const QString &caption, bool isProtected)
{
    if (current.startsWith(u"Compile"_s)) {
        return current;
    }
    return isProtected ? caption + u" is protected and can't be edited."_s
                       : u"Editing "_s + caption;
}

QString savedTooltip(const Document &document)
{
    switch (document.state()) {
    case Document::Empty:
        return document.name() + u" has no text and isn't saved"_s;
    case Document::Saved:
        return document.name() + u" is saved"_s;
    default:
        return document.name() + u" has been modified and isn't saved"_s;
    }
}

QString firstThings(DocumentKind kind)
{
    if (kind == DocumentKind::Macro) {
        return u"Macros go here: names for the keys that your game knows.\n\n"
               "1.  Press F8 and open \"Sample flight.tmj\": this tab then shows what macros look "
               "like.\n"
               "2.  Or type one of your own, say \"Gear = g\", and save it with Ctrl+S.\n"
               "3.  Name this file in your joystick file, with a USE MDEF line, and give the macro "
               "to a button there.\n\n"
               "Never done this before? The Macro file wizard, in the Apps menu, goes through it "
               "with you."_s;
    }
    return u"Three ways to begin:\n\n"
           "1.  Press F8 and open \"Sample flight.tmj\": its macro file comes with it.\n"
           "2.  Press F2: the Composer writes statements for you, from pictures and forms.\n"
           "3.  Type a statement of your own, say \"BTN S2 SPC\": a button, and what it "
           "presses.\n\n"
           "Then press F11, and the compiler tells you whether the Cougar understands it.\n\n"
           "Never done this before? The Joystick file wizard, in the Apps menu, goes through it "
           "with you."_s;
}

CharFormat plainFormat(const ColourSettings &settings, DocumentKind kind)
{
    CharFormat format;
    format.family = settings.TextFontName;
    format.pointSize = settings.TextFontSize;
    format.bold = settings.TextFontBold;
    format.colour = kind == DocumentKind::Joystick ? settings.JoystickTextDefaultColour
                                                   : settings.MacroTextDefaultColour;
    return format;
}

ColorRef documentBackground(const ColourSettings &settings, DocumentKind kind)
{
    return kind == DocumentKind::Joystick ? settings.BackgroundColour
                                          : settings.MacroBackgroundColour;
}

ColourScheme colourScheme(const ColourSettings &settings, DocumentKind kind)
{
    return kind == DocumentKind::Joystick ? settings.joystickScheme() : settings.macroScheme();
}

} // namespace zeph
