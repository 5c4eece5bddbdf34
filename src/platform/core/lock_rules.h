// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Who holds a lock file, and whether that still counts. A lock can outlive its owner: a crash, a
// pulled stick or a lost network drive leaves it.

#include "platform/core/base.h"

#include <QDateTime>

namespace zeph {

/// What a lock file says about the program that made it.
struct LockMark {
    qint64 process = 0;
    QString hostName;
    /// The machine's own id and that of its present run; empty where the system gives none.
    QString machineId;
    QString bootId;

    friend bool operator==(const LockMark &, const LockMark &) = default;
};

/// Parses a lock file: the process, the program's name, the host's name, the machine's id and the
/// id of its run, a line each. No value for what is incomplete or something else.
std::optional<LockMark> readLockMark(const QByteArray &bytes);

/// What the judge of a lock sees from the own machine.
struct LockWitness {
    QString hostName;
    QString machineId;
    QString bootId;
    /// Whether a process with the mark's number runs on this machine.
    bool processRuns = false;
    QDateTime now;
};

enum class LockState {
    Held,
    Stale, ///< nobody holds it
    Doubtful ///< nobody has touched it for long: its owner may have ended, but nobody can know
};

/// An owner touches its lock this often.
constexpr int lockTouchMs = 60 * 1000;
/// After this time without a touch, a lock is doubtful.
constexpr qint64 lockDoubtfulMs = 10 * 60 * 1000;
/// A lock without a mark counts for this long, since its owner may be about to write the mark.
constexpr qint64 lockNamelessMs = 1000;

/// Judges a lock by its mark, which may be missing, and the time of its last touch. A touch in the
/// future comes from another clock and says as little as one long ago.
LockState judgeLock(const std::optional<LockMark> &mark, const QDateTime &touched,
                    const LockWitness &here);

} // namespace zeph
