// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "platform/fakes/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace zeph;
using test::TempFolder;

namespace {

/// The mark of a program on another machine.
const QByteArray farAway = "4711\nzeph\nhangar\nfeedc0de\n0815\n";

void setAge(const TempFolder &folder, int seconds)
{
    QFile lock(folder.file(u"Zeph.lock"_s));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                                 QFileDevice::FileModificationTime));
}

/// Locks the folder, and answers the question, which is counted.
bool isTaken(const TempFolder &folder, bool answer, int &asked)
{
    return InstanceLock(folder.path(), InstanceLock::folderLock,
                        [&](const DoubtfulLock &lock) {
                            EXPECT_EQ(lock.hostName, u"hangar");
                            ++asked;
                            return answer;
                        })
        .isFirst();
}

} // namespace

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
    setAge(folder, 2);
    const InstanceLock next(folder.path());
    EXPECT_TRUE(next.isFirst());
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst());
}

TEST(InstanceLock, WhereNoLockCanBeMadeTheInstanceIsFirst)
{
    const TempFolder folder;
    EXPECT_TRUE(InstanceLock(folder.file(u"gone"_s)).isFirst());
}

TEST(InstanceLock, AnotherMachinesIsRespectedWhileItIsTouched)
{
    const TempFolder folder;
    folder.write(u"Zeph.lock"_s, farAway);
    setAge(folder, 9 * 60);
    int asked = 0;
    EXPECT_FALSE(isTaken(folder, true, asked));
    EXPECT_EQ(asked, 0);
}

TEST(InstanceLock, AnotherMachinesUntouchedOneIsTakenOverIfTheUserSaysSo)
{
    const TempFolder folder;
    folder.write(u"Zeph.lock"_s, farAway);
    setAge(folder, 11 * 60);
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst()) << "nobody was asked";
    int asked = 0;
    EXPECT_FALSE(isTaken(folder, false, asked));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(folder.read(u"Zeph.lock"_s), farAway);
    EXPECT_TRUE(isTaken(folder, true, asked));
    EXPECT_EQ(asked, 2);
}

TEST(InstanceLock, AnOwnerThatCameBackDuringTheQuestionKeepsIt)
{
    const TempFolder folder;
    folder.write(u"Zeph.lock"_s, farAway);
    setAge(folder, 11 * 60);
    const InstanceLock lock(folder.path(), InstanceLock::folderLock, [&](const DoubtfulLock &) {
        setAge(folder, 0);
        return true;
    });
    EXPECT_FALSE(lock.isFirst());
    EXPECT_EQ(folder.read(u"Zeph.lock"_s), farAway);
}

TEST(InstanceLock, ARunBeforeTheMachinesRestartHoldsNothing)
{
    const TempFolder folder;
    QList<QByteArray> lines;
    {
        const InstanceLock own(folder.path());
        lines = folder.read(u"Zeph.lock"_s).split('\n');
    }
    if (lines[4].isEmpty()) {
        GTEST_SKIP() << "this system tells no restart";
    }
    lines[4] = "earlier";
    folder.write(u"Zeph.lock"_s, lines.join('\n'));
    EXPECT_TRUE(InstanceLock(folder.path()).isFirst());
}

TEST(InstanceLock, ItsOwnerTouchesItAgainAndAgain)
{
    const TempFolder folder;
    const InstanceLock lock(folder.path(), InstanceLock::folderLock, {}, 10);
    setAge(folder, 3600);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return QFileInfo(folder.file(u"Zeph.lock"_s))
                   .lastModified()
                   .secsTo(QDateTime::currentDateTime())
            < 60;
    }));
}

TEST(InstanceLock, TheQuestionNamesTheHostAndTheMoment)
{
    ScriptedDialogs dialogs;
    dialogs.answer(u"Is somebody else at work?"_s, BoxButton::Yes);
    const MayTakeOver ask = askToTakeOver(dialogs, u"My settings are"_s);
    EXPECT_TRUE(ask({ u"hangar"_s, QDateTime(QDate(2024, 3, 5), QTime(9, 7)) }));
    const Box &box = dialogs.boxes().constFirst();
    EXPECT_TRUE(box.text.startsWith(u"My settings are in use by Zeph on \u201Changar\u201D"_s));
    EXPECT_TRUE(box.text.contains(u"05 March 2024, 9:07 AM"_s, Qt::CaseInsensitive));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
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
