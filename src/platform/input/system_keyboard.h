// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/input/keyboard.h"

namespace zeph {

/// The keyboard of the desktop. Windows and an X server are asked; elsewhere the locks are those
/// of the last key event, the layout is the input method's language, and neither can be changed.
class SystemKeyboard : public Keyboard
{
public:
    QString layoutName() const override;
    bool loadLayout(const QString &name) override;
    bool numLockOn() const override;
    bool capsLockOn() const override;
    bool turnOffCapsLock() override;
    void noteNativeModifiers(quint32 modifiers) override { m_nativeModifiers = modifiers; }

private:
    quint32 m_nativeModifiers = 0;
};

} // namespace zeph
