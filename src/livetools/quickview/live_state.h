// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a look at the joystick says of the controls: which are pressed, and in which column.

#include "livetools/quickview/control_rows.h"
#include "platform/input/joystick.h"

#include <bitset>

namespace zeph {

/// One flag a control that the joystick can tell: that of a row is its number less 1.
inline constexpr size_t flagCount = 56;

struct LiveState {
    std::bitset<flagCount> pressed;
    int base = upBase; ///< of the dogfight switch: upBase, middleBase or downBase
    int io = letOut; ///< of S3: heldIn or letOut

    int column() const { return base + io; }
    friend bool operator==(const LiveState &, const LiveState &) = default;
};

/// The state of a reading that was answered. A hat at rest presses its M.
LiveState liveState(const JoystickReading &reading);

/// The state after a click on Label3(label): 0 to 2 for /U, /M and /D, 3 and 4 for /I and /O.
LiveState withClicked(LiveState state, int label);
/// Which of the labels Label3(0) to Label3(4) are lit in a state.
std::bitset<5> litLabels(const LiveState &state);

/// What is to be drawn after a state has become another.
struct StateChange {
    std::bitset<flagCount> turnsBold;
    std::bitset<flagCount> turnsPlain;
    bool column = false;

    bool isNothing() const { return turnsBold.none() && turnsPlain.none() && !column; }
};
StateChange changeOf(const LiveState &before, const LiveState &after);

/// What the status line says when a reading was not answered; empty when it was. The id counts from
/// 0.
QString lostJoystickText(quint32 result, int id);

} // namespace zeph
