// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// What one look at a joystick gave. Results, button bits and POV values are those of the
/// Windows multimedia joystick services on every system.
struct JoystickReading {
    /// 0 = answered; 165 = pulled out; anything else: not there or not readable.
    quint32 result = 0;
    /// One bit a button, from bit 0 on.
    quint32 buttons = 0;
    /// The first hat in hundredths of a degree, clockwise from up (0); 65535 = centred.
    quint32 pov = 65535;
};

/// The game controllers of the system, by their number from 0 on.
class Joystick
{
public:
    static constexpr quint32 answered = 0;
    static constexpr quint32 unplugged = 165;
    /// The result for a number that no controller ever had.
    static constexpr quint32 badId = 2;

    virtual ~Joystick() = default;
    /// Reads the controller's present state; never blocks.
    virtual JoystickReading read(int id) = 0;
};

} // namespace zeph
