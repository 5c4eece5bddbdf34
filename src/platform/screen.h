// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

namespace zeph {

/// What the shell asks of the screen.
class Screen
{
public:
    virtual ~Screen() = default;
    /// Logical pixels per inch; 96 is what windows are drawn for.
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
