// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/input/joystick.h"

#include <QList>

namespace zeph {

/// A joystick that gives the prepared reading and keeps the numbers that were asked for.
class FakeJoystick : public Joystick
{
public:
    JoystickReading reading;
    QList<int> asked;

    JoystickReading read(int id) override
    {
        asked.append(id);
        return reading;
    }
};

} // namespace zeph
