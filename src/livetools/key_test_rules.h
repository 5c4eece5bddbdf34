// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the Key Tester shows for each key, apart from its window.

#include "livetools/key_names.h"
#include "menus/action_row.h"

namespace zeph {

/// What the window does when a key goes down; the members are in the order of doing.
struct KeyDownEffect {
    bool emergency = false; ///< Shift+Break: the window closes, and the rest does not count
    bool clearsLists = false;
    bool turnsOffCapsLock = false;
    QString eventText; ///< for the list of events, line end included
    QString keyText; ///< for the list of keys, line end included; may be empty
};

/// Decides what is shown for each key; what came before a key has a say in it. Key codes are
/// virtual keys, shift states bits of ShiftBit.
class KeyTestRules
{
public:
    void setTable(const KeyTable &table) { m_table = table; }

    KeyDownEffect keyDown(int keycode, int shift);
    /// The text that a typed character adds to the list of keys; empty when it is not shown.
    QString keyPress(char16_t character);
    /// The line for the list of events.
    QString keyUp(int keycode);
    /// Notes that the clear delay has run out: the next key that goes down clears the lists.
    void delayOver() { m_clearOnNextDown = true; }

private:
    KeyTable m_table;
    bool m_suppressNextPress = false;
    bool m_clearOnNextDown = false;
    bool m_firstKey = true;
};

/// The interval in milliseconds that a ClearDelay means. None for -1 and for every other number
/// that is no entry of the Clear menu: the lists are then never cleared by themselves.
std::optional<int> clearDelayMs(int clearDelay);
/// The Clear menu has so many intervals; entry i means (i + 1) steps.
constexpr int clearDelayCount = 5;
constexpr int clearDelayStepMs = 200;
/// ClearDelay for "off".
constexpr int noClearDelay = -1;

/// The Key Tester's menus. They are for the mouse alone: the window shows every key that reaches
/// it.
std::span<const MenuRow> keyTestMenus();
std::span<const ActionRow> keyTestActions();

} // namespace zeph
