// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/words.h"

namespace zeph::language {

namespace {

constexpr QStringView controlTable[] = {
    u"S1",  u"S2",  u"S3",  u"S4",   u"TG1",  u"TG2",  u"T1",   u"T2",  u"T3",
    u"T4",  u"T5",  u"T6",  u"T7",   u"T8",   u"T9",   u"T10",  u"H1U", u"H1D",
    u"H1L", u"H1R", u"H1M", u"H1UL", u"H1UR", u"H1DL", u"H1DR", u"H2U", u"H2D",
    u"H2L", u"H2R", u"H2M", u"H2UL", u"H2UR", u"H2DL", u"H2DR", u"H3U", u"H3D",
    u"H3L", u"H3R", u"H3M", u"H3UL", u"H3UR", u"H3DL", u"H3DR", u"H4U", u"H4D",
    u"H4L", u"H4R", u"H4M", u"H4UL", u"H4UR", u"H4DL", u"H4DR",
};

constexpr QStringView hatPositionTable[] = { u"U",  u"D",  u"L",  u"R", u"M",
                                             u"UL", u"UR", u"DL", u"DR" };
constexpr QStringView hatTable[] = { u"HAT1", u"HAT2", u"HAT3", u"HAT4" };
constexpr QStringView hatRoleTable[] = { u"POV", u"ARROWKEYS", u"KEYPAD", u"MOUSE" };

constexpr QStringView axisTable[] = { u"JOYX", u"JOYY", u"THR", u"RDDR", u"LBRK",
                                      u"RBRK", u"MIX",  u"MIY", u"ANT",  u"RNG" };
constexpr QStringView axisGroupTable[] = { u"JOYSTICK", u"ROTARIES", u"TOEBRAKES", u"MICROSTICK" };
constexpr QStringView disableableTable[] = { u"THR",  u"ANT",  u"RNG",  u"ROTARIES",
                                             u"RDDR", u"LBRK", u"RBRK", u"TOEBRAKES" };

constexpr QStringView povTable[] = { u"POVU",  u"POVD",  u"POVL",  u"POVR",
                                     u"POVUL", u"POVDL", u"POVUR", u"POVDR" };
constexpr QStringView mouseAxisTable[] = { u"MOUSEX", u"MOUSEY", u"MOUSEZ" };
constexpr QStringView mouseButtonTable[] = { u"MOUSE_LB", u"MOUSE_RB", u"MOUSE_MB" };

constexpr SlashModifier slashTable[] = {
    { u"/U", u"/U dogfight switch is up", PositionClass::Dogfight },
    { u"/M", u"/M dogfight switch middle position", PositionClass::Dogfight },
    { u"/D", u"/D dogfight switch is down", PositionClass::Dogfight },
    { u"/I", u"/I  S3 is held in", PositionClass::S3 },
    { u"/O", u"/O S3 is out", PositionClass::S3 },
    { u"/P", u"/P  press event", PositionClass::Action },
    { u"/R", u"/R  release event", PositionClass::Action },
    { u"/T", u"/T  toggle modifier", PositionClass::Action },
    { u"/A", u"/A  autorepeat the statement", PositionClass::Repeat },
    { u"/H", u"/H  hold down", PositionClass::Repeat },
};

constexpr BodyWord bodyWordTable[] = {
    { u"DLY", u"DLY delay statement" },
    { u"RPT", u"RPT repeat statement" },
};

constexpr QStringView slashWords[] = { u"/U", u"/M", u"/D", u"/I", u"/O",
                                       u"/A", u"/H", u"/T", u"/P", u"/R" };

constexpr QStringView rawWords[] = {
    u"CURVE",
    u"DELAY",
    u"PULSE",
    u"USB",
    u"DLY",
    u"RPT",
    u"KD",
    u"KU",
    u"MSX",
    u"MSY",
    u"MSZ",
    u"TRIM",
    u"HOLDTRIM",
    u"LOCK",
    u"UNLOCK",
    u"SWAP",
    u"REVERSE",
    u"FORWARD",
    u"MOUSEXY",
    u"MOUSEMOVE",
    u"MOUSEROTATE",
    u"EMULATION_ON",
    u"EMULATION_OFF",
    u"AXIS_MODE_USER",
    u"AXIS_MODE_WINDOWS",
    u"CALIBRATION_AUTO",
    u"CALIBRATION_MANUAL",
};

constexpr QStringView miscellaneousWords[] = {
    u"USE",
    u"DISABLE",
    u"MDEF",
    u"NULLCHR",
    u"OR",
    u"NOT",
    u"AND",
    u"MTYPE",
    u"KEYBOARD",
    u"AS",
    u"POV",
    u"ARROWKEYS",
    u"KEYPAD",
    u"ZEPH",
    u"GRAPHIC",
    u"README",
    u"PROFILE",
    u"MOUSE",
    u"RATE",
    u"HAT1_SENSITIVITY",
    u"HAT2_SENSITIVITY",
    u"HAT3_SENSITIVITY",
    u"HAT4_SENSITIVITY",
    u"T1_SENSITIVITY",
    u"SHIFTBTN",
    u"THR_RANGE",
    u"SCREEN_RESOLUTION",
    u"REVERSE_LR",
    u"REVERSE_UD",
    u"REVERSE_DIR",
    u"FORCED_CORNERS",
    u"NOHOLD",
    u"FORCE_MACROS",
    u"NO_BUTTON",
    u"ZERO_MOUSE",
    u"CHORDED_FDFU",
    u"HWSTARTUP",
    u"WINDOW_STYLE",
    u"ALL_DIRECTX_BUTTONS",
    u"S3_LOCK",
    u"S3_UNLOCK",
    u"LASTVALUE",
    u"AXES_CONFIG",
    u"MOUSE_LB",
    u"MOUSE_RB",
    u"MOUSE_MB",
    u"REVERSE_TOGGLES",
    u"RESET_TOGGLES",
    u"MOUSEX",
    u"MOUSEY",
    u"MOUSEZ",
    u"JOYX",
    u"JOYY",
    u"ANT",
    u"RNG",
    u"THR",
    u"RDDR",
    u"LBRK",
    u"RBRK",
    u"MIX",
    u"MIY",
    u"JOYSTICK",
    u"ROTARIES",
    u"TOEBRAKES",
    u"MICROSTICK",
    u"POVU",
    u"POVD",
    u"POVL",
    u"POVR",
    u"POVUL",
    u"POVDL",
    u"POVUR",
    u"POVDR",
    u"TO_CURRENT",
    u"(AUTO)",
    u"(CUSTOM)",
};

constexpr QStringView buttonWords[] = { u"BTN", u"DEF" };
constexpr QStringView remWords[] = { u"Rem" };
constexpr QStringView alwaysRedWords[] = { u"RUN_APP", u"STICK_OFF", u"EMPTY_BUFFERS" };

constexpr ColourWords colourTable[] = {
    { ColourClass::Slash, slashWords, u"<>" },
    { ColourClass::Raw, rawWords, u"()" },
    { ColourClass::Miscellaneous, miscellaneousWords, u"{}" },
    { ColourClass::Button, buttonWords, {} },
    { ColourClass::Rem, remWords, {} },
    { ColourClass::AlwaysRed, alwaysRedWords, {} },
};

constexpr QStringView definitionTable[] = {
    u"BTN",   u"RNG", u"ANT",  u"MDEF",   u"JSX", u"JSY",
    u"PORTB", u"USE", u"RATE", u"SWAPTG", u"THR", u"RDDR",
};

constexpr QStringView statementTable[] = {
    u"BTN",  u"DEF", u"JOYX", u"JOYY",  u"THR",    u"RDDR",    u"LBRK",      u"RBRK",
    u"MIX",  u"MIY", u"ANT",  u"RNG",   u"USE",    u"CURVE",   u"RATE",      u"SHIFTBTN",
    u"MDEF", u"JSX", u"JSY",  u"PORTB", u"SWAPTG", u"DISABLE", u"THR_RANGE",
};

} // namespace

Words controls()
{
    return controlTable;
}
Words hatPositions()
{
    return hatPositionTable;
}
Words hats()
{
    return hatTable;
}
Words hatRoles()
{
    return hatRoleTable;
}
Words axes()
{
    return axisTable;
}
Words axisGroups()
{
    return axisGroupTable;
}
Words disableableAxes()
{
    return disableableTable;
}
Words povDirections()
{
    return povTable;
}
Words mouseAxes()
{
    return mouseAxisTable;
}
Words mouseButtons()
{
    return mouseButtonTable;
}
std::span<const SlashModifier> slashModifiers()
{
    return slashTable;
}
std::span<const BodyWord> bodyWords()
{
    return bodyWordTable;
}
std::span<const ColourWords> colourWords()
{
    return colourTable;
}
Words definitionKeywords()
{
    return definitionTable;
}
Words statementKeywords()
{
    return statementTable;
}

} // namespace zeph::language
