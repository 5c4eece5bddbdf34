// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/checker.h"
#include "language/error_codes.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;

namespace {

void expectClean(const QString &joystick, const QString &macros = {})
{
    for (const Finding &finding : check(parsePair(joystick, macros))) {
        ADD_FAILURE() << joystick.toStdString() << "\n"
                      << finding.code << " line " << finding.place.line << ": "
                      << finding.message.toStdString();
    }
}

struct Legal {
    QString text;
};

std::ostream &operator<<(std::ostream &out, const Legal &legal)
{
    return out << legal.text.toStdString();
}

class LegalStatement : public testing::TestWithParam<Legal>
{
};

QList<Legal> each(const QStringList &texts)
{
    QList<Legal> result;
    for (const QString &text : texts)
        result.append({ text });
    return result;
}

QStringList axisCurves()
{
    QStringList statements;
    for (const QStringView axis :
         { u"JOYX", u"JOYY", u"JOYSTICK", u"THR", u"ANT", u"RNG", u"ROTARIES", u"RDDR", u"LBRK",
           u"RBRK", u"TOEBRAKES", u"MIX", u"MIY", u"MICROSTICK" })
        statements.append(u"USE CURVE (%1, -32)"_s.arg(axis));
    return statements;
}

// Whatever the Composer's pages write must compile.
const QList<QString> composed{
    // Digital axes.
    u"ANT 1 6 Right Left Centre "_s,
    u"ANT 1 6 Right Left  "_s,
    u"ANT 1 5 Right Left  "_s,
    u"ANT 1 5 SHF a b "_s,
    u"JOYX 1 6 Right Left Centre  - FORCE_MACROS"_s,
    u"JOYX 1 5 Right Left  - FORCE_MACROS"_s,
    u"RNG 2 5 a b c d e"_s,
    u"RNG 2 5 a b c d e - FORCE_MACROS"_s,
    u"BTN S1 a\n 2 5 a b c d e"_s,
    u"RDDR 3 Left ^ Right"_s,
    u"RNG 4 500 Left Centre Right"_s,
    u"THR /U 1 6 a b c\n /M 2 5 a b c d e\n /D 3 a ^ b "_s,
    u"THR /I 5 1 (0 100) a \n /O 5 2 (0 50 100) a ^ "_s,
    u"THR 5 3 (0 33 67 100) ^ ^ ^ "_s,
    u"THR 5 3 (0 33 67 100) a b c  - FORCE_MACROS"_s,
    u"THR 5 7 (0 14 29 43 57 71 86 100) a b c d e f g "_s,
    u"MIX 6 2 (0 50 100) ^ ^ "_s,
    u"MIX 6 3 (10 33 67 90) Up Down Centre  - FORCE_MACROS"_s,
    u"JOYX 3 MSX(-5) ^ MSX(5)"_s,
    u"joyy 3 msy(-5) ^ MSY(5)"_s,
    // Half percents of eight bands, one border moved up to the next.
    u"THR 5 8 (0 12 25 38 38 62 75 88 100) a b c d e f g h "_s,
    // Analogue axes.
    u"CURVE /I (THR, 4)\n             /O (THR, 0)"_s,
    u"BTN T6 /P CURVE (RNG, 2)\n               /R CURVE (RNG, 0)"_s,
    u"USE CURVE (JOYSTICK, -2)"_s,
    u"USE CURVE (THR, 32)"_s,
    u"BTN T6 CURVE (MIX, -32)"_s,
    u"BTN S1 /I TRIM (JOYY, 2-)\n       /O TRIM (JOYY, 2+)"_s,
    u"BTN S2 /I TRIM (RDDR, -2)\n       /O TRIM (RDDR, 2)"_s,
    u"BTN S2 TRIM (RDDR, 127+)"_s,
    u"BTN S2 TRIM (RDDR, -127)"_s,
    u"BTN T6 TRIM (JOYSTICK, TO_CURRENT)"_s,
    u"BTN T4 TRIM (JOYY, 0)"_s,
    u"BTN S4 HOLDTRIM (JOYSTICK) "_s,
    u"DISABLE THR"_s,
    u"DISABLE ROTARIES"_s,
    u"DISABLE TOEBRAKES"_s,
    u"BTN S1 LOCK (THR, 50%)"_s,
    u"BTN S1 LOCK (JOYSTICK, LASTVALUE)"_s,
    u"BTN S1 UNLOCK (THR)"_s,
    u"USE SWAP (ROTARIES, MICROSTICK)"_s,
    u"USE SWAP (ANT, RNG)"_s,
    u"BTN S1 SWAP (JOYX, RDDR)"_s,
    u"USE REVERSE (THR)"_s,
    u"BTN S1 REVERSE (THR)"_s,
    u"BTN S1 FORWARD (MICROSTICK)"_s,
    u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, -THR)"_s,
    u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RNG)"_s,
    u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, THR), (4, RDDR), (5, RNG), (6, ANT), (7, LBRK), "
    "(8, RBRK), (9, MIX), (10, -MIY)"_s,
    u"THR_RANGE (0%, 90%)"_s,
    u"USE THR_RANGE (0%, 90%)"_s,
    // Configuration.
    u"USE MDEF my macros "_s,
    u"USE RATE (60)"_s,
    u"RATE (0)"_s,
    u"BTN S2 /T RATE (0)\n       /T RATE (60)"_s,
    u"USE ALL_DIRECTX_BUTTONS "_s,
    u"USE H1U AS DX1 "_s,
    u"USE T10 AS DX28 "_s,
    u"USE S4 AS SHIFTBTN"_s,
    u"BTN S1 SHIFTBTN (S4) "_s,
    u"SHIFTBTN (S4) "_s,
    u"USE S3_LOCK "_s,
    u"BTN S1 S3_LOCK "_s,
    u"BTN S1 S3_UNLOCK "_s,
    u"USE HAT1_SENSITIVITY (10) "_s,
    u"USE T1_SENSITIVITY (10) "_s,
    u"BTN S1 /I REVERSE_TOGGLES "_s,
    u"BTN S1 RESET_TOGGLES "_s,
    u"USE KEYBOARD AZERTY "_s,
    u"BTN S1 STICK_OFF "_s,
    u"USE PROFILE My stick (new.tmc (AUTO)"_s,
    u"USE PROFILE Default.tmc (CUSTOM)"_s,
    u"USE CHORDED_FDFU "_s,
    u"USE NULLCHR ("_s,
    u"BTN S1 EMPTY_BUFFERS "_s,
    u"USE ZEPH GRAPHIC My picture (1.bmp"_s,
    u"USE ZEPH README Read me.rtf"_s,
    u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_USER, CALIBRATION_AUTO)"_s,
    u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_WINDOWS, CALIBRATION_MANUAL)"_s,
    u"USE ZEPH RUN_APP C:\\Program Files (x86\\a.exe WINDOW_STYLE = 0"_s,
    u"USE ZEPH RUN_APP "_s,
    // Hats, mouse and microstick.
    u"USE HAT1 AS MOUSE (1)"_s,
    u"USE HAT1 AS MOUSE (127) - REVERSE_UD, REVERSE_LR"_s,
    u"USE HAT1 AS MOUSE ()"_s,
    u"USE HAT2 AS POV - REVERSE_UD"_s,
    u"USE HAT3 AS ARROWKEYS - REVERSE_UD, REVERSE_LR, NOHOLD"_s,
    u"USE HAT4 AS KEYPAD - FORCED_CORNERS, NOHOLD, KP5"_s,
    u"USE RADIOSWITCH AS KEYPAD"_s,
    u"USE RADIOSWITCH AS MOUSE (20)"_s,
    u"USE HAT1 FORCED_CORNERS"_s,
    u"USE MTYPE A1"_s,
    u"USE MTYPE A5 - REVERSE_UD, REVERSE_LR"_s,
    u"USE MICROSTICK AS MOUSE (11, 2, 1)"_s,
    u"USE MICROSTICK AS MOUSE (11, 2) - REVERSE_UD, NO_BUTTON"_s,
    u"USE JOYX AS MOUSEX (11, 11) - REVERSE_DIR"_s,
    u"USE RNG AS MOUSEZ (2, 63)"_s,
    u"BTN S1 MOUSE_LB "_s,
    u"BTN S1 DISABLE MOUSE "_s,
    u"DISABLE MOUSE "_s,
    u"BTN T1 /H MOUSE_LB "_s,
    u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s,
    u"BTN S1 MSX(5+) MSY(-5) "_s,
    u"USE ZERO_MOUSE "_s,
    // Logical flags.
    u"DEF X1 (X2 AND NOT X3) OR H1U"_s,
    u"DEF X48 S3 AND TG1 * T10"_s,
    u"DEF X2 PULSE(100 200) AND DELAY(300)"_s,
    u"BTN X48 /P DLY(60) a /R RPT(2) b"_s,
    u"BTN X1 a"_s,
    u"DEF X5 COUNT(X4 3)"_s,
    // Mouse programming.
    u"USE SCREEN_RESOLUTION (1024,768) \n\nBTN S1 MOUSEXY (UL, 10, 20) "_s,
    u"USE SCREEN_RESOLUTION (1024,768)\nBTN S1 MOUSEMOVE (-10, 20) \nBTN S2 "
    "MOUSEROTATE (CENTRE, 10,20, 30.5, 0, [MOUSE_LB], CW, 360, 2)"_s,
    u"BTN S1 MOUSEXY (UL, 10.5%, 20%) "_s,
    // Keys as the keyboard window writes them.
    u"BTN S1 /P KD(LSHF a) /R KU(a LSHF) Rem 'SHF a'"_s,
    u"BTN S1 /P USB(DE1 D04) /R USB(U04 UE1) Rem 'SHF a'"_s,
    u"BTN S1 USB (D04 U04)"_s,
    u"BTN S1 CTL ALT SHF DEL"_s,
    // Shifted symbols written as themselves.
    u"BTN S1 ( "_s,
    u"BTN S1 ) "_s,
    u"BTN S1 SPC < "_s,
    u"BTN S1 CTL ( "_s,
    u"BTN S1 ALT } x"_s,
    u"BTN S1 { CTL ( }"_s,
    u"BTN S1 /P ( /R a"_s,
    u"BTN S1 /I /P { /O /R a"_s,
    u"BTN S1 /I ( \nTHR 3 a ^ b"_s,
    u"THR 2 6 ( ) { } < >"_s,
    // Statements over several lines.
    u"BTN\n S1 a"_s,
    u"BTN Rem the trigger\n\n TG1 /I a\n /O b"_s,
    u"DEF\n X1 S1"_s,
    u"BTN S1 { a\n RATE (50) b }"_s,
    u"BTN S1 /P < KD(a)\n   CURVE (THR, 3) >"_s,
    u"USE AXES_CONFIG (1, JOYX), (2,\nJOYY)"_s,
    u"USE AXES_CONFIG (1, JOYX), Rem first\n (2, Rem second\n JOYY)"_s,
    // Roles that nothing is known of.
    u"USE X1 AS DX5"_s,
    u"USE POV AS JOYSTICK"_s,
    // What the tools leave alone.
    u"BTN PortB1 a"_s,
    u"JSX 1 2 3\nJSY 4\nSWAPTG\nPORTB a"_s,
    u"BTN S1 < a b > { c } ( d )"_s,
    u"BTN S1 Unknown_Macro"_s,
    u"Text before any statement"_s,
    u"USE SOMETHING NEW"_s,
    u"Rem BTN S9 ((a"_s,
    u"BTN S1 a\n ~ b ~"_s,
    // Single brackets may be keys wherever keys are.
    u"BTN S1 a )"_s,
    u"BTN S1 } a"_s,
    u"BTN S1 { a"_s,
    u"BTN S1 a < b"_s,
    u"BTN S1 a\n  < b } >"_s,
    u"BTN S1 ( < ) >"_s,
    u"BTN S1 {a ( b}"_s,
    u"BTN S1 { a > b }"_s,
    u"BTN S1 /I { /U a\n /D b"_s,
    u"ANT 1 6 > <"_s,
    u"ANT 1 6 ) ( - FORCE_MACROS"_s,
    u"THR 2 3 ( a )"_s,
    u"BTN S1 /O ( LSHF\nTHR /I 3 a ^ b\n /O 3 b ^ a"_s,
    u"BTN S1 /O ( LSHF\nCURVE /I (THR, 4)\n /O (THR, 0)"_s,
    u"BTN S1 /U /O ( /D ) /I a"_s,
    // Several statements on a line.
    u"BTN S1 a BTN T1 b USE S2 AS DX1 DEF X1 S3 THR /U 3 a ^ b"_s,
    u"BTN S1 /O a BTN S2 /I b"_s,
    u"USE ZEPH README BTN S9.txt"_s,
    u"BTN T6 /P CURVE (RNG, 2) SWAP (ANT, RNG) RATE (60) DISABLE MOUSE"_s,
    u"BTN S1 Use Def ANT a"_s,
    u"USE MTYPE A1-REVERSE_UD"_s,
    u"THR_RANGE (10.5%, 90.5%)"_s,
    u"THR_RANGE (0.1, 0.2)"_s,
    u"BTN S1 /O a CURVE /I (THR, 4) /O (THR, 0)"_s,
    u"DISABLE THR CURVE /I (RNG, 4)\n /O (RNG, 0) ANT 1 6 a b c"_s,
    u"BTN S1 a USE HAT1 FORCED_CORNERS USE HAT2_SENSITIVITY (3)"_s,
    u"BTN S1 DISABLE THR 5 6"_s,
    u"BTN S1 Use Def Curve /I a /O b"_s,
    u"THR 1 5 a b ~BTN S1 c"_s,
    // The numbers may be keys.
    u"BTN S1 a THR 7 a b"_s,
    u"BTN S1 MOUSEMOVE (50%, 0)"_s,
    u"BTN S1 MOUSEROTATE (CENTRE, 10%, 20%, 30.5%, 45, [MOUSE_LB], CW, 360, 2)"_s,
};

struct Wrong {
    QString text;
    int code;
    int line;
    /// The text at the finding's place.
    QString at;
};

std::ostream &operator<<(std::ostream &out, const Wrong &wrong)
{
    return out << wrong.text.toStdString();
}

class WrongStatement : public testing::TestWithParam<Wrong>
{
};

const QList<Wrong> wrongs{
    // Controls and axes.
    { u"BTN S5 a"_s, UnknownControl, 1, u"S5"_s },
    { u"\nBTN H1U a\nBTN T11 b"_s, UnknownControl, 3, u"T11"_s },
    { u"BTN H5U a"_s, UnknownControl, 1, u"H5U"_s },
    { u"BTN"_s, UnknownControl, 1, u"BTN"_s },
    { u"BTN /U a"_s, UnknownControl, 1, u"BTN"_s },
    { u"DEF X1 T11 AND S1"_s, UnknownControl, 1, u"T11"_s },
    { u"USE S9 AS DX4"_s, UnknownControl, 1, u"S9"_s },
    { u"BTN\n T11 a"_s, UnknownControl, 2, u"T11"_s },
    { u"BTN\nBTN S1 a"_s, UnknownControl, 1, u"BTN"_s },
    { u"BTN\n /U a"_s, UnknownControl, 1, u"BTN"_s },
    { u"USE POV AS DX5"_s, UnknownControl, 1, u"POV"_s },
    { u"USE HAT5 AS POV"_s, UnknownControl, 1, u"HAT5"_s },
    { u"USE JOYX AS SHIFTBTN"_s, UnknownControl, 1, u"JOYX"_s },
    { u"SHIFTBTN (S5)"_s, UnknownControl, 1, u"S5"_s },
    { u"USE CURVE (JOYZ, 4)"_s, UnknownAxis, 1, u"JOYZ"_s },
    { u"CURVE /I (THR, 4)\n      /O (THROTTLE, 0)"_s, UnknownAxis, 2, u"THROTTLE"_s },
    { u"BTN S1 UNLOCK (FOO)"_s, UnknownAxis, 1, u"FOO"_s },
    { u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (3, ROTARIES)"_s, UnknownAxis, 1, u"ROTARIES"_s },
    { u"DISABLE THRT"_s, UnknownAxis, 1, u"THRT"_s },
    { u"BTN RNG a"_s, UnknownControl, 1, u"RNG"_s },
    { u"BTN BTN"_s, UnknownControl, 1, u"BTN"_s },
    { u"BTN USE a"_s, UnknownControl, 1, u"USE"_s },
    { u"BTN S1 a BTN T11 b"_s, UnknownControl, 1, u"T11"_s },
    { u"BTN S1 a BTN T1 b BTN"_s, UnknownControl, 1, u"BTN"_s },
    { u"USE RATE (60) USE S9 AS DX1"_s, UnknownControl, 1, u"S9"_s },
    { u"BTN S1 a DEF X1 T11 AND S1"_s, UnknownControl, 1, u"T11"_s },
    { u"~BTN S9 a"_s, UnknownControl, 1, u"S9"_s },
    { u"BTN S1 a\n ~ BTN S9 a"_s, UnknownControl, 2, u"S9"_s },
    { u"BTN S1 a ~BTN S9 b"_s, UnknownControl, 1, u"S9"_s },
    { u"~~BTN S9 a"_s, UnknownControl, 1, u"S9"_s },
    { u"~ ~BTN S9 a"_s, UnknownControl, 1, u"S9"_s },
    { u"foo BTN T11 b"_s, UnknownControl, 1, u"T11"_s },
    { u"BTN S1 a DEF T1 S1"_s, UnknownFlag, 1, u"T1"_s },
    { u"BTN S1 a CURVE /I (THR, 4) /O (THR, 99)"_s, ValueOutOfRange, 1, u"99"_s },
    { u"DISABLE THR CURVE /I (RNG,4) /O (RNG,99)"_s, ValueOutOfRange, 1, u"99"_s },
    { u"DEF X1 S1 CURVE /I (JOYZ, 4)"_s, UnknownAxis, 1, u"JOYZ"_s },
    { u"BTN S1 a CURVE /O (THR, 0) /I (THR, 4)"_s, InAfterOut, 1, u"/I"_s },
    { u"CURVE /I (THR, 4) RNG 5 3 a b c"_s, BandCount, 1, u"3"_s },
    { u"BTN S1 a USE HAT5 FORCED_CORNERS"_s, UnknownControl, 1, u"HAT5"_s },
    { u"BTN S1 a USE HAT5_SENSITIVITY (3)"_s, UnknownControl, 1, u"HAT5_SENSITIVITY"_s },
    { u"BTN S1 a USE RADIOSWITCH FORCED_CORNERS"_s, UnknownHatRole, 1, u"RADIOSWITCH"_s },
    { u"USE HAT5 FORCED_CORNERS"_s, UnknownControl, 1, u"HAT5"_s },
    { u"USE S1 FORCED_CORNERS"_s, UnknownControl, 1, u"S1"_s },
    { u"USE HAT5_SENSITIVITY (3)"_s, UnknownControl, 1, u"HAT5_SENSITIVITY"_s },
    { u"USE T2_SENSITIVITY (3)"_s, UnknownControl, 1, u"T2_SENSITIVITY"_s },
    { u"USE HAT5 AS MOUSE (3)"_s, UnknownControl, 1, u"HAT5"_s },
    { u"USE JOYZ AS MOUSEX (2, 2)"_s, UnknownAxis, 1, u"JOYZ"_s },
    { u"USE JOYZ AS MOUSEX"_s, UnknownAxis, 1, u"JOYZ"_s },
    { u"USE STICK AS MOUSE (2, 2)"_s, UnknownAxis, 1, u"STICK"_s },
    { u"USE CURVE (JOY-X, 4)"_s, UnknownAxis, 1, u"JOY-X"_s },
    { u"BTN S1 REVERSE (TH.R)"_s, UnknownAxis, 1, u"TH.R"_s },
    { u"DISABLE JOYX"_s, NotDisableable, 1, u"JOYX"_s },
    { u"DISABLE HAT1"_s, NotDisableable, 1, u"HAT1"_s },
    { u"DISABLE S1"_s, NotDisableable, 1, u"S1"_s },
    { u"DISABLE RADIOSWITCH"_s, UnknownAxis, 1, u"RADIOSWITCH"_s },
    { u"BTN S1 DISABLE JOYX"_s, NotDisableable, 1, u"JOYX"_s },
    { u"DISABLE MICROSTICK"_s, NotDisableable, 1, u"MICROSTICK"_s },
    { u"DISABLE X1"_s, NotDisableable, 1, u"X1"_s },
    { u"BTN S1 DISABLE X1"_s, NotDisableable, 1, u"X1"_s },
    { u"DISABLE X49"_s, UnknownFlag, 1, u"X49"_s },
    { u"DISABLE HAT5"_s, UnknownAxis, 1, u"HAT5"_s },
    { u"DISABLE S9"_s, UnknownAxis, 1, u"S9"_s },
    // Flags.
    { u"DEF X49 S1"_s, UnknownFlag, 1, u"X49"_s },
    { u"DEF X0 S1"_s, UnknownFlag, 1, u"X0"_s },
    { u"BTN X49 a"_s, UnknownFlag, 1, u"X49"_s },
    { u"DEF T1 S1"_s, UnknownFlag, 1, u"T1"_s },
    { u"DEF"_s, UnknownFlag, 1, u"DEF"_s },
    { u"DEF X99999999999 S1"_s, UnknownFlag, 1, u"X99999999999"_s },
    { u"USE X49 AS DX5"_s, UnknownFlag, 1, u"X49"_s },
    { u"DEF X1 X2 AND\n (X3 OR X50)"_s, UnknownFlag, 2, u"X50"_s },
    // Brackets.
    { u"BTN S1 (a"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 a)\nBTN S2 b"_s, StrayBracketCode, 1, u")"_s },
    { u"BTN S1 /U {a\n       /D b\nBTN S2 c"_s, StrayBracketCode, 1, u"{"_s },
    { u"BTN S1 a\n  <b} >"_s, StrayBracketCode, 2, u"<"_s },
    { u"BTN S1 DLY(60"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 {a"_s, StrayBracketCode, 1, u"{"_s },
    { u"BTN S1 a}"_s, StrayBracketCode, 1, u"}"_s },
    { u"BTN S1 {/U a\n /D b"_s, StrayBracketCode, 1, u"{"_s },
    { u"BTN S1 /I {/U a\n /D b"_s, StrayBracketCode, 1, u"{"_s },
    { u"BTN S1 ( a}"_s, StrayBracketCode, 1, u"}"_s },
    { u"BTN S1 CURVE (THR, ) )"_s, -1, 0, {} },
    { u"BTN S1 CURVE (THR } , 3)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 /P KD(a /R KU(a)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 /P KD(a\n       /R KU(a"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 /P KD(a)\n       /R KU(a"_s, StrayBracketCode, 2, u"("_s },
    { u"BTN S1 KD(a KU(a)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 KD(a DLY(60) KU(a)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 USB(D04 /R USB(U04)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 { KD(a }"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 KD(a (b)"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 KD(a))"_s, StrayBracketCode, 1, u")"_s },
    { u"BTN S1 KD(a BTN T1 b"_s, StrayBracketCode, 1, u"("_s },
    { u"THR 5 3 0 33 67 100) a b c"_s, StrayBracketCode, 1, u")"_s },
    { u"THR 5 3 0 33 67 100 ) a b c"_s, StrayBracketCode, 1, u")"_s },
    { u"THR 5 3\n 0 33 67 100) 7 8 9"_s, StrayBracketCode, 2, u")"_s },
    { u"THR 5 3 0, 33, 67, 100) a b c"_s, StrayBracketCode, 1, u")"_s },
    { u"THR 5 3 0 , 33 , 67 , 100 ) a b c"_s, StrayBracketCode, 1, u")"_s },
    { u"THR 5 3 0.5 33 67 100) a b c"_s, StrayBracketCode, 1, u")"_s },
    { u"THR 5 3 , . ;"_s, BandCount, 1, u"3"_s },
    { u"USE AXES_CONFIG 1, JOYX), (2, JOYY)"_s, StrayBracketCode, 1, u")"_s },
    { u"USE AXES_CONFIG (1, JOYX), 2, JOYY)"_s, StrayBracketCode, 1, u")"_s },
    { u"DEF X1 ) AND S1"_s, StrayBracketCode, 1, u")"_s },
    { u"DEF X1 S1 AND ("_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 (a\nRATE (5)\nBTN S2 b"_s, StrayBracketCode, 1, u"("_s },
    { u"USE AXES_CONFIG (1, JOYX), (2, JOYY"_s, StrayBracketCode, 1, u"("_s },
    { u"USE CURVE (THR, 3"_s, StrayBracketCode, 1, u"("_s },
    { u"BTN S1 (a <b) c>"_s, StrayBracketCode, 1, u"<"_s },
    // Digital axes.
    { u"THR 7 a b c"_s, UnknownAxisType, 1, u"7"_s },
    { u"BTN S1 a THR 5 3 a b c"_s, BandCount, 1, u"3"_s },
    { u"THR 99999999999 a"_s, UnknownAxisType, 1, u"99999999999"_s },
    { u"THR 5 99999999999 (0 100) a"_s, BandCount, 1, u"99999999999"_s },
    { u"THR 0 a b c"_s, UnknownAxisType, 1, u"0"_s },
    { u"THR /U 3 a ^ b\n    /D 9 a"_s, UnknownAxisType, 2, u"9"_s },
    { u"THR 5 3 (0 50 100) a b c"_s, BandCount, 1, u"(0 50 100)"_s },
    { u"THR 6 2 (0 33 67 100) a b"_s, BandCount, 1, u"(0 33 67 100)"_s },
    { u"THR 5 0 () a"_s, BandCount, 1, u"0"_s },
    { u"THR 5 51 (0 100) a"_s, BandCount, 1, u"51"_s },
    { u"THR 5 3 a b c"_s, BandCount, 1, u"3"_s },
    { u"THR 5 3 (0 67 33 100) a b c"_s, BandBorders, 1, u"33"_s },
    { u"THR 5 2 (0 0 100) a b"_s, BandBorders, 1, u"0"_s },
    { u"THR 5 2\n (0 50 101) a b"_s, BandBorders, 2, u"101"_s },
    { u"ANT 1 5 Right Left Centre"_s, -1, 0, {} },
    { u"ANT 1 5 a b c"_s, OddBandsWithCentre, 1, u"5"_s },
    { u"ANT 1 5 a b c - FORCE_MACROS"_s, OddBandsWithCentre, 1, u"5"_s },
    // Values.
    { u"USE CURVE (THR, 33)"_s, ValueOutOfRange, 1, u"33"_s },
    { u"BTN S1 CURVE (THR,\n -33)"_s, ValueOutOfRange, 2, u"-33"_s },
    { u"BTN S1 CURVE (THR, Rem gentle\n Rem or not\n 33)"_s, ValueOutOfRange, 3, u"33"_s },
    { u"USE CURVE (THR, 99999999999)"_s, ValueOutOfRange, 1, u"99999999999"_s },
    { u"BTN S1 TRIM (JOYX, 128+)"_s, ValueOutOfRange, 1, u"128+"_s },
    { u"BTN S1 TRIM (JOYX, -128)"_s, ValueOutOfRange, 1, u"-128"_s },
    { u"USE HAT1 AS MOUSE (128)"_s, ValueOutOfRange, 1, u"128"_s },
    { u"USE HAT1 AS MOUSE (0)"_s, ValueOutOfRange, 1, u"0"_s },
    { u"USE MICROSTICK AS MOUSE (12, 11)"_s, ValueOutOfRange, 1, u"MOUSE (12, 11)"_s },
    { u"THR_RANGE (90%, 90%)"_s, ThrottleRangeOrder, 1, u"90%"_s },
    { u"USE THR_RANGE (50%, 10%)"_s, ThrottleRangeOrder, 1, u"50%"_s },
    { u"USE S1 AS DX0"_s, DirectXButton, 1, u"DX0"_s },
    { u"USE S1 AS DX29"_s, DirectXButton, 1, u"DX29"_s },
    { u"USE S1 AS DX32"_s, DirectXButton, 1, u"DX32"_s },
    { u"THR_RANGE (90.5%, 10%)"_s, ThrottleRangeOrder, 1, u"90.5%"_s },
    { u"THR_RANGE (10.5%, 10.5%)"_s, ThrottleRangeOrder, 1, u"10.5%"_s },
    { u"THR_RANGE (10.5%, 10.25%)"_s, ThrottleRangeOrder, 1, u"10.5%"_s },
    { u"USE MTYPE A6"_s, UnknownMouseType, 1, u"A6"_s },
    { u"USE MTYPE B1"_s, UnknownMouseType, 1, u"B1"_s },
    { u"USE MTYPE 1 - REVERSE_UD"_s, UnknownMouseType, 1, u"1"_s },
    { u"USE RADIOSWITCH FORCED_CORNERS"_s, UnknownHatRole, 1, u"RADIOSWITCH"_s },
    { u"USE HAT1 AS KEYPADS"_s, UnknownHatRole, 1, u"KEYPADS"_s },
    { u"USE HAT1 AS"_s, UnknownHatRole, 1, u"HAT1 AS"_s },
    { u"USE AXES_CONFIG (1, JOYX), (3, THR)"_s, AxesConfiguration, 1, u"AXES_CONFIG"_s },
    { u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (2, THR)"_s, AxesConfiguration, 1, u"2"_s },
    { u"USE AXES_CONFIG (1, JOYX), (2, JOYY), (11, THR)"_s, AxesConfiguration, 1, u"11"_s },
    { u"BTN S1 SWAP (THR, ROTARIES)"_s, UnequalSwap, 1, u"THR"_s },
    { u"USE JOYX AS MOUSE (2, 2)"_s, AxisAsMouse, 1, u"MOUSE (2, 2)"_s },
    { u"USE JOYSTICK AS MOUSEX (2, 2)"_s, AxisAsMouse, 1, u"MOUSEX (2, 2)"_s },
    { u"BTN S1 MOUSEXY (UL, 10, 20)"_s, NoScreenResolution, 1, u"MOUSEXY (UL, 10, 20)"_s },
    { u"BTN S1 MOUSEXY (UL, 10, 20%)"_s, NoScreenResolution, 1, u"MOUSEXY (UL, 10, 20%)"_s },
    { u"BTN S1 MOUSEXY (UL, 10.5%, 20.5)"_s, NoScreenResolution, 1,
      u"MOUSEXY (UL, 10.5%, 20.5)"_s },
    { u"BTN S1 MOUSEMOVE (-10, 20%)"_s, NoScreenResolution, 1, u"MOUSEMOVE (-10, 20%)"_s },
    { u"BTN S1 MOUSEROTATE (UL, 1%, 2%, 3, 45, [a], CW, 360, 2)"_s, NoScreenResolution, 1,
      u"MOUSEROTATE (UL, 1%, 2%, 3, 45, [a], CW, 360, 2)"_s },
    // S3.
    { u"BTN S1 /O a\n       /I b"_s, InAfterOut, 2, u"/I"_s },
    { u"BTN S1 /U /O a /I b /D /I c /O d"_s, InAfterOut, 1, u"/I"_s },
    { u"THR /O 3 a ^ b\n    /I 3 c ^ d"_s, InAfterOut, 2, u"/I"_s },
};

} // namespace

TEST_P(LegalStatement, HasNoFinding)
{
    expectClean(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Composed, LegalStatement, testing::ValuesIn(each(composed)));
INSTANTIATE_TEST_SUITE_P(Curves, LegalStatement, testing::ValuesIn(each(axisCurves())));

TEST(LegalFile, AllStatementsTogetherHaveNoFindingEither)
{
    expectClean(composed.join(u'\n'));
    expectClean(composed.join(u'\n').toLower());
}

TEST(LegalFile, ProseBeforeTheFirstStatementMayHoldTheLanguagesWords)
{
    expectClean(u"Text, thr 5 3 a b c, and use hat5 as pov, curve /i (joyz, 4)\nBTN S1 a"_s);
}

TEST_P(WrongStatement, HasOneFindingAtItsPlace)
{
    const FilePair pair = parsePair(GetParam().text, {});
    const QList<Finding> findings = check(pair);
    if (GetParam().code < 0) {
        // Whether an unknown word is a macro of three keys or one is not certain.
        EXPECT_TRUE(findings.isEmpty());
        return;
    }
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].code, GetParam().code);
    EXPECT_EQ(findings[0].file, File::Joystick);
    EXPECT_EQ(findings[0].place.line, GetParam().line);
    EXPECT_EQ(pair.joystick.at(findings[0].place), GetParam().at);
    EXPECT_FALSE(findings[0].message.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Each, WrongStatement, testing::ValuesIn(wrongs));

TEST(Bands, FiftyAreAcceptedAndFiftyOneRefused)
{
    const auto statement = [](int count) {
        QStringList borders;
        for (int border = 0; border <= count; ++border)
            borders.append(QString::number(border));
        return u"THR 5 %1 (%2) a"_s.arg(count).arg(borders.join(u' '));
    };
    expectClean(statement(50));
    EXPECT_EQ(check(parsePair(statement(51), {})).size(), 1);
}

TEST(OutBeforeIn, IsNoMistakeAcrossLevels)
{
    expectClean(u"BTN S1 /U /O a\n       /D /I b"_s);
    expectClean(u"BTN S1 { /O a } { /I b }"_s);
    expectClean(u"BTN S1 /O a\nBTN S2 /I b"_s);
    expectClean(u"BTN S1 /I a /O b /O c"_s);
}

TEST(MacroFindings, AreAllOneThousandAndThirteenWithTheMacroFilesLine)
{
    const FilePair pair = parsePair(u"BTN S1 a\nBTN S2 b"_s,
                                    u"Fire = (a\n\nBad = CURVE (THR, 99)\nFlag = X49\n"
                                    "Late = /O a /I b"_s);
    const QList<Finding> findings = check(pair);
    ASSERT_EQ(findings.size(), 4);
    const int lines[] = { 1, 3, 4, 5 };
    for (int index = 0; index < 4; ++index) {
        EXPECT_EQ(findings[index].code, 1013);
        EXPECT_EQ(findings[index].file, File::Macro);
        EXPECT_EQ(findings[index].place.line, lines[index]);
    }
}

TEST(MacroFindings, KeysInBracketsMayRunOverLines)
{
    expectClean({}, u"Fire = {a b\n  Rem (still open\n\n ~\n c d} \nNext = KD (a\n  b)"_s);
    expectClean({}, u"Fire = CTL (\nNext = SHF <\nLast = ALT { DLY(20) b"_s);
    const QList<Finding> findings = check(parsePair({}, u"Fire = {a\n b\nNext = c}"_s));
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0].place.line, 1);
    EXPECT_EQ(findings[1].place.line, 3);
}

TEST(MacroFindings, AMacroThatCallsItselfIsAMistake)
{
    const FilePair pair = parsePair({}, u"Alone = Alone\nFirst = b Second\nSecond = First\n"_s);
    const QList<Finding> findings = check(pair);
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0].code, 1013);
    EXPECT_EQ(findings[0].place.line, 1);
    EXPECT_EQ(findings[1].place.line, 3);
    EXPECT_EQ(pair.macro.at(findings[1].place), u"First");
}

TEST(MacroFindings, AMacroNamedLikeItsKeyIsNoCircle)
{
    expectClean({}, u"a = a\nSPC = SPC\nTab = SHF TAB"_s);
}

TEST(MacroFindings, AMacroNamedLikeAFlagIsNoFlag)
{
    expectClean(u"BTN S1 X49"_s, u"X49 = a"_s);
}

TEST(MacroFindings, AMousePlaceInPixelsNeedsTheScreensSize)
{
    const QString macros = u"Half = MOUSEXY (UL, 50%, 50%)\nMove = MOUSEXY (UL, 10, 20)"_s;
    const QList<Finding> findings = check(parsePair(u"BTN S1 Move"_s, macros));
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].code, 1013);
    EXPECT_EQ(findings[0].file, File::Macro);
    EXPECT_EQ(findings[0].place.line, 2);
    expectClean(u"USE SCREEN_RESOLUTION (1024,768)\nBTN S1 Move"_s, macros);
}

TEST(MacroFindings, ATildeSwitchesALineOffInAMacroFile)
{
    expectClean({}, u"~Fire = KD(a\n ~Flare = (b"_s);
}

TEST(AxisHeads, ANumberIsANumberEvenIfAMacroHasItsName)
{
    const QString macros = u"3 = F3\n5 = F5\n7 = F7\n33 = a\n51 = b\n101 = c"_s;
    const auto code = [&](const QString &statement) {
        const QList<Finding> findings = check(parsePair(statement, macros));
        return findings.size() == 1 ? findings[0].code : 0;
    };
    EXPECT_EQ(code(u"THR 7 a b c"_s), UnknownAxisType);
    EXPECT_EQ(code(u"THR 5 51 (0 100) a"_s), BandCount);
    EXPECT_EQ(code(u"THR 5 3 (0 33 101 102) a b c"_s), BandBorders);
    EXPECT_EQ(code(u"ANT 1 5 a b c"_s), OddBandsWithCentre);
    expectClean(u"THR 5 3 (0 33 67 100) 7 5 3\nANT 1 6 7 5 3"_s, macros);
}

TEST(Findings, JoystickFileFirstThenInTextOrder)
{
    const QList<Finding> findings =
        check(parsePair(u"BTN S1 CURVE (THR, 99)\nBTN S9 (a\nUSE MTYPE A9"_s, u"M1 = a)"_s));
    ASSERT_EQ(findings.size(), 5);
    EXPECT_EQ(findings[0].code, ValueOutOfRange);
    EXPECT_EQ(findings[1].code, UnknownControl);
    EXPECT_EQ(findings[2].code, StrayBracketCode);
    EXPECT_EQ(findings[3].code, UnknownMouseType);
    EXPECT_EQ(findings[4].code, InMacroFile);
}

TEST(Findings, OneBracketAStatementIsTold)
{
    EXPECT_EQ(check(parsePair(u"BTN S1 ((( a ]]} > )"_s, {})).size(), 1);
    EXPECT_EQ(check(parsePair(u"BTN S1 (a\nBTN S2 (b"_s, {})).size(), 2);
}

TEST(Findings, SayWhatIsWrongWithTheNameThatIsThere)
{
    const auto message = [](const QString &text) {
        const QList<Finding> findings = check(parsePair(text, {}));
        return findings.isEmpty() ? QString() : findings.first().message;
    };
    EXPECT_EQ(message(u"DISABLE HAT5"_s), u"DISABLE needs an axis, and HAT5 is none");
    EXPECT_EQ(message(u"DISABLE S9"_s), u"DISABLE needs an axis, and S9 is none");
    EXPECT_EQ(message(u"USE HAT5_SENSITIVITY (3)"_s), u"HAT5 has no sensitivity");
    EXPECT_EQ(message(u"USE T2_SENSITIVITY (3)"_s), u"T2 has no sensitivity");
    EXPECT_EQ(message(u"USE HAT5 FORCED_CORNERS"_s), u"HAT5 is no hat with corners");
    EXPECT_EQ(message(u"USE S1 FORCED_CORNERS"_s), u"S1 is no hat with corners");
}

TEST(Findings, EveryCodeHasItsEntry)
{
    for (const Wrong &wrong : wrongs) {
        if (wrong.code > 0) {
            EXPECT_TRUE(errorEntry(wrong.code)) << wrong.code;
        }
    }
}

TEST(MissingMacroFile, IsAFindingOfTheJoystickFile)
{
    const FilePair pair = parsePair(u"BTN S1 a\nUSE MDEF gone"_s, {});
    const Finding finding = missingMacroFile(*macroReference(pair.joystick));
    EXPECT_EQ(finding.code, 1012);
    EXPECT_EQ(finding.file, File::Joystick);
    EXPECT_EQ(finding.place.line, 2);
    EXPECT_TRUE(finding.message.contains(u"gone"));
}
