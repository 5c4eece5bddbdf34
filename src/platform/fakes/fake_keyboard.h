// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/keyboard.h"

#include <QStringList>

namespace zeph {

/// A keyboard for tests: tells the layout that it was given and records what was loaded.
class FakeKeyboard : public Keyboard
{
public:
    QString layout;
    /// What loadLayout() answers; a layout that was loaded is then in force.
    bool canLoad = true;
    QStringList loaded;

    QString layoutName() const override { return layout; }
    bool loadLayout(const QString &name) override
    {
        loaded.append(name);
        if (canLoad) {
            layout = name;
        }
        return canLoad;
    }
};

} // namespace zeph
