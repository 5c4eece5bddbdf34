// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/system_joystick.h"

namespace zeph {

struct SystemJoystick::Devices {
};

SystemJoystick::SystemJoystick() = default;
SystemJoystick::~SystemJoystick() = default;

JoystickReading SystemJoystick::read(int)
{
    return { .result = badId };
}

} // namespace zeph
