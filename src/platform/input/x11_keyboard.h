// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// The names of a layout list such as "us,de" with the variants ",nodeadkeys" beside it, as
/// "us" and "de(nodeadkeys)".
QStringList layoutNames(QStringView layouts, QStringView variants);

/// The keyboard of an X server, through its keyboard extension. The server's library is looked up
/// at run time: the toolkit has it loaded when there is a server to talk to, and without one it
/// need not be there.
class X11Keyboard
{
public:
    /// Null when the program does not run on an X server.
    static const X11Keyboard *get();

    QString layoutName() const;
    /// Chooses among the layouts that are set up; false when it is none of these.
    bool loadLayout(const QString &name) const;
    bool numLockOn() const;
    bool capsLockOn() const;
    bool turnOffCapsLock() const;

private:
    X11Keyboard();
    bool isUsable() const;
    bool isLocked(unsigned modifiers) const;
    QStringList layouts() const;

    struct Library;
    const Library &m_library;
};

} // namespace zeph
