// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "platform/core/paths.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>

namespace zeph {

namespace {

/// Far more than a program needs between making its lock and writing its name into it.
constexpr qint64 namedWithinMs = 1000;

/// Whether a lock has lacked its owner's name for so long that the owner must have died before it
/// could write it. The toolkit takes such a lock for one that is held, for ever.
bool isNameless(const QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString application;
    const QDateTime made = QFileInfo(lock.fileName()).lastModified();
    return !lock.getLockInfo(&process, &host, &application)
        && made.msecsTo(QDateTime::currentDateTime()) > namedWithinMs;
}

} // namespace

InstanceLock::InstanceLock(const QString &folder)
    : m_lock(std::make_unique<QLockFile>(withClosingSeparator(folder) + u"Zeph.lock"_s))
{
    // A lock is held for a whole run, so its age says nothing; only the process's end frees it.
    m_lock->setStaleLockTime(0);
    const bool isMine = m_lock->tryLock(0)
        || (isNameless(*m_lock) && m_lock->removeStaleLockFile() && m_lock->tryLock(0));
    // Where no lock can be made at all, no other run has one either.
    m_first = isMine || m_lock->error() != QLockFile::LockFailedError;
}

InstanceLock::~InstanceLock() = default;

} // namespace zeph
