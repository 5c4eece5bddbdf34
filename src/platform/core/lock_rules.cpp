// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/lock_rules.h"

#include <QList>

#include <cstdlib>

namespace zeph {

namespace {

/// The same host under another machine id is another system of a dual boot, or a container.
bool isOurMachine(const LockMark &mark, const LockWitness &here)
{
    return mark.hostName == here.hostName && mark.machineId == here.machineId;
}

bool hasRestarted(const LockMark &mark, const LockWitness &here)
{
    return !mark.bootId.isEmpty() && !here.bootId.isEmpty() && mark.bootId != here.bootId;
}

} // namespace

std::optional<LockMark> readLockMark(const QByteArray &bytes)
{
    const QList<QByteArray> lines = bytes.split('\n');
    // Every line ends with a line end, so that a mark cut short is told from a whole one.
    constexpr qsizetype wholeLines = 6;
    bool isNumber = false;
    const qint64 process = lines[0].toLongLong(&isNumber);
    if (lines.size() < wholeLines || !isNumber || process <= 0) {
        return std::nullopt;
    }
    return LockMark{ process, QString::fromUtf8(lines[2]), QString::fromLatin1(lines[3]),
                     QString::fromLatin1(lines[4]) };
}

LockState judgeLock(const std::optional<LockMark> &mark, const QDateTime &touched,
                    const LockWitness &here)
{
    const qint64 untouchedMs = std::abs(touched.msecsTo(here.now));
    if (!mark) {
        return untouchedMs > lockNamelessMs ? LockState::Stale : LockState::Held;
    }
    if (isOurMachine(*mark, here) && (hasRestarted(*mark, here) || !here.processRuns)) {
        return LockState::Stale;
    }
    return untouchedMs > lockDoubtfulMs ? LockState::Doubtful : LockState::Held;
}

} // namespace zeph
