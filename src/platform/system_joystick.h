// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/joystick.h"

#include <memory>

namespace zeph {

/// The controllers as SDL's joystick subsystem knows them; plugging in and out is noticed at the
/// next reading.
class SystemJoystick : public Joystick
{
public:
    SystemJoystick();
    ~SystemJoystick() override;

    JoystickReading read(int id) override;

private:
    struct Devices;
    std::unique_ptr<Devices> m_devices;
};

} // namespace zeph
