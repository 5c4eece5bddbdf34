// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/layout_passes.h"

// The tables of passes. Their order is told and may not change, since a later pass paints over
// earlier ones. The colour of a pass is the colour of its word.

namespace zeph {

namespace {

using enum PaintPrimitive;
using language::operator""_w;

/// One pass for each of the words, all with the same primitive.
struct Group {
    PaintPrimitive primitive;
    QStringView words;
};

using Passes = std::vector<PaintPass>;

Passes passesOf(std::initializer_list<Group> groups)
{
    Passes passes;
    for (const Group &group : groups) {
        for (const QStringView word : group.words.split(u' ')) {
            passes.push_back({ group.primitive, word, language::rowOf(word).colour });
        }
    }
    return passes;
}

constexpr QStringView slashes = u"/U /M /D /I /O /A /H /T /P /R"_w;
constexpr QStringView mouse = u"MOUSE_LB MOUSE_RB MOUSE_MB"_w;
constexpr QStringView mouseAxes = u"MOUSEX MOUSEY MOUSEZ"_w;
constexpr QStringView axes = u"JOYX JOYY ANT RNG THR RDDR LBRK RBRK MIX MIY "
                             u"JOYSTICK ROTARIES TOEBRAKES MICROSTICK "
                             u"POVU POVD POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT"_w;
constexpr QStringView brackets = u"( ) < > { }"_w;
constexpr QStringView rem = u"Rem"_w;

/// The passes of the joystick file. While typing, a word may be the last of its line, so the
/// primitive of the first words is a parameter: for a whole file they need a blank after them.
Passes joystickList(PaintPrimitive first)
{
    return passesOf({
        { BTNorDEF, u"BTN"_w },
        { OnlyWord, slashes },
        { first, u"USE DISABLE MDEF NULLCHR OR NOT AND MTYPE KEYBOARD AS"_w },
        { OnlyWord, u"POV ARROWKEYS KEYPAD"_w },
        { first, u"ZEPH GRAPHIC README PROFILE CURVE"_w },
        { OnlyWord, u"MOUSE"_w },
        { JoyWordnotBracket,
          u"DELAY PULSE USB DLY RPT KD KU MSX MSY MSZ "
          u"RATE HAT1_SENSITIVITY HAT2_SENSITIVITY HAT3_SENSITIVITY HAT4_SENSITIVITY "
          u"T1_SENSITIVITY MOUSE SHIFTBTN CURVE TRIM HOLDTRIM LOCK THR_RANGE "
          u"UNLOCK SWAP REVERSE FORWARD SCREEN_RESOLUTION MOUSEXY MOUSEMOVE MOUSEROTATE"_w },
        { OnlyWord,
          u"REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD FORCE_MACROS NO_BUTTON "
          u"ZERO_MOUSE STICK_OFF CHORDED_FDFU HWSTARTUP EMULATION_ON EMULATION_OFF "
          u"AXIS_MODE_USER AXIS_MODE_WINDOWS CALIBRATION_AUTO CALIBRATION_MANUAL RUN_APP "
          u"WINDOW_STYLE ALL_DIRECTX_BUTTONS S3_LOCK S3_UNLOCK SHIFTBTN LASTVALUE AXES_CONFIG"_w },
        { OnlyWord, mouse },
        { OnlyWord, u"REVERSE_TOGGLES RESET_TOGGLES"_w },
        { OnlyWord, mouseAxes },
        { OnlyWord, u"EMPTY_BUFFERS"_w },
        { OnlyWord, axes },
        { OnlyWord, u"(AUTO) (CUSTOM)"_w },
        { Bracket, brackets },
        { BTNorDEF, u"DEF"_w },
        { REM, rem },
    });
}

Passes macroList()
{
    return passesOf({
        { OnlyWord, slashes },
        { WordCheckWhole, u"CURVE"_w },
        { JoyWordnotBracket,
          u"USB DLY RPT KD KU MSX MSY MSZ RATE MOUSE SHIFTBTN CURVE TRIM HOLDTRIM LOCK "
          u"THR_RANGE UNLOCK SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE"_w },
        { OnlyWord, u"REVERSE_LR REVERSE_UD REVERSE_DIR SHIFTBTN LASTVALUE"_w },
        { OnlyWord, mouse },
        { OnlyWord, mouseAxes },
        { OnlyWord, axes },
        { OnlyWord, u"EMPTY_BUFFERS STICK_OFF"_w },
        { Bracket, brackets },
        { REM, rem },
    });
}

Passes layoutList()
{
    return passesOf({
        { BTNorDEF, u"BTN"_w },
        { OnlyWord, slashes },
        { WordCheckWhole, u"CURVE"_w },
        { OnlyWord, u"POV ARROWKEYS KEYPAD MOUSE"_w },
        { JoyWordnotBracket,
          u"USB DLY RPT KD KU MSX MSY MSZ RATE MOUSE SHIFTBTN CURVE TRIM HOLDTRIM LOCK "
          u"THR_RANGE UNLOCK SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE"_w },
        { OnlyWord,
          u"REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD FORCE_MACROS NO_BUTTON "
          u"ZERO_MOUSE STICK_OFF RUN_APP WINDOW_STYLE S3_LOCK S3_UNLOCK SHIFTBTN LASTVALUE"_w },
        { OnlyWord, mouse },
        { OnlyWord, u"REVERSE_TOGGLES RESET_TOGGLES"_w },
        { OnlyWord, mouseAxes },
        { OnlyWord, u"EMPTY_BUFFERS"_w },
        { OnlyWord, axes },
        { Bracket, brackets },
        { REM, rem },
    });
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

std::span<const PaintPass> layoutPasses()
{
    static const Passes passes = layoutList();
    return passes;
}

std::span<const PaintPass> remPasses()
{
    static const Passes passes = passesOf({ { REM, rem } });
    return passes;
}

} // namespace zeph
