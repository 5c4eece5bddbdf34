// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/lock_rules.h"

#include <functional>
#include <memory>

class QLockFile;
class QObject;

namespace zeph {

class Dialogs;

/// A lock whose owner may have ended.
struct DoubtfulLock {
    QString hostName;
    QDateTime touched;
};
/// Decides whether such a lock is taken over.
using MayTakeOver = std::function<bool(const DoubtfulLock &)>;

/// Asks the user. `what` names what the lock guards and begins the question's text.
MayTakeOver askToTakeOver(Dialogs &dialogs, const QString &what);

/// Tells whether a program has something for itself: one file in a folder says so, and is gone with
/// the object. Touches that file every minute while the event loop runs. The object may be made and
/// destroyed in any thread.
class InstanceLock
{
public:
    /// The name of a folder's lock.
    static constexpr QStringView folderLock = u"Zeph.lock";

    /// Tries to take the lock. Without mayTakeOver, a doubtful lock is left to its owner.
    explicit InstanceLock(const QString &folder, QStringView name = folderLock,
                          const MayTakeOver &mayTakeOver = {}, int touchMs = lockTouchMs);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    /// False when another program holds it. True where no lock can be made at all: then no other
    /// program has one either.
    bool isFirst() const { return m_first; }

private:
    bool take(const MayTakeOver &mayTakeOver);
    void touchEvery(int intervalMs);

    std::unique_ptr<QLockFile> m_lock;
    QObject *m_toucher = nullptr;
    bool m_first = false;
};

} // namespace zeph
