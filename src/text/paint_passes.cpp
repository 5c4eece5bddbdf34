// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/painter.h"

#include "language/words.h"

// The order of the groups and of the words in them is the design: a later pass paints over what
// earlier ones did.

namespace zeph {

namespace {

using enum PaintPrimitive;
using enum ColourClass;
using Words = language::Words;

/// Consecutive passes that differ in their word alone.
struct Group {
    PaintPrimitive primitive;
    ColourClass colour;
    Words words;
};

using Passes = std::vector<PaintPass>;

void add(Passes &passes, std::span<const Group> groups)
{
    for (const Group &group : groups) {
        for (const QStringView word : group.words) {
            passes.push_back({ group.primitive, word, group.colour });
        }
    }
}

Words slashWords()
{
    return language::colourWords().front().words;
}

constexpr QStringView btn[] = { u"BTN" };
constexpr QStringView def[] = { u"DEF" };
constexpr QStringView rem[] = { u"Rem" };
constexpr QStringView curve[] = { u"CURVE" };
constexpr QStringView mouse[] = { u"MOUSE" };
constexpr QStringView thrRange[] = { u"THR_RANGE" };
constexpr QStringView screenResolution[] = { u"SCREEN_RESOLUTION" };
constexpr QStringView toCurrent[] = { u"TO_CURRENT" };
constexpr QStringView automatic[] = { u"(AUTO)", u"(CUSTOM)" };
constexpr QStringView stickOff[] = { u"STICK_OFF" };
constexpr QStringView runApp[] = { u"RUN_APP" };
constexpr QStringView emptyBuffers[] = { u"EMPTY_BUFFERS" };

constexpr QStringView useWords[] = { u"USE", u"DISABLE", u"MDEF",  u"NULLCHR",  u"OR",
                                     u"NOT", u"AND",     u"MTYPE", u"KEYBOARD", u"AS" };
constexpr QStringView roleWords[] = { u"POV", u"ARROWKEYS", u"KEYPAD" };
constexpr QStringView zephWords[] = { u"ZEPH", u"GRAPHIC", u"README", u"PROFILE" };

constexpr QStringView keyCalls[] = { u"DELAY", u"PULSE", u"USB", u"DLY", u"RPT",
                                     u"KD",    u"KU",    u"MSX", u"MSY", u"MSZ" };
constexpr QStringView macroKeyCalls[] = { u"USB", u"DLY", u"RPT", u"KD",
                                          u"KU",  u"MSX", u"MSY", u"MSZ" };
constexpr QStringView rateCalls[] = {
    u"RATE",
    u"HAT1_SENSITIVITY",
    u"HAT2_SENSITIVITY",
    u"HAT3_SENSITIVITY",
    u"HAT4_SENSITIVITY",
    u"T1_SENSITIVITY",
    u"MOUSE",
    u"SHIFTBTN",
};
constexpr QStringView macroRateCalls[] = { u"RATE", u"MOUSE", u"SHIFTBTN" };
constexpr QStringView trimCalls[] = { u"CURVE", u"TRIM", u"HOLDTRIM", u"LOCK" };
constexpr QStringView axisCalls[] = { u"UNLOCK", u"SWAP", u"REVERSE", u"FORWARD" };
constexpr QStringView mouseCalls[] = { u"MOUSEXY", u"MOUSEMOVE", u"MOUSEROTATE" };

constexpr QStringView reverseWords[] = { u"REVERSE_LR",     u"REVERSE_UD", u"REVERSE_DIR",
                                         u"FORCED_CORNERS", u"NOHOLD",     u"FORCE_MACROS",
                                         u"NO_BUTTON",      u"ZERO_MOUSE" };
constexpr QStringView chordWords[] = { u"CHORDED_FDFU", u"HWSTARTUP" };
constexpr QStringView modeWords[] = {
    u"EMULATION_ON",      u"EMULATION_OFF",    u"AXIS_MODE_USER",
    u"AXIS_MODE_WINDOWS", u"CALIBRATION_AUTO", u"CALIBRATION_MANUAL",
};
constexpr QStringView switchWords[] = {
    u"WINDOW_STYLE", u"ALL_DIRECTX_BUTTONS", u"S3_LOCK",     u"S3_UNLOCK",
    u"SHIFTBTN",     u"LASTVALUE",           u"AXES_CONFIG",
};
constexpr QStringView toggleWords[] = { u"REVERSE_TOGGLES", u"RESET_TOGGLES" };
constexpr QStringView macroSwitchWords[] = { u"REVERSE_LR", u"REVERSE_UD", u"REVERSE_DIR",
                                             u"SHIFTBTN", u"LASTVALUE" };
// Not in the order of the language's axes.
constexpr QStringView axisWords[] = { u"JOYX", u"JOYY", u"ANT",  u"RNG", u"THR",
                                      u"RDDR", u"LBRK", u"RBRK", u"MIX", u"MIY" };

constexpr QStringView rounds[] = { u"(", u")" };
constexpr QStringView angles[] = { u"<", u">" };
constexpr QStringView braces[] = { u"{", u"}" };

constexpr Group brackets[] = {
    { Bracket, Raw, rounds },
    { Bracket, Slash, angles },
    { Bracket, Miscellaneous, braces },
};

/// The joystick file's list. In a line as it is typed a word may stand last, so its first group
/// asks for nothing behind a word.
Passes joystickList(PaintPrimitive first)
{
    const Group groups[] = {
        { BTNorDEF, Btn, btn },
        { OnlyWord, Slash, slashWords() },
        { first, Miscellaneous, useWords },
        { OnlyWord, Miscellaneous, roleWords },
        { first, Miscellaneous, zephWords },
        { first, Raw, curve },
        { OnlyWord, Miscellaneous, mouse },
        { JoyWordnotBracket, Raw, keyCalls },
        { JoyWordnotBracket, Miscellaneous, rateCalls },
        { JoyWordnotBracket, Raw, trimCalls },
        { JoyWordnotBracket, Miscellaneous, thrRange },
        { JoyWordnotBracket, Raw, axisCalls },
        { JoyWordnotBracket, Miscellaneous, screenResolution },
        { JoyWordnotBracket, Raw, mouseCalls },
        { OnlyWord, Miscellaneous, reverseWords },
        { OnlyWord, PureRed, stickOff },
        { OnlyWord, Miscellaneous, chordWords },
        { OnlyWord, Raw, modeWords },
        { OnlyWord, PureRed, runApp },
        { OnlyWord, Miscellaneous, switchWords },
        { OnlyWord, Miscellaneous, language::mouseButtons() },
        { OnlyWord, Miscellaneous, toggleWords },
        { OnlyWord, Miscellaneous, language::mouseAxes() },
        { OnlyWord, PureRed, emptyBuffers },
        { OnlyWord, Miscellaneous, axisWords },
        { OnlyWord, Miscellaneous, language::axisGroups() },
        { OnlyWord, Miscellaneous, language::povDirections() },
        { OnlyWord, Miscellaneous, toCurrent },
        { OnlyWord, Miscellaneous, automatic },
    };
    constexpr Group last[] = { { BTNorDEF, Btn, def }, { REM, Rem, rem } };
    Passes passes;
    add(passes, groups);
    add(passes, brackets);
    add(passes, last);
    return passes;
}

Passes macroList()
{
    const Group groups[] = {
        { OnlyWord, Slash, slashWords() },
        { WordCheckWhole, Raw, curve },
        { JoyWordnotBracket, Raw, macroKeyCalls },
        { JoyWordnotBracket, Miscellaneous, macroRateCalls },
        { JoyWordnotBracket, Raw, trimCalls },
        { JoyWordnotBracket, Miscellaneous, thrRange },
        { JoyWordnotBracket, Raw, axisCalls },
        { JoyWordnotBracket, Raw, mouseCalls },
        { OnlyWord, Miscellaneous, macroSwitchWords },
        { OnlyWord, Miscellaneous, language::mouseButtons() },
        { OnlyWord, Miscellaneous, language::mouseAxes() },
        { OnlyWord, Miscellaneous, axisWords },
        { OnlyWord, Miscellaneous, language::axisGroups() },
        { OnlyWord, Miscellaneous, language::povDirections() },
        { OnlyWord, Miscellaneous, toCurrent },
        { OnlyWord, PureRed, emptyBuffers },
        { OnlyWord, PureRed, stickOff },
    };
    constexpr Group last[] = { { REM, Rem, rem } };
    Passes passes;
    add(passes, groups);
    add(passes, brackets);
    add(passes, last);
    return passes;
}

} // namespace

std::span<const PaintPass> joystickPasses()
{
    static const Passes passes = joystickList(WordCheckWhole);
    return passes;
}

std::span<const PaintPass> macroPasses()
{
    static const Passes passes = macroList();
    return passes;
}

std::span<const PaintPass> typingPasses()
{
    static const Passes passes = joystickList(OnlyWord);
    return passes;
}

std::span<const PaintPass> remPasses()
{
    static constexpr PaintPass passes[] = { { REM, u"Rem", Rem } };
    return passes;
}

} // namespace zeph
