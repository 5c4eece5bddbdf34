// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "platform/core/paths.h"

#include <QLockFile>

namespace zeph {

InstanceLock::InstanceLock(const QString &folder)
    : m_lock(std::make_unique<QLockFile>(withClosingSeparator(folder) + u"Zeph.lock"_s))
{
    // Age says nothing about a lock that is held for a whole session; the process's end does.
    m_lock->setStaleLockTime(0);
    // Where no lock can be made at all, nobody else has one either.
    m_first = m_lock->tryLock(0) || m_lock->error() != QLockFile::LockFailedError;
}

InstanceLock::~InstanceLock() = default;

} // namespace zeph
