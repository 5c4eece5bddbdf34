// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

namespace zeph {

/// What the shell asks of the operating system.
class SystemInfo
{
public:
    virtual ~SystemInfo() = default;
    /// Windows with major version 6.
    virtual bool isVista() const;
};

} // namespace zeph
