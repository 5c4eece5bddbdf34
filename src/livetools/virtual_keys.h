// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Key codes are those of Windows' virtual keys on every system, since joystick files, and the
// people who write them, use these.

#include "platform/core/base.h"

#include <Qt>

namespace zeph {

/// What the toolkit tells of a key that went down or up.
struct KeyStroke {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers = {};
    /// The key's place on the keyboard, as X servers and Wayland count; 0 when it is not known.
    quint32 scanCode = 0;
    /// The system's own code: a key symbol, or on Windows the virtual key itself.
    quint32 nativeCode = 0;
};

/// The bits of the shift state.
enum ShiftBit { ShiftDown = 1, CtrlDown = 2, AltDown = 4 };

constexpr int shiftKeyCode = 16;
constexpr int ctrlKeyCode = 17;
constexpr int altKeyCode = 18;
constexpr int pauseKeyCode = 19;
constexpr int capsLockKeyCode = 20;
/// The code for a key that is no virtual key.
constexpr int unknownKeyCode = 255;

/// The virtual key of a stroke. Keys with digits and signs are recognised by their place, so that
/// neither Shift nor the layout matters; letters by the letter; all others by a table. The left and
/// the right Shift, Ctrl and Alt are the same key.
int virtualKeyOf(const KeyStroke &stroke);
/// The same for systems whose own code is the virtual key.
int virtualKeyOfNative(quint32 nativeCode);

/// The shift state of a stroke, from ShiftBit. AltGr counts as Ctrl and Alt, as on Windows.
int shiftStateOf(const KeyStroke &stroke);

} // namespace zeph
