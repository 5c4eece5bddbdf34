// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/lock_rules.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const QDateTime lastTouch(QDate(2024, 3, 5), QTime(9, 0));
const LockMark ownerMark{ 4711, u"hangar"_s, u"machine"_s, u"boot"_s };

LockWitness sameMachine(qint64 untouchedMs, bool processRuns = true)
{
    return { ownerMark.hostName, ownerMark.machineId, ownerMark.bootId, processRuns,
             lastTouch.addMSecs(untouchedMs) };
}

constexpr qint64 oneMinuteMs = 60 * 1000;

} // namespace

TEST(LockMark, IsReadFromItsLines)
{
    EXPECT_EQ(readLockMark("4711\nzeph\nhangar\nmachine\nboot\n"), ownerMark);
    EXPECT_EQ(readLockMark("4711\nzeph\nhangar\n\n\n"), (LockMark{ 4711, u"hangar"_s, {}, {} }));
}

TEST(LockMark, WhatIsCutShortOrForeignIsNone)
{
    const QByteArray whole = "4711\nzeph\nhangar\nmachine\nboot\n";
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readLockMark(whole.first(length))) << length;
    }
    EXPECT_FALSE(readLockMark("hello\nzeph\nhangar\nmachine\nboot\n"));
    EXPECT_FALSE(readLockMark("-1\nzeph\nhangar\nmachine\nboot\n"));
}

TEST(JudgeLock, ARunningOwnerThatTouchesItHoldsIt)
{
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, sameMachine(oneMinuteMs)), LockState::Held);
}

TEST(JudgeLock, OnThisMachineItIsStaleAsSoonAsTheProcessIsGone)
{
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, sameMachine(0, false)), LockState::Stale);
}

TEST(JudgeLock, OnThisMachineItIsStaleAfterARestartThoughTheNumberRunsAgain)
{
    LockWitness here = sameMachine(0);
    here.bootId = u"later boot"_s;
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, here), LockState::Stale);
    here.bootId.clear();
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, here), LockState::Held) << "the system tells no boot";
}

TEST(JudgeLock, AnotherMachinesIsHeldForTenMinutesAndDoubtfulAfterThem)
{
    LockWitness here = sameMachine(10 * oneMinuteMs, false);
    here.hostName = u"stick's new home"_s;
    here.machineId = u"other"_s;
    here.bootId = u"other boot"_s;
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, here), LockState::Held);
    here.now = here.now.addMSecs(1);
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, here), LockState::Doubtful);
}

TEST(JudgeLock, TheOtherSystemOfADualBootIsAnotherMachine)
{
    LockWitness here = sameMachine(oneMinuteMs, false);
    here.machineId = u"other"_s;
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, here), LockState::Held);
}

TEST(JudgeLock, AnUntouchedOneIsDoubtfulEvenIfItsNumberRunsHere)
{
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, sameMachine(11 * oneMinuteMs)), LockState::Doubtful);
}

TEST(JudgeLock, ATouchFarInTheFutureKeepsNobodyOut)
{
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, sameMachine(-5 * oneMinuteMs)), LockState::Held);
    EXPECT_EQ(judgeLock(ownerMark, lastTouch, sameMachine(-11 * oneMinuteMs)), LockState::Doubtful);
}

TEST(JudgeLock, WithoutAMarkItHoldsForAMomentOnly)
{
    EXPECT_EQ(judgeLock({}, lastTouch, sameMachine(1000)), LockState::Held);
    EXPECT_EQ(judgeLock({}, lastTouch, sameMachine(1001)), LockState::Stale);
}
