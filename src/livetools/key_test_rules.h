// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the Key Tester does with each key, apart from the window that shows it.

#include "livetools/key_names.h"

namespace zeph {

/// What a key going down asks of the window, in this order.
struct KeyDownEffect {
    bool emergency = false; ///< the way out; nothing else of this counts then
    bool clearsLists = false;
    bool turnsOffCapsLock = false;
    QString eventText; ///< for the list of events, line end included
    QString keyText; ///< for the list of keys, line end included; may be empty
};

/// Follows the keys with the flags that join one to the next. Key codes are virtual keys, shift
/// states bits of ShiftBit.
class KeyTestRules
{
public:
    void setTable(const KeyTable &table) { m_table = table; }

    KeyDownEffect keyDown(int keycode, int shift);
    /// The text that a typed character adds to the list of keys; empty when it is not shown.
    QString keyPress(char16_t character);
    /// The line for the list of events.
    QString keyUp(int keycode);
    /// The clear delay has run out: the next key down starts with empty lists.
    void delayOver() { m_clearOnNextDown = true; }

private:
    KeyTable m_table;
    bool m_suppressNextPress = false;
    bool m_clearOnNextDown = false;
    bool m_firstKey = true;
};

/// The interval in milliseconds that a ClearDelay stands for, or none when the delay is off: -1, or
/// anything that is not an entry of the Clear menu.
std::optional<int> clearDelayMs(int clearDelay);
/// The Clear menu's intervals, by their index.
constexpr int clearDelayCount = 5;
constexpr int clearDelayStepMs = 200;
/// ClearDelay for "off".
constexpr int noClearDelay = -1;

} // namespace zeph
