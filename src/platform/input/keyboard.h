// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

namespace zeph {

/// The keyboard's state beyond single key events.
class Keyboard
{
public:
    virtual ~Keyboard() = default;
    /// Name of the layout in force; empty where the system does not tell.
    virtual QString layoutName() const = 0;
    /// Puts a layout back that layoutName() gave. False where the system does not let programs do
    /// that.
    virtual bool loadLayout(const QString &name) = 0;

    /// Whether the locks are on; false where the system does not tell.
    virtual bool numLockOn() const = 0;
    virtual bool capsLockOn() const = 0;
    /// Turns Caps Lock off. False where the system does not let programs do that.
    virtual bool turnOffCapsLock() = 0;
    /// Takes the native modifiers of a key event, which are all that some systems tell of the
    /// locks.
    virtual void noteNativeModifiers(quint32 modifiers) = 0;
};

} // namespace zeph
