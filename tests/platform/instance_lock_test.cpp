// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace zeph;
using test::TempFolder;

TEST(InstanceLock, OnlyTheFirstOfAFolderIsFirst)
{
    const TempFolder folder;
    const TempFolder other;
    const InstanceLock first(folder.path());
    EXPECT_TRUE(first.isFirst());
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst());
    EXPECT_TRUE(InstanceLock(other.path()).isFirst());
}

TEST(InstanceLock, GoesWithItsOwner)
{
    const TempFolder folder;
    {
        const InstanceLock first(folder.path());
    }
    EXPECT_TRUE(InstanceLock(folder.path()).isFirst());
}

// Killed between the two, an owner leaves a lock without its name.
TEST(InstanceLock, ANamelessLockHoldsForAMomentOnly)
{
    const TempFolder folder;
    folder.write(u"Zeph.lock"_s, "");
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst());
    QFile lock(folder.file(u"Zeph.lock"_s));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-2),
                                 QFileDevice::FileModificationTime));
    lock.close();
    const InstanceLock next(folder.path());
    EXPECT_TRUE(next.isFirst());
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst());
}

TEST(InstanceLock, WhereNoLockCanBeMadeTheInstanceIsFirst)
{
    const TempFolder folder;
    EXPECT_TRUE(InstanceLock(folder.file(u"gone"_s)).isFirst());
}

#ifdef Q_OS_UNIX

TEST(InstanceLock, AnotherRunningProcessHoldsIt)
{
    const TempFolder folder;
    const InstanceLock first(folder.path());
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        _exit(InstanceLock(folder.path()).isFirst() ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST(InstanceLock, ACrashReleasesIt)
{
    const TempFolder folder;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const InstanceLock lock(folder.path());
        kill(getpid(), SIGKILL);
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_TRUE(folder.exists(u"Zeph.lock"_s));
    EXPECT_TRUE(InstanceLock(folder.path()).isFirst());
}

#endif
