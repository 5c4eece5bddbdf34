// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/virtual_keys.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeph {

namespace {

struct KeyRow {
    Qt::Key key;
    int code;
};

// The same wherever they are on the keyboard: Windows too makes no difference between a cursor key
// and the number pad's with Num Lock off.
constexpr std::array namedKeys = {
    KeyRow{ Qt::Key_Cancel, 3 },
    KeyRow{ Qt::Key_Backspace, 8 },
    KeyRow{ Qt::Key_Tab, 9 },
    KeyRow{ Qt::Key_Backtab, 9 },
    KeyRow{ Qt::Key_Clear, 12 },
    KeyRow{ Qt::Key_Return, 13 },
    KeyRow{ Qt::Key_Enter, 13 },
    KeyRow{ Qt::Key_Shift, shiftKeyCode },
    KeyRow{ Qt::Key_Control, ctrlKeyCode },
    KeyRow{ Qt::Key_Alt, altKeyCode },
    KeyRow{ Qt::Key_AltGr, altKeyCode },
    KeyRow{ Qt::Key_Pause, pauseKeyCode },
    KeyRow{ Qt::Key_CapsLock, capsLockKeyCode },
    KeyRow{ Qt::Key_Kana_Lock, 21 },
    KeyRow{ Qt::Key_Hangul, 21 },
    KeyRow{ Qt::Key_Hangul_Hanja, 25 },
    KeyRow{ Qt::Key_Kanji, 25 },
    KeyRow{ Qt::Key_Escape, 27 },
    KeyRow{ Qt::Key_Henkan, 28 },
    KeyRow{ Qt::Key_Muhenkan, 29 },
    KeyRow{ Qt::Key_Mode_switch, 31 },
    KeyRow{ Qt::Key_Space, 32 },
    KeyRow{ Qt::Key_PageUp, 33 },
    KeyRow{ Qt::Key_PageDown, 34 },
    KeyRow{ Qt::Key_End, 35 },
    KeyRow{ Qt::Key_Home, 36 },
    KeyRow{ Qt::Key_Left, 37 },
    KeyRow{ Qt::Key_Up, 38 },
    KeyRow{ Qt::Key_Right, 39 },
    KeyRow{ Qt::Key_Down, 40 },
    KeyRow{ Qt::Key_Select, 41 },
    KeyRow{ Qt::Key_Printer, 42 },
    KeyRow{ Qt::Key_Execute, 43 },
    KeyRow{ Qt::Key_Print, 44 },
    KeyRow{ Qt::Key_SysReq, 44 },
    KeyRow{ Qt::Key_Insert, 45 },
    KeyRow{ Qt::Key_Delete, 46 },
    KeyRow{ Qt::Key_Help, 47 },
    KeyRow{ Qt::Key_Meta, 91 },
    KeyRow{ Qt::Key_Super_L, 91 },
    KeyRow{ Qt::Key_Super_R, 92 },
    KeyRow{ Qt::Key_Menu, 93 },
    KeyRow{ Qt::Key_Sleep, 95 },
    KeyRow{ Qt::Key_NumLock, 144 },
    KeyRow{ Qt::Key_ScrollLock, 145 },
    KeyRow{ Qt::Key_Back, 166 },
    KeyRow{ Qt::Key_Forward, 167 },
    KeyRow{ Qt::Key_Refresh, 168 },
    KeyRow{ Qt::Key_Stop, 169 },
    KeyRow{ Qt::Key_Search, 170 },
    KeyRow{ Qt::Key_Favorites, 171 },
    KeyRow{ Qt::Key_HomePage, 172 },
    KeyRow{ Qt::Key_VolumeMute, 173 },
    KeyRow{ Qt::Key_VolumeDown, 174 },
    KeyRow{ Qt::Key_VolumeUp, 175 },
    KeyRow{ Qt::Key_MediaNext, 176 },
    KeyRow{ Qt::Key_MediaPrevious, 177 },
    KeyRow{ Qt::Key_MediaStop, 178 },
    KeyRow{ Qt::Key_MediaPlay, 179 },
    KeyRow{ Qt::Key_MediaPause, 179 },
    KeyRow{ Qt::Key_MediaTogglePlayPause, 179 },
    KeyRow{ Qt::Key_LaunchMail, 180 },
    KeyRow{ Qt::Key_LaunchMedia, 181 },
    KeyRow{ Qt::Key_Launch0, 182 },
    KeyRow{ Qt::Key_Launch1, 183 },
    KeyRow{ Qt::Key_Play, 250 },
    KeyRow{ Qt::Key_Zoom, 251 },
};

// The number pad; the digits and the point only with Num Lock on.
constexpr std::array padKeys = {
    KeyRow{ Qt::Key_Asterisk, 106 }, KeyRow{ Qt::Key_Plus, 107 },  KeyRow{ Qt::Key_Minus, 109 },
    KeyRow{ Qt::Key_Period, 110 },   KeyRow{ Qt::Key_Comma, 110 }, KeyRow{ Qt::Key_Slash, 111 },
    KeyRow{ Qt::Key_Equal, 146 },
};
constexpr int firstPadDigit = 96;
constexpr int firstFunctionKey = 112;
constexpr int lastFunctionKey = 24;

// The keys with digits and signs by their place: the virtual key that a US keyboard has there.
struct PlaceRow {
    quint32 first; ///< the place of the first of them
    QStringView codes; ///< virtual keys, from left to right
};
constexpr std::array places = {
    PlaceRow{ 10, u"1234567890\u00BD\u00BB" }, // - =
    PlaceRow{ 24, u"QWERTYUIOP\u00DB\u00DD" }, // [ ]
    PlaceRow{ 38, u"ASDFGHJKL\u00BA\u00DE\u00C0" }, // ; ' `
    PlaceRow{ 51, u"\u00DCZXCVBNM\u00BC\u00BE\u00BF" }, // \ , . /
    PlaceRow{ 94, u"\u00E2" }, // the key between Shift and Z that US keyboards lack
};

// For a place that is not known: the key that has the sign on a US keyboard, with or without Shift.
struct SignRow {
    QStringView signs;
    int code;
};
constexpr std::array signsOfKeys = {
    SignRow{ u")", 48 },    SignRow{ u"!", 49 },   SignRow{ u"@", 50 },    SignRow{ u"#", 51 },
    SignRow{ u"$", 52 },    SignRow{ u"%", 53 },   SignRow{ u"^", 54 },    SignRow{ u"&", 55 },
    SignRow{ u"*", 56 },    SignRow{ u"(", 57 },   SignRow{ u";:", 186 },  SignRow{ u"=+", 187 },
    SignRow{ u",<", 188 },  SignRow{ u"-_", 189 }, SignRow{ u".>", 190 },  SignRow{ u"/?", 191 },
    SignRow{ u"`~", 192 },  SignRow{ u"[{", 219 }, SignRow{ u"\\|", 220 }, SignRow{ u"]}", 221 },
    SignRow{ u"'\"", 222 },
};

// X servers call the Windows keys by these symbols ...
constexpr quint32 rightSuperSymbol = 0xFFEC;
// ... and by these an Alt key that goes down or up while Shift is held. The toolkit gives both the
// same name.
constexpr quint32 leftMetaSymbol = 0xFFE7;
constexpr quint32 rightMetaSymbol = 0xFFE8;

bool isAltWithShift(const KeyStroke &stroke)
{
    return stroke.key == Qt::Key_Meta
        && (stroke.nativeCode == leftMetaSymbol || stroke.nativeCode == rightMetaSymbol);
}

std::optional<int> codeIn(std::span<const KeyRow> rows, Qt::Key key)
{
    const auto row = std::ranges::find(rows, key, &KeyRow::key);
    return row == rows.end() ? std::nullopt : std::optional(row->code);
}

bool isWithin(int key, int first, int last)
{
    return key >= first && key <= last;
}

std::optional<int> padCode(Qt::Key key)
{
    if (isWithin(key, Qt::Key_0, Qt::Key_9)) {
        return firstPadDigit + (key - Qt::Key_0);
    }
    return codeIn(padKeys, key);
}

std::optional<int> codeAt(quint32 place)
{
    for (const PlaceRow &row : places) {
        if (place >= row.first && place < row.first + quint32(row.codes.size())) {
            return row.codes[qsizetype(place - row.first)].unicode();
        }
    }
    return std::nullopt;
}

std::optional<int> codeOfSign(Qt::Key key)
{
    if (isWithin(key, Qt::Key_0, Qt::Key_9)) {
        return key;
    }
    const auto row = std::ranges::find_if(
        signsOfKeys, [key](const SignRow &each) { return each.signs.contains(QChar(key)); });
    const bool isSign = isWithin(key, ' ', '~') && row != signsOfKeys.end();
    return isSign ? std::optional(row->code) : std::nullopt;
}

} // namespace

int virtualKeyOfNative(quint32 nativeCode)
{
    constexpr quint32 leftShift = 160;
    constexpr quint32 rightAlt = 165;
    if (nativeCode >= leftShift && nativeCode <= rightAlt) {
        return shiftKeyCode + int(nativeCode - leftShift) / 2;
    }
    return nativeCode > 0 && nativeCode < unknownKeyCode ? int(nativeCode) : unknownKeyCode;
}

int virtualKeyOf(const KeyStroke &stroke)
{
    const Qt::Key key = stroke.key;
    if (stroke.modifiers & Qt::KeypadModifier) {
        if (const auto code = padCode(key)) {
            return *code;
        }
    }
    if (key == Qt::Key_Pause && (stroke.modifiers & Qt::ControlModifier)) {
        return *codeIn(namedKeys, Qt::Key_Cancel);
    }
    if (isAltWithShift(stroke)) {
        return altKeyCode;
    }
    if (key == Qt::Key_Meta && stroke.nativeCode == rightSuperSymbol) {
        return *codeIn(namedKeys, Qt::Key_Super_R);
    }
    if (const auto code = codeIn(namedKeys, key)) {
        return *code;
    }
    if (isWithin(key, Qt::Key_F1, Qt::Key_F1 + lastFunctionKey - 1)) {
        return firstFunctionKey + (key - Qt::Key_F1);
    }
    if (isWithin(key, Qt::Key_A, Qt::Key_Z)) {
        return key;
    }
    if (const auto code = codeAt(stroke.scanCode)) {
        return *code;
    }
    return codeOfSign(key).value_or(unknownKeyCode);
}

int shiftStateOf(const KeyStroke &stroke)
{
    int state = 0;
    if (stroke.modifiers & Qt::ShiftModifier) {
        state |= ShiftDown;
    }
    if (stroke.modifiers & Qt::ControlModifier) {
        state |= CtrlDown;
    }
    if (stroke.modifiers & Qt::AltModifier) {
        state |= AltDown;
    }
    if (stroke.modifiers & Qt::GroupSwitchModifier) {
        state |= CtrlDown | AltDown;
    }
    if (isAltWithShift(stroke)) {
        // The toolkit counts a modifier's own stroke, but took this one for the Windows key's.
        state ^= AltDown;
    }
    return state;
}

} // namespace zeph
