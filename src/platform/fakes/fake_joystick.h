// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/input/joystick.h"

#include <QList>

namespace zeph {

/// A joystick that gives the prepared reading and keeps the numbers that were asked for. A
/// recording is played one reading a look; after its end the last one stays.
class FakeJoystick : public Joystick
{
public:
    JoystickReading reading;
    QList<JoystickReading> recording;
    QList<int> asked;

    JoystickReading read(int id) override
    {
        asked.append(id);
        if (!recording.isEmpty()) {
            reading = recording.takeFirst();
        }
        return reading;
    }
};

} // namespace zeph
