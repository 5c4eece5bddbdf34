// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"
#include <QSize>

namespace zeph {

/// What the shell asks of the operating system.
class SystemInfo
{
public:
    virtual ~SystemInfo() = default;
    /// Windows with major version 6.
    virtual bool isVista() const;
};

/// The folder of Windows, without a closing separator: on Windows the system's own, elsewhere that
/// of the pilot's wine, and without wine the usual C:\Windows.
QString windowsFolder();

/// What the shell asks of the screen.
class Screen
{
public:
    virtual ~Screen() = default;
    /// Logical pixels per inch: 96 at the system's usual text size, for which the windows are made.
    virtual int logicalDpi() const = 0;
    /// Size of the first screen in device-independent pixels.
    virtual QSize size() const = 0;
};

/// The real screen, by way of the toolkit.
class PrimaryScreen : public Screen
{
public:
    int logicalDpi() const override;
    QSize size() const override;
};

} // namespace zeph
