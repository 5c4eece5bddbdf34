// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/virtual_keys.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct StrokeCase {
    const char *what;
    KeyStroke stroke;
    int code;
};

// Expected codes are those of the published list of virtual keys.
const StrokeCase strokes[] = {
    { "letters", { Qt::Key_A }, 0x41 },
    { "the letter decides, not the place", { Qt::Key_Q, {}, 38 }, 0x51 },
    { "a letter that no virtual key has stands for its place", { Qt::Key(0x6CA), {}, 24 }, 0x51 },
    { "digits", { Qt::Key_7 }, 0x37 },
    { "Shift+2 is the key of the 2", { Qt::Key_At, Qt::ShiftModifier, 11 }, 0x32 },
    { "on every layout", { Qt::Key_QuoteDbl, Qt::ShiftModifier, 11 }, 0x32 },
    { "a French 1 without Shift", { Qt::Key_Ampersand, {}, 10 }, 0x31 },
    { "the 0 key", { Qt::Key_ParenRight, Qt::ShiftModifier, 19 }, 0x30 },
    { "without a place, signs as on a US keyboard", { Qt::Key_At, Qt::ShiftModifier }, 0x32 },
    { "minus", { Qt::Key_Minus }, 0xBD },
    { "minus by its place", { Qt::Key_Minus, {}, 20 }, 0xBD },
    { "underscore", { Qt::Key_Underscore, Qt::ShiftModifier }, 0xBD },
    { "plus is the key of the equal sign", { Qt::Key_Plus, Qt::ShiftModifier }, 0xBB },
    { "semicolon", { Qt::Key_Semicolon, {}, 47 }, 0xBA },
    { "apostrophe", { Qt::Key_Apostrophe, {}, 48 }, 0xDE },
    { "grave", { Qt::Key_QuoteLeft, {}, 49 }, 0xC0 },
    { "backslash", { Qt::Key_Backslash, {}, 51 }, 0xDC },
    { "comma", { Qt::Key_Comma, {}, 59 }, 0xBC },
    { "slash", { Qt::Key_Slash, {}, 61 }, 0xBF },
    { "open bracket", { Qt::Key_BracketLeft, {}, 34 }, 0xDB },
    { "close bracket", { Qt::Key_BracketRight, {}, 35 }, 0xDD },
    { "the 102nd key", { Qt::Key_Less, {}, 94 }, 0xE2 },
    { "a dead key by its place", { Qt::Key_Dead_Circumflex, {}, 49 }, 0xC0 },
    { "number pad digit", { Qt::Key_0, Qt::KeypadModifier, 90 }, 0x60 },
    { "number pad 9", { Qt::Key_9, Qt::KeypadModifier, 81 }, 0x69 },
    { "number pad without Num Lock", { Qt::Key_Insert, Qt::KeypadModifier, 90 }, 0x2D },
    { "number pad 5 without Num Lock", { Qt::Key_Clear, Qt::KeypadModifier, 84 }, 0x0C },
    { "number pad times", { Qt::Key_Asterisk, Qt::KeypadModifier, 63 }, 0x6A },
    { "number pad plus", { Qt::Key_Plus, Qt::KeypadModifier, 86 }, 0x6B },
    { "number pad minus", { Qt::Key_Minus, Qt::KeypadModifier, 82 }, 0x6D },
    { "number pad point", { Qt::Key_Period, Qt::KeypadModifier, 91 }, 0x6E },
    { "its comma elsewhere", { Qt::Key_Comma, Qt::KeypadModifier, 91 }, 0x6E },
    { "number pad divide", { Qt::Key_Slash, Qt::KeypadModifier, 106 }, 0x6F },
    { "number pad Enter", { Qt::Key_Enter, Qt::KeypadModifier, 104 }, 0x0D },
    { "main Insert", { Qt::Key_Insert, {}, 118 }, 0x2D },
    { "Enter", { Qt::Key_Return }, 0x0D },
    { "Tab", { Qt::Key_Tab }, 0x09 },
    { "Shift+Tab", { Qt::Key_Backtab, Qt::ShiftModifier }, 0x09 },
    { "Shift, both", { Qt::Key_Shift, Qt::ShiftModifier, 62 }, 0x10 },
    { "Ctrl, both", { Qt::Key_Control, Qt::ControlModifier, 105 }, 0x11 },
    { "Alt", { Qt::Key_Alt, Qt::AltModifier, 64 }, 0x12 },
    { "AltGr is the right Alt", { Qt::Key_AltGr, {}, 108 }, 0x12 },
    { "Pause", { Qt::Key_Pause }, 0x13 },
    { "Shift+Pause stays Pause", { Qt::Key_Pause, Qt::ShiftModifier }, 0x13 },
    { "Ctrl+Pause is Break", { Qt::Key_Pause, Qt::ControlModifier }, 0x03 },
    { "Caps Lock", { Qt::Key_CapsLock }, 0x14 },
    { "Num Lock", { Qt::Key_NumLock }, 0x90 },
    { "Scroll Lock", { Qt::Key_ScrollLock }, 0x91 },
    { "F1", { Qt::Key_F1 }, 0x70 },
    { "F10", { Qt::Key_F10 }, 0x79 },
    { "F24", { Qt::Key_F24 }, 0x87 },
    { "F25 has none", { Qt::Key_F25 }, 255 },
    { "Page Up", { Qt::Key_PageUp }, 0x21 },
    { "Down", { Qt::Key_Down }, 0x28 },
    { "Print Screen", { Qt::Key_Print }, 0x2C },
    { "Alt+Print Screen", { Qt::Key_SysReq, Qt::AltModifier }, 0x2C },
    { "left Windows key", { Qt::Key_Meta, {}, 133, 0xFFEB }, 0x5B },
    { "right Windows key", { Qt::Key_Meta, {}, 134, 0xFFEC }, 0x5C },
    { "Alt while Shift is held", { Qt::Key_Meta, Qt::ShiftModifier, 64, 0xFFE7 }, 0x12 },
    { "the right Alt while Shift is held", { Qt::Key_Meta, Qt::ShiftModifier, 108, 0xFFE8 }, 0x12 },
    { "the Windows key while Shift is held",
      { Qt::Key_Meta, Qt::ShiftModifier, 133, 0xFFEB },
      0x5B },
    { "left Windows key by its symbol", { Qt::Key_Super_L }, 0x5B },
    { "right Windows key by its symbol", { Qt::Key_Super_R }, 0x5C },
    { "menu key", { Qt::Key_Menu }, 0x5D },
    { "a key that nobody knows", { Qt::Key_unknown }, 255 },
};

} // namespace

TEST(VirtualKeys, AreThoseOfWindows)
{
    for (const StrokeCase &each : strokes) {
        EXPECT_EQ(virtualKeyOf(each.stroke), each.code) << each.what;
    }
}

TEST(VirtualKeys, OfTheSystemItselfTellLeftAndRightModifiersAsOne)
{
    const std::pair<quint32, int> codes[] = {
        { 0xA0, 16 }, { 0xA1, 16 }, { 0xA2, 17 }, { 0xA3, 17 },    { 0xA4, 18 },  { 0xA5, 18 },
        { 0x10, 16 }, { 0x41, 65 }, { 0, 255 },   { 0x1000, 255 }, { 0xFE, 254 },
    };
    for (const auto &[native, code] : codes) {
        EXPECT_EQ(virtualKeyOfNative(native), code) << native;
    }
}

TEST(ShiftState, HasABitForEachModifier)
{
    const std::pair<Qt::KeyboardModifiers, int> states[] = {
        { {}, 0 },
        { Qt::ShiftModifier, 1 },
        { Qt::ControlModifier, 2 },
        { Qt::AltModifier, 4 },
        { Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier, 7 },
        { Qt::KeypadModifier | Qt::MetaModifier, 0 },
        { Qt::GroupSwitchModifier, 6 },
    };
    for (const auto &[modifiers, state] : states) {
        EXPECT_EQ(shiftStateOf({ Qt::Key_A, modifiers }), state);
    }
}
