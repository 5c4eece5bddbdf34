// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <memory>

class QLockFile;

namespace zeph {

/// Tells whether a program is running from the same folder already. The lock goes with the process,
/// however it ends.
class InstanceLock
{
public:
    /// Tries to take the lock of a folder.
    explicit InstanceLock(const QString &folder);
    ~InstanceLock();

    /// False when another running process of this folder holds it.
    bool isFirst() const { return m_first; }

private:
    std::unique_ptr<QLockFile> m_lock;
    bool m_first = false;
};

} // namespace zeph
