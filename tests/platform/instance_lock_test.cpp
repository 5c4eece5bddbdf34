// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "platform/fakes/scripted_dialogs.h"
#include "tests/platform/started_copy.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QTest>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using namespace zeph;
using test::TempFolder;

namespace {

/// The mark of a program on another machine.
const QByteArray farAway = "4711\nzeph\nhangar\nfeedc0de\n0815\n";

#ifdef Q_OS_WIN

/// Windows lets nobody else write a lock that has an owner, but its time may be set.
void setAge(const TempFolder &folder, int seconds)
{
    const QString path = folder.file(u"Zeph.lock"_s);
    const HANDLE lock =
        CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), FILE_WRITE_ATTRIBUTES,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    constexpr quint64 ticksPerSecond = 10'000'000;
    const quint64 then =
        (quint64(now.dwHighDateTime) << 32 | now.dwLowDateTime) - quint64(seconds) * ticksPerSecond;
    const FILETIME time{ DWORD(then), DWORD(then >> 32) };
    EXPECT_TRUE(SetFileTime(lock, nullptr, nullptr, &time));
    CloseHandle(lock);
}

#else

void setAge(const TempFolder &folder, int seconds)
{
    QFile lock(folder.file(u"Zeph.lock"_s));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                                 QFileDevice::FileModificationTime));
}

#endif

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

namespace {

constexpr char folderVariable[] = "ZEPH_LOCKED_FOLDER";

} // namespace

// What the other program of the tests below does.
TEST(InstanceLockOwner, DISABLED_HoldsALockUntilItIsKilled)
{
    const QString folder = QFile::decodeName(qgetenv(folderVariable));
    const InstanceLock lock(folder);
    ASSERT_TRUE(lock.isFirst());
    QFile told(folder + u"/told"_s);
    ASSERT_TRUE(told.open(QFile::WriteOnly));
    told.close();
    QTest::qWait(test::copyStartsWithinMs);
}

TEST(InstanceLock, AnotherRunningProcessHoldsItAndACrashReleasesIt)
{
    const TempFolder folder;
    QProcess owner;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(folderVariable), folder.path());
    owner.setProcessEnvironment(environment);
    owner.setStandardOutputFile(QProcess::nullDevice());
    owner.start(test::copyProgram(), test::copyArguments(u"InstanceLockOwner.*"_s));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return folder.exists(u"told"_s); }, test::copyStartsWithinMs));
    EXPECT_FALSE(InstanceLock(folder.path()).isFirst());
    owner.kill();
    ASSERT_TRUE(owner.waitForFinished());
    EXPECT_TRUE(folder.exists(u"Zeph.lock"_s));
    EXPECT_TRUE(InstanceLock(folder.path()).isFirst());
}
