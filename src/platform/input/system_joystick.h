// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/input/joystick.h"

#include <memory>

namespace zeph {

/// The controllers as SDL's joystick subsystem knows them. Nothing is set up before the first
/// reading; plugging in and out is noticed at the next one. A controller's number is its place in
/// the system's list when it was first seen, and stays its own: one that is pulled out leaves its
/// place empty and takes it again when it is put back.
class SystemJoystick : public Joystick
{
public:
    SystemJoystick();
    ~SystemJoystick() override;

    JoystickReading read(int id) override;

private:
    class Devices;
    std::unique_ptr<Devices> m_devices;
};

} // namespace zeph
