// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/keyboard.h"

namespace zeph {

/// The keyboard of the desktop. Its layout can be told, but not changed by a program.
class SystemKeyboard : public Keyboard
{
public:
    QString layoutName() const override;
    bool loadLayout(const QString &name) override;
};

} // namespace zeph
