// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What the keyboard window and the Composer's pages write from any of their inputs must compile.
// The texts are built here by the rules of those windows.

#include "language/checker.h"
#include "language/use_forms.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <array>
#include <cmath>

using namespace zeph;
using namespace zeph::language;

// A namespace of its own, since the names in it are so general.
namespace window_texts {

namespace {

void expectCompiles(const QString &joystick, const QString &macros)
{
    for (const Finding &finding : check(parsePair(joystick, macros))) {
        ADD_FAILURE() << joystick.toStdString() << "\n--\n"
                      << macros.toStdString() << "\n"
                      << finding.code << " line " << finding.place.line << ": "
                      << finding.message.toStdString();
    }
}

// The keyboard window.

struct Key {
    QString name;
    /// What it shows with Shift; empty if the same.
    QString shifted;
    /// Its code as two digits; empty for mouse and POV.
    QString code;
};

QList<Key> keys()
{
    QList<Key> result{
        { u"0"_s, u")"_s, u"27"_s }, { u"1"_s, u"!"_s, u"1E"_s },    { u"2"_s, u"@"_s, u"1F"_s },
        { u"3"_s, u"#"_s, u"20"_s }, { u"4"_s, u"$"_s, u"21"_s },    { u"5"_s, u"%"_s, u"22"_s },
        { u"6"_s, u"^"_s, u"23"_s }, { u"7"_s, u"&"_s, u"24"_s },    { u"8"_s, u"*"_s, u"25"_s },
        { u"9"_s, u"("_s, u"26"_s }, { u"`"_s, u"~"_s, u"35"_s },    { u"-"_s, u"_"_s, u"2D"_s },
        { u"="_s, u"+"_s, u"2E"_s }, { u"\\"_s, u"|"_s, u"31"_s },   { u"["_s, u"{"_s, u"2F"_s },
        { u"]"_s, u"}"_s, u"30"_s }, { u";"_s, u":"_s, u"33"_s },    { u"'"_s, u"\""_s, u"34"_s },
        { u","_s, u"<"_s, u"36"_s }, { u"."_s, u">"_s, u"37"_s },    { u"/"_s, u"?"_s, u"38"_s },
        { u"KP0"_s, {}, u"62"_s },   { u"KP/"_s, {}, u"54"_s },      { u"KP*"_s, {}, u"55"_s },
        { u"KP-"_s, {}, u"56"_s },   { u"KP+"_s, {}, u"57"_s },      { u"KP."_s, {}, u"63"_s },
        { u"KPENT"_s, {}, u"58"_s }, { u"LSHF"_s, {}, u"E1"_s },     { u"RALT"_s, {}, u"E6"_s },
        { u"ENT"_s, {}, u"28"_s },   { u"F1"_s, {}, u"3A"_s },       { u"F12"_s, {}, u"45"_s },
        { u"DEL"_s, {}, u"4C"_s },   { u"SPC"_s, {}, u"2C"_s },      { u"UARROW"_s, {}, u"52"_s },
        { u"BRK"_s, {}, u"48"_s },   { u"PRNTSCRN"_s, {}, u"46"_s }, { u"MOUSE_LB"_s, {}, {} },
        { u"POVU"_s, {}, {} },       { u"POVDL"_s, {}, {} },
    };
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
        result.append({ QString(QChar(letter)),
                        {},
                        u"%1"_s.arg(4 + letter - u'a', 2, 16, QChar(u'0')).toUpper() });
    return result;
}

struct Toggles {
    bool shift = false;
    bool control = false;
    bool alt = false;
    /// A shifted sign is written as SHF and the key.
    bool asShift = true;
    bool usb = false;
};

struct Notations {
    QString syntax;
    QString make;
    QString release;

    QString combined() const { return make + u' ' + release; }
};

Notations notationsOf(const Key &key, const Toggles &toggles)
{
    const bool isSign = !key.shifted.isEmpty() && !toggles.asShift;
    const QString name = isSign && toggles.shift ? key.shifted : key.name;
    QString modifiers;
    if (toggles.control)
        modifiers += u"CTL "_s;
    if (toggles.alt)
        modifiers += u"ALT "_s;
    if (toggles.shift && !isSign)
        modifiers += u"SHF "_s;
    Notations result{ modifiers + name, name, name };
    if (toggles.usb) {
        result.make = key.code.isEmpty() ? QString() : u'D' + key.code;
        result.release = key.code.isEmpty() ? QString() : u'U' + key.code;
    }
    // Pressed in the order control, alt, shift, and let go in the reverse.
    struct Held {
        bool on;
        QString key;
        QString code;
    };
    const std::array held{ Held{ toggles.shift, u"LSHF"_s, u"E1"_s },
                           Held{ toggles.alt, u"LALT"_s, u"E2"_s },
                           Held{ toggles.control, u"LCTL"_s, u"E0"_s } };
    for (const Held &modifier : held) {
        if (!modifier.on)
            continue;
        result.make.prepend((toggles.usb ? u'D' + modifier.code : modifier.key) + u' ');
        result.release.append(u' ' + (toggles.usb ? u'U' + modifier.code : modifier.key));
    }
    return result;
}

QStringList texts(const Notations &key, bool usb)
{
    const QString down = usb ? u"USB"_s : u"KD"_s;
    const QString up = usb ? u"USB"_s : u"KU"_s;
    const QString make = down + u" ("_s + key.make + u')';
    const QString release = up + u" ("_s + key.release + u')';
    const QString combined = u"USB ("_s + key.combined() + u')';
    QStringList result{ key.syntax,
                        key.make,
                        key.release,
                        key.combined(),
                        make,
                        release,
                        combined,
                        make + release,
                        make + u" DLY(60) "_s + release,
                        combined + u" Rem '"_s + key.syntax + u'\'',
                        combined + combined + u" RPT(2) "_s + key.syntax };
    if (!key.make.isEmpty())
        result.append(
            u"/P %1(%2) /R %3(%4) Rem '%5'"_s.arg(down, key.make, up, key.release, key.syntax));
    return result;
}

// Calls the function with the notations of each key under each combination of toggles.
template <typename Function> void forEachKey(Function function)
{
    for (const Key &key : keys()) {
        for (unsigned bits = 0; bits < 32; ++bits) {
            const Toggles toggles{ (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0,
                                   (bits & 8) != 0, (bits & 16) != 0 };
            function(notationsOf(key, toggles), toggles.usb);
        }
    }
}

// The Composer.

const QString macros = u"Right = a\nLeft = b\nCentre = c\nUp = d\nDown = e\n"_s;
const QStringList axes{ u"JOYX"_s, u"JOYY"_s, u"THR"_s,  u"ANT"_s, u"RNG"_s,
                        u"RDDR"_s, u"LBRK"_s, u"RBRK"_s, u"MIX"_s, u"MIY"_s };
const QStringList groups{ u"JOYSTICK"_s, u"ROTARIES"_s, u"TOEBRAKES"_s, u"MICROSTICK"_s };
const QStringList disableable{ u"THR"_s,  u"ANT"_s,  u"RNG"_s,  u"ROTARIES"_s,
                               u"RDDR"_s, u"LBRK"_s, u"RBRK"_s, u"TOEBRAKES"_s };

QStringList controls()
{
    QStringList result;
    for (int hat = 1; hat <= 4; ++hat) {
        for (const QString &position :
             { u"U"_s, u"D"_s, u"L"_s, u"R"_s, u"M"_s, u"UL"_s, u"DL"_s, u"UR"_s, u"DR"_s })
            result.append(u"H%1%2"_s.arg(hat).arg(position));
    }
    for (int button = 1; button <= 4; ++button)
        result.append(u"S%1"_s.arg(button));
    for (int button = 1; button <= 10; ++button)
        result.append(u"T%1"_s.arg(button));
    return result + QStringList{ u"TG1"_s, u"TG2"_s };
}

// n bands of equal size, rounded to whole percents with halves to even.
QString borders(int bands)
{
    QStringList result;
    for (int border = 0; border <= bands; ++border)
        result.append(QString::number(int(std::nearbyint(float(100.0 / bands * border)))));
    return u'(' + result.join(u' ') + u')';
}

// The six types with these keys, the same for each direction; the second half of a statement with
// modifiers has no axis of its own.
QStringList digitalAxes(const QString &head, const QString &key)
{
    QStringList result;
    for (const QString &end : { QString(), u" - FORCE_MACROS"_s }) {
        result.append(head + u" 1 6 %1 %1 %1 "_s.arg(key) + end);
        result.append(head + u" 1 5 %1 %1  "_s.arg(key) + end);
        result.append(head + u" 2 3 %1 %1 %1"_s.arg(key) + end);
        result.append(head + u" 5 2 %1 %2 ^ "_s.arg(borders(2), key) + end);
        result.append(head + u" 5 3 %1 %2 %2 %2 "_s.arg(borders(3), key) + end);
        result.append(head + u" 6 2 %1 %2 %2 "_s.arg(borders(2), key) + end);
        result.append(head + u" 6 3 %1 %2 ^ %2 "_s.arg(borders(3), key) + end);
    }
    result.append(head + u" 3 %1 %1 %1 "_s.arg(key));
    result.append(head + u" 4 500 %1 ^ %1 "_s.arg(key));
    return result;
}

QStringList analogueAxes()
{
    QStringList result;
    for (const QString &axis : axes + groups) {
        for (const QString &value : { u"-32"_s, u"0"_s, u"32"_s }) {
            result +=
                QStringList{ u"USE CURVE (%1, %2)"_s.arg(axis, value),
                             u"CURVE /I (%1, %2)\n             /O (%1, %2)"_s.arg(axis, value),
                             u"BTN S1 /P CURVE (%1, %2)"_s.arg(axis, value) };
        }
        for (const QString &value :
             { u"0"_s, u"127+"_s, u"127-"_s, u"-127"_s, u"127"_s, u"TO_CURRENT"_s })
            result.append(u"BTN S1 TRIM (%1, %2)"_s.arg(axis, value));
        for (const QString &text :
             { u"BTN S1 HOLDTRIM (%1) "_s, u"BTN S1 LOCK (%1, LASTVALUE)"_s,
               u"BTN S1 LOCK (%1, 50%)"_s, u"BTN S1 UNLOCK (%1)"_s, u"USE REVERSE (%1)"_s,
               u"BTN S1 REVERSE (%1)"_s, u"BTN S1 FORWARD (%1)"_s })
            result.append(text.arg(axis));
    }
    for (const QString &axis : disableable)
        result.append(u"DISABLE "_s + axis);
    for (const QStringList &list : { axes, groups }) {
        for (const QString &other : list) {
            result.append(u"USE SWAP (%1, %2)"_s.arg(list[0], other));
            result.append(u"BTN S1 SWAP (%1, %2)"_s.arg(other, list[1]));
        }
    }
    return result
        + QStringList{ u"THR_RANGE (0%, 90%)"_s, u"USE THR_RANGE (0%, 1%)"_s,
                       u"USE AXES_CONFIG (1, -JOYX), (2, JOYY), (9, MIX), (10, -MIY)"_s };
}

QStringList configuration()
{
    QStringList result{ u"USE RATE (0)"_s,
                        u"BTN S1 RATE (60)"_s,
                        u"USE ALL_DIRECTX_BUTTONS "_s,
                        u"USE S3_LOCK "_s,
                        u"BTN S1 S3_LOCK "_s,
                        u"BTN S1 S3_UNLOCK "_s,
                        u"BTN S1 /I REVERSE_TOGGLES "_s,
                        u"BTN S1 RESET_TOGGLES "_s,
                        u"USE KEYBOARD AZERTY "_s,
                        u"BTN S1 STICK_OFF "_s,
                        u"USE PROFILE Mine.tmc (AUTO)"_s,
                        u"USE PROFILE Mine.tmc (CUSTOM)"_s,
                        u"USE CHORDED_FDFU "_s,
                        u"BTN S1 EMPTY_BUFFERS "_s,
                        u"USE ZEPH GRAPHIC a (b.bmp"_s,
                        u"USE ZEPH README BTN T11.txt"_s,
                        u"USE ZEPH RUN_APP C:\\a b\\c.exe WINDOW_STYLE = 0"_s,
                        u"USE T1_SENSITIVITY (5) "_s,
                        u"USE ZERO_MOUSE "_s,
                        u"BTN S1 DISABLE MOUSE "_s,
                        u"BTN S1 MSX(+5) MSY(5-) "_s,
                        u"BTN T1 /I /H MOUSE_RB \n            /O /H MOUSE_LB "_s };
    int number = 0;
    for (const QString &control : controls()) {
        number = number % 28 + 1;
        result +=
            QStringList{ u"BTN %1 a"_s.arg(control), u"USE %1 AS DX%2 "_s.arg(control).arg(number),
                         u"USE %1 AS SHIFTBTN"_s.arg(control),
                         u"BTN S1 SHIFTBTN (%1) "_s.arg(control) };
    }
    for (const Key &key : keys()) {
        result.append(u"USE NULLCHR "_s + key.name);
        if (!key.shifted.isEmpty())
            result.append(u"USE NULLCHR "_s + key.shifted);
    }
    for (const QString &calibration : { u"CALIBRATION_AUTO"_s, u"CALIBRATION_MANUAL"_s })
        result.append(u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_WINDOWS, %1)"_s.arg(calibration));
    return result;
}

QStringList hatsAndMouse()
{
    QStringList result;
    for (const QString &hat : { u"HAT1"_s, u"HAT2"_s, u"HAT3"_s, u"HAT4"_s, u"RADIOSWITCH"_s }) {
        result += QStringList{ u"USE %1 AS MOUSE (127) - REVERSE_UD, REVERSE_LR"_s.arg(hat),
                               u"USE %1 AS MOUSE ()"_s.arg(hat), u"USE %1 AS POV"_s.arg(hat),
                               u"USE %1 AS ARROWKEYS - NOHOLD"_s.arg(hat),
                               u"USE %1 AS KEYPAD - NOHOLD, KP5"_s.arg(hat) };
        if (hat == u"RADIOSWITCH")
            continue;
        result +=
            { u"USE %1 FORCED_CORNERS"_s.arg(hat), u"USE %1 AS KEYPAD - FORCED_CORNERS"_s.arg(hat),
              u"USE %1_SENSITIVITY (5) "_s.arg(hat) };
    }
    for (int type = 1; type <= 5; ++type)
        result.append(u"USE MTYPE A%1 - REVERSE_UD, REVERSE_LR"_s.arg(type));
    for (const QString &axis : axes) {
        for (const QString &mouse : { u"MOUSEX"_s, u"MOUSEY"_s, u"MOUSEZ"_s })
            result.append(u"USE %1 AS %2 (11, 11, 3) - REVERSE_DIR"_s.arg(axis, mouse));
    }
    for (const QString &group : groups)
        result.append(u"USE %1 AS MOUSE (11, 2, 1) - NO_BUTTON"_s.arg(group));
    for (const QString &origin : { u"UL"_s, u"DL"_s, u"UR"_s, u"DR"_s, u"CENTER"_s, u"CENTRE"_s }) {
        result += QStringList{ u"BTN S1 MOUSEXY (%1, 10, 20.5) "_s.arg(origin),
                               u"BTN S1 MOUSEXY (%1, 10%, 20.5%) "_s.arg(origin),
                               u"BTN S1 MOUSEROTATE (%1, 10,20, 3.5, 0, [Right], CW, 360, 2)"_s.arg(
                                   origin) };
    }
    return result + QStringList{ u"BTN S1 MOUSEMOVE (-10, 20) "_s };
}

QStringList logic()
{
    QStringList result;
    for (int flag = 1; flag <= 48; ++flag)
        result.append(u"DEF X%1 NOT ( S1 OR H1UL ) AND X%1"_s.arg(flag));
    return result
        + QStringList{ u"DEF X1 PULSE(100 200) OR DELAY(300) * T10"_s,
                       u"BTN X48 /P DLY(60) Right /R RPT(2) Left"_s };
}

// One text of each form: the names of axes and controls, and numbers, are as good as each other.
QStringList oneOfEachForm(const QStringList &texts)
{
    const QString names = (axes + groups + controls()).join(u'|');
    const QRegularExpression varying(u"\\b(%1)\\b|[+-]?\\d+[+-]?"_s.arg(names));
    QSet<QString> known;
    QStringList result;
    for (const QString &text : texts) {
        const QString form = QString(text).replace(varying, u"#"_s);
        if (known.contains(form))
            continue;
        known.insert(form);
        result.append(text);
    }
    return result;
}

QStringList statementTexts(const QString &text)
{
    const JoystickFile file = parsePair(text, macros).joystick;
    QStringList texts;
    for (const JoystickStatement &statement : file.statements)
        texts.append(file.at(statement.place).toString());
    return texts;
}

bool takesTheRestOfTheLine(const QString &text)
{
    const JoystickStatement statement = parsePair(text, macros).joystick.statements.last();
    return statement.useForm >= 0 && useForms()[size_t(statement.useForm)].shape == UseShape::Tail;
}

// Words that a body may hold too, so that in the middle of a line they need not begin a statement.
bool mayBelongToTheFirst(const QString &text)
{
    return text.startsWith(u"DISABLE ") || text.startsWith(u"THR_RANGE ");
}

const QString screen = u"USE SCREEN_RESOLUTION (1024,768) \n\n"_s;

} // namespace

TEST(KeyboardWindow, WhateverItWritesCompilesAfterAControl)
{
    forEachKey([](const Notations &key, bool usb) {
        for (const QString &text : texts(key, usb)) {
            expectCompiles(u"BTN S1 "_s + text + u"\nTHR /I 3 a ^ b\n /O 3 b ^ a"_s, {});
            expectCompiles(u"BTN S1\n"_s + text, {});
            expectCompiles(u"BTN S1 /U /I "_s + text + u"\n /O "_s + text, {});
        }
    });
}

TEST(KeyboardWindow, WhateverItWritesCompilesAsAMacro)
{
    forEachKey([](const Notations &key, bool usb) {
        for (const QString &text : texts(key, usb))
            expectCompiles(u"BTN S1 Key_1"_s, u"Key_1 = "_s + text + u"\nNext = a\n"_s);
    });
}

TEST(KeyboardWindow, WhateverKeyItWritesCompilesOnADigitalAxis)
{
    forEachKey([](const Notations &key, bool) {
        for (const QString &text : digitalAxes(u"ANT"_s, key.syntax))
            expectCompiles(text, {});
    });
}

TEST(Composer, DigitalAxesCompile)
{
    for (const QString &axis : axes) {
        for (const QString &key : { u"Right"_s, u"a"_s, u"^"_s, u"MSX(-5)"_s, u"KD (a)"_s }) {
            for (const QString &slash :
                 { u""_s, u" /U"_s, u" /M"_s, u" /D"_s, u" /I"_s, u" /O"_s }) {
                for (const QString &text : digitalAxes(axis + slash, key))
                    expectCompiles(text, macros);
            }
            for (const QString &text : digitalAxes(u"\n /O"_s, key))
                expectCompiles(axis + u" /I 3 a ^ b"_s + text, macros);
        }
        for (int bands = 1; bands <= 50; ++bands)
            expectCompiles(axis + u" 5 %1 %2 "_s.arg(bands).arg(borders(bands))
                               + u"^ "_s.repeated(bands),
                           macros);
    }
}

TEST(Composer, EveryOtherPageCompilesOnItsOwnAndInOneFile)
{
    const QStringList all = analogueAxes() + configuration() + hatsAndMouse() + logic();
    for (const QString &text : all)
        expectCompiles(screen + text, macros);
    expectCompiles(screen + all.join(u'\n'), macros);
}

TEST(Composer, EveryTwoTextsOnOneLineAreTwoStatements)
{
    const QStringList all =
        oneOfEachForm(analogueAxes() + configuration() + hatsAndMouse() + logic()
                      + digitalAxes(u"ANT"_s, u"Right"_s) + digitalAxes(u"THR /I"_s, u"a"_s));
    ASSERT_GE(all.size(), 100);
    for (const QString &first : all) {
        if (takesTheRestOfTheLine(first))
            continue;
        for (const QString &second : all) {
            const QString both = first + u' ' + second;
            expectCompiles(screen + both, macros);
            if (!mayBelongToTheFirst(second)) {
                EXPECT_EQ(statementTexts(both), statementTexts(first) + statementTexts(second))
                    << both.toStdString();
            }
        }
    }
}

} // namespace window_texts
