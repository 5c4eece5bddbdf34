// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/lesson.h"

#include <array>

namespace zeph {

namespace {

constexpr QStringView stick = u"F-16 Block 50.bmp";
constexpr QStringView throttle = u"Throttle.bmp";

/// Topics of the help.
constexpr int wizardsTopic = 2050;
constexpr int showMeHowTopic = 100;

// clang-format off
constexpr std::array macroFilePages = {
    LessonPage{ u"Hi there, and welcome to the Macro file wizard", u"Wizards/macro-file-0.html", u"A button of the stick says Fire_missile, the macro file says which keys that is, and the game gets the keys", u"Wizards/macro.svg" },
    LessonPage{ u"A new macro file", u"Wizards/macro-file-1.html", u"The joystick file and the macro file are a pair", u"Wizards/pair.svg" },
    LessonPage{ u"A title for your file", u"Wizards/macro-file-2.html", u"A sheet of paper with a title block at its top", u"Wizards/title.svg" },
    LessonPage{ u"Meet Tumbo", u"Wizards/macro-file-3.html", u"Tumbo's keyboard and the box with the Thrustmaster syntax", u"Wizards/tumbo.svg" },
    LessonPage{ u"How keys are written", u"Wizards/macro-file-4.html", u"Ctrl, Shift and A held together are written CTL SHF a", u"Wizards/keys.svg" },
    LessonPage{ u"Headings keep a big file tidy", u"Wizards/macro-file-5.html", u"The macro list with one heading chosen", u"Wizards/headings.svg" },
    LessonPage{ u"Choose your headings", u"Wizards/macro-file-6.html", u"The macro list with one heading chosen", u"Wizards/headings.svg" },
    LessonPage{ u"A macro is a name and some keys", u"Wizards/macro-file-7.html", u"Fire_missile, an equals sign, and the keys", u"Wizards/name-and-keys.svg" },
    LessonPage{ u"Now make your macros", u"Wizards/macro-file-8.html", u"Fire_missile, an equals sign, and the keys", u"Wizards/name-and-keys.svg" },
    LessonPage{ u"Macros that wait", u"Wizards/macro-file-9.html", u"Key c, a wait of 60 milliseconds, key f", u"Wizards/dly.svg" },
    LessonPage{ u"Macros that use macros", u"Wizards/macro-file-10.html", u"Two macros that a third one calls", u"Wizards/chain.svg" },
    LessonPage{ u"Save it", u"Wizards/macro-file-11.html", u"The text goes from the Editor to the disk", u"Wizards/save.svg" },
    LessonPage{ u"Into the macro list", u"Wizards/macro-file-12.html", u"The macro list is read from the saved file", u"Wizards/update.svg" },
    LessonPage{ u"That's a macro file!", u"Wizards/macro-file-13.html", u"The joystick file and the macro file are a pair", u"Wizards/pair.svg" },
};

constexpr std::array joystickFilePages = {
    LessonPage{ u"Welcome to the Joystick file wizard", u"Wizards/joystick-file-0.html", u"The stick, with a ring around its trigger", stick, u"TRIG" },
    LessonPage{ u"First, the macro file", u"Wizards/joystick-file-1.html", u"The joystick file and the macro file are a pair", u"Wizards/pair.svg" },
    LessonPage{ u"A new joystick file", u"Wizards/joystick-file-2.html", u"A sheet of paper with a title block at its top", u"Wizards/title.svg" },
    LessonPage{ u"Give it a name", u"Wizards/joystick-file-3.html", u"The text goes from the Editor to the disk", u"Wizards/save.svg" },
    LessonPage{ u"Tie the two together: USE MDEF", u"Wizards/joystick-file-4.html", u"The joystick file and the macro file are a pair", u"Wizards/pair.svg" },
    LessonPage{ u"A title, if you like", u"Wizards/joystick-file-5.html", u"A sheet of paper with a title block at its top", u"Wizards/title.svg" },
    LessonPage{ u"Give the buttons something to do", u"Wizards/joystick-file-6.html", u"The stick, with rings around its buttons, hats and trigger", stick, u"S1 S2 S4 HAT1 HAT2 HAT3 HAT4 TRIG" },
    LessonPage{ u"Give the knobs something to do", u"Wizards/joystick-file-7.html", u"The throttle, with rings around the range and antenna knobs", throttle, u"RNG ANT" },
    LessonPage{ u"The moment of truth", u"Wizards/joystick-file-8.html", u"A file, the compiler and a tick", u"Wizards/compile.svg" },
    LessonPage{ u"Ready for take-off", u"Wizards/joystick-file-9.html", u"The throttle, with rings around the three positions of the dogfight switch", throttle, u"/U /M /D" },
};

constexpr std::array slashModifiersPages = {
    LessonPage{ u"One button, many jobs", u"Wizards/slash-modifiers-0.html", u"The stick, with a ring around button S2", stick, u"S2" },
    LessonPage{ u"/U, /M and /D: the dogfight switch", u"Wizards/slash-modifiers-1.html", u"The throttle, with rings around the three positions of the dogfight switch", throttle, u"/U /M /D" },
    LessonPage{ u"/I and /O: S3 held in or left out", u"Wizards/slash-modifiers-2.html", u"The stick, with a ring around S3", stick, u"S3" },
    LessonPage{ u"/P and /R: press and release", u"Wizards/slash-modifiers-3.html", u"A button goes down, and up again later", u"Wizards/press.svg" },
    LessonPage{ u"/H, /A and /T: hold, repeat, take turns", u"Wizards/slash-modifiers-4.html", u"A button goes down, and the key is held or repeated", u"Wizards/hold.svg" },
    LessonPage{ u"All together now", u"Wizards/slash-modifiers-5.html", u"The stick, with rings around S3 and S4", stick, u"S3 S4" },
};

constexpr std::array mouseMicrostickPages = {
    LessonPage{ u"The mouse under your thumb", u"Wizards/mouse-microstick-0.html", u"The throttle, with rings around the microstick and the buttons T1 and T6", throttle, u"MIX MIY T1 T6" },
    LessonPage{ u"An axis as mouse", u"Wizards/mouse-microstick-1.html", u"The throttle, with rings around the microstick and the range knob", throttle, u"T1 RNG" },
    LessonPage{ u"Mouse buttons and nudges on a button", u"Wizards/mouse-microstick-2.html", u"The stick, with rings around S2 and the hat H2", stick, u"S2 HAT2" },
    LessonPage{ u"Straight to the switch", u"Wizards/mouse-microstick-3.html", u"A screen with a place that is counted from its upper left corner", u"Wizards/mouse.svg" },
};

constexpr std::array dlyAndRatePages = {
    LessonPage{ u"Too fast for the game", u"Wizards/dly-and-rate-0.html", u"Key c and key f at once", u"Wizards/fast.svg" },
    LessonPage{ u"DLY waits", u"Wizards/dly-and-rate-1.html", u"Key c, a wait of 60 milliseconds, key f", u"Wizards/dly.svg" },
    LessonPage{ u"RPT does it again", u"Wizards/dly-and-rate-2.html", u"Key b three times", u"Wizards/rpt.svg" },
    LessonPage{ u"RATE sets the pace", u"Wizards/dly-and-rate-3.html", u"A held button repeats its key at a steady pace", u"Wizards/rate.svg" },
};

constexpr std::array configurationPages = {
    LessonPage{ u"USE: said once, true for the whole file", u"Wizards/configuration-0.html", u"The joystick file and the macro file are a pair", u"Wizards/pair.svg" },
    LessonPage{ u"The hats and the mouse", u"Wizards/configuration-1.html", u"The stick, with rings around its four hats", stick, u"HAT1 HAT2 HAT3 HAT4" },
    LessonPage{ u"The axes", u"Wizards/configuration-2.html", u"The throttle, with rings around its axes", throttle, u"THR RNG ANT" },
    LessonPage{ u"Buttons for Windows, and the rest", u"Wizards/configuration-3.html", u"The throttle, with a ring around button T6", throttle, u"T6" },
};
// clang-format on

} // namespace

const Lesson macroFileLesson{
    u"WizardMacroFile", u"The Macro file wizard", DocumentKind::Macro, wizardsTopic, true,
    macroFilePages
};
const Lesson joystickFileLesson{
    u"WizardJoystickFile", u"The Joystick file wizard", DocumentKind::Joystick, wizardsTopic, true,
    joystickFilePages
};
const Lesson slashModifiersLesson{ u"WizardSlashModifiers",
                                   u"Show me how: slash modifiers",
                                   DocumentKind::Joystick,
                                   showMeHowTopic,
                                   false,
                                   slashModifiersPages };
const Lesson mouseMicrostickLesson{ u"WizardMouseMicrostick",
                                    u"Show me how: mouse and microstick",
                                    DocumentKind::Joystick,
                                    showMeHowTopic,
                                    false,
                                    mouseMicrostickPages };
const Lesson dlyAndRateLesson{ u"WizardDLYandRATE",
                               u"Show me how: DLY and RATE",
                               DocumentKind::Joystick,
                               showMeHowTopic,
                               false,
                               dlyAndRatePages };
const Lesson configurationLesson{ u"WizardConfigurationStatements",
                                  u"Show me how: configuration statements",
                                  DocumentKind::Joystick,
                                  showMeHowTopic,
                                  false,
                                  configurationPages };

} // namespace zeph
