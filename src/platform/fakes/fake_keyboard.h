// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/input/keyboard.h"

#include <QStringList>

namespace zeph {

/// A keyboard for tests: tells the layout and the locks that it was given and records what was
/// loaded and turned off.
class FakeKeyboard : public Keyboard
{
public:
    QString layout;
    /// What loadLayout() answers; a layout that was loaded is then in force.
    bool canLoad = true;
    QStringList loaded;

    bool numLock = false;
    bool capsLock = false;
    int timesCapsLockTurnedOff = 0;
    quint32 nativeModifiers = 0;

    QString layoutName() const override { return layout; }
    bool loadLayout(const QString &name) override
    {
        loaded.append(name);
        if (canLoad) {
            layout = name;
        }
        return canLoad;
    }
    bool numLockOn() const override { return numLock; }
    bool capsLockOn() const override { return capsLock; }
    bool turnOffCapsLock() override
    {
        ++timesCapsLockTurnedOff;
        capsLock = false;
        return true;
    }
    void noteNativeModifiers(quint32 modifiers) override { nativeModifiers = modifiers; }
};

} // namespace zeph
