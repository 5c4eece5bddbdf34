// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/file_io.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

using namespace zeph;
using test::TempFolder;

namespace {

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}

#ifdef Q_OS_UNIX
/// An administrator may write everywhere: as long as this lives, the test is nobody.
class AsNobody
{
public:
    AsNobody()
    {
        if (m_was == 0) {
            m_done = seteuid(65534) == 0;
        }
    }
    ~AsNobody() { EXPECT_EQ(seteuid(m_was), 0); }
    bool isRestricted() const { return m_was != 0 || m_done; }

private:
    uid_t m_was = geteuid();
    bool m_done = false;
};

/// As long as this lives, no file grows beyond a size: what a full disk does.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit now{ bytes, m_limit.rlim_max };
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_limit{};
    void (*m_signal)(int) = SIG_DFL;
};
#endif

} // namespace

TEST(ReadWholeFile, GivesTheBytesAsTheyAre)
{
    const TempFolder folder;
    const QByteArray bytes("a\r\nb\0\xFF", 6);
    EXPECT_EQ(readWholeFile(folder.write(u"a.tmj"_s, bytes)).value(), bytes);
    EXPECT_EQ(readWholeFile(folder.write(u"empty.tmj"_s, "")).value(), QByteArray());
}

TEST(ReadWholeFile, AMissingFileGivesPathAndReason)
{
    const TempFolder folder;
    const auto read = readWholeFile(folder.file(u"none.tmj"_s));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().path, folder.file(u"none.tmj"_s));
    EXPECT_FALSE(read.error().reason.isEmpty());
}

TEST(ReadWholeFile, AFolderIsNoFile)
{
    const TempFolder folder;
    const auto read = readWholeFile(folder.path());
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().path, folder.path());
    EXPECT_FALSE(read.error().reason.isEmpty());
}

TEST(ReadWholeFile, NoPathIsNoFile)
{
    EXPECT_FALSE(readWholeFile(QString()));
    EXPECT_FALSE(writeFileAtomically(QString(), "new"));
}

TEST(WriteFileAtomically, MakesAndReplacesWithoutLeavingAnythingElse)
{
    const TempFolder folder;
    const QString path = folder.file(u"a.tmj"_s);
    ASSERT_TRUE(writeFileAtomically(path, "first, which is longer"));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "first, which is longer");
    ASSERT_TRUE(writeFileAtomically(path, "second"));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "second");
    EXPECT_EQ(entries(folder.path()), QStringList{ u"a.tmj"_s });
}

TEST(WriteFileAtomically, AnEmptyFileIsAFile)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    ASSERT_TRUE(writeFileAtomically(path, ""));
    EXPECT_EQ(folder.read(u"a.tmj"_s), "");
}

TEST(WriteFileAtomically, AVanishedFolderIsToldWithThePath)
{
    const TempFolder folder;
    const QString path = folder.file(u"gone/a.tmj"_s);
    const auto written = writeFileAtomically(path, "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, path);
    EXPECT_FALSE(written.error().reason.isEmpty());
    EXPECT_TRUE(entries(folder.path()).isEmpty());
}

TEST(WriteFileAtomically, AFolderIsNotReplaced)
{
    const TempFolder folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"a.tmj"_s));
    EXPECT_FALSE(writeFileAtomically(folder.file(u"a.tmj"_s), "new"));
    EXPECT_TRUE(QFileInfo(folder.file(u"a.tmj"_s)).isDir());
    EXPECT_EQ(entries(folder.path()).size(), 1);
}

TEST(WriteFileAtomically, ALongPathWithUmlautsIsReadAndReplaced)
{
    const TempFolder folder;
    QString path = folder.path();
    while (path.size() < 300) {
        path += u"/Übung mit Ä, Ö und Ü"_s;
    }
    ASSERT_TRUE(QDir().mkpath(path));
    const QString file = path + u"/Flug für Jürgen.tmj"_s;
    ASSERT_TRUE(writeFileAtomically(file, "old"));
    ASSERT_TRUE(writeFileAtomically(file, "new"));
    EXPECT_EQ(readWholeFile(file).value_or(QByteArray()), "new");
    FileBatch batch;
    ASSERT_TRUE(batch.add(file, "newer"));
    EXPECT_TRUE(batch.commit().empty());
    EXPECT_EQ(readWholeFile(file).value_or(QByteArray()), "newer");
    EXPECT_EQ(entries(path), QStringList{ u"Flug für Jürgen.tmj"_s });
}

TEST(WriteFileAtomically, AFileThatNobodyMayWriteStaysAsItIs)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
    const auto written = writeFileAtomically(path, "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, path);
    EXPECT_FALSE(written.error().reason.isEmpty());
    EXPECT_EQ(folder.read(u"a.tmj"_s), "old");
    EXPECT_EQ(entries(folder.path()).size(), 1);
}

#ifdef Q_OS_UNIX

TEST(WriteFileAtomically, KeepsThePermissionsOfTheFileThatItReplaces)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    const QByteArray native = QFile::encodeName(path);
    for (const mode_t mode : { mode_t(0640), mode_t(0666), mode_t(0755) }) {
        ASSERT_EQ(chmod(native.constData(), mode), 0);
        ASSERT_TRUE(writeFileAtomically(path, "new"));
        struct stat info = {};
        ASSERT_EQ(stat(native.constData(), &info), 0);
        EXPECT_EQ(info.st_mode & 07777, mode);
    }
}

TEST(WriteFileAtomically, WritesThroughALinkAndLeavesTheLink)
{
    const TempFolder folder;
    folder.write(u"real/a.tmj"_s, "old");
    ASSERT_TRUE(QFile::link(u"real/a.tmj"_s, folder.file(u"one.tmj"_s)));
    ASSERT_TRUE(QFile::link(u"one.tmj"_s, folder.file(u"two.tmj"_s)));
    ASSERT_TRUE(writeFileAtomically(folder.file(u"two.tmj"_s), "new"));
    EXPECT_TRUE(QFileInfo(folder.file(u"one.tmj"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(folder.file(u"two.tmj"_s)).isSymLink());
    EXPECT_EQ(folder.read(u"real/a.tmj"_s), "new");
    EXPECT_EQ(entries(folder.path()).size(), 3);
}

TEST(WriteFileAtomically, MakesTheFileBehindALinkThatLeadsNowhereYet)
{
    const TempFolder folder;
    ASSERT_TRUE(QFile::link(u"real.tmj"_s, folder.file(u"link.tmj"_s)));
    ASSERT_TRUE(writeFileAtomically(folder.file(u"link.tmj"_s), "new"));
    EXPECT_TRUE(QFileInfo(folder.file(u"link.tmj"_s)).isSymLink());
    EXPECT_EQ(folder.read(u"real.tmj"_s), "new");
}

TEST(WriteFileAtomically, LinksInACircleAreToldNotFollowedForever)
{
    const TempFolder folder;
    ASSERT_TRUE(QFile::link(u"b"_s, folder.file(u"a"_s)));
    ASSERT_TRUE(QFile::link(u"a"_s, folder.file(u"b"_s)));
    const auto written = writeFileAtomically(folder.file(u"a"_s), "new");
    ASSERT_FALSE(written);
    EXPECT_FALSE(written.error().reason.isEmpty());
}

TEST(WriteFileAtomically, WhatIsNoFileOfTheDiskIsNotReplaced)
{
    const TempFolder folder;
    const QString path = folder.file(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0666), 0);
    EXPECT_FALSE(writeFileAtomically(path, "new"));
    struct stat info = {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
}

TEST(WriteFileAtomically, AFullDiskLeavesTheOldFileAndNothingElse)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "old");
    Expected<void, FileError> written;
    {
        const FullDisk full(100000);
        written = writeFileAtomically(path, QByteArray(300000, 'x'));
    }
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, path);
    EXPECT_FALSE(written.error().reason.isEmpty());
    EXPECT_EQ(folder.read(u"a.tmj"_s), "old");
    EXPECT_EQ(entries(folder.path()), QStringList{ u"a.tmj"_s });
}

TEST(WriteFileAtomically, AFolderThatCannotBeWrittenFailsEvenIfTheFileCould)
{
    const TempFolder folder;
    const QString path = folder.write(u"ro/a.tmj"_s, "old");
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0666), 0);
    const QByteArray readOnly = QFile::encodeName(folder.file(u"ro"_s));
    ASSERT_EQ(chmod(readOnly.constData(), 0555), 0);
    Expected<void, FileError> written;
    {
        const AsNobody nobody;
        if (!nobody.isRestricted()) {
            GTEST_SKIP() << "cannot drop the right to write everywhere";
        }
        written = writeFileAtomically(path, "new");
    }
    ASSERT_EQ(chmod(readOnly.constData(), 0755), 0);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, path);
    EXPECT_FALSE(written.error().reason.isEmpty());
    EXPECT_EQ(folder.read(u"ro/a.tmj"_s), "old");
    EXPECT_EQ(entries(folder.file(u"ro"_s)), QStringList{ u"a.tmj"_s });
}

TEST(WriteFileAtomically, AProcessKilledAtAnyMomentLeavesTheOldOrTheNewFileWhole)
{
    const TempFolder folder;
    const QByteArray one(200000, '1');
    const QByteArray two(150000, '2');
    const QString path = folder.write(u"a.tmj"_s, one);
    for (int round = 0; round < 20; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                (void)writeFileAtomically(path, two);
                (void)writeFileAtomically(path, one);
            }
        }
        usleep(useconds_t(500 + 1700 * round));
        ASSERT_EQ(kill(child, SIGKILL), 0);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const QByteArray now = folder.read(u"a.tmj"_s);
        ASSERT_TRUE(now == one || now == two) << "size " << now.size();
    }
}

#endif

TEST(FileBatch, PutsAllFilesInPlaceAtOnceAndLeavesNothingElse)
{
    const TempFolder folder;
    folder.write(u"a"_s, "old");
    QFile::setPermissions(folder.file(u"a"_s), QFile::ReadOwner | QFile::WriteOwner);
    const QString longest(255, u'n');
    FileBatch batch;
    ASSERT_TRUE(batch.add(folder.file(u"a"_s), "new"));
    ASSERT_TRUE(batch.add(folder.file(u"b"_s), "other"));
    ASSERT_TRUE(batch.add(folder.file(longest), ""));
    EXPECT_EQ(folder.read(u"a"_s), "old");
    EXPECT_FALSE(folder.exists(u"b"_s));
    EXPECT_EQ(batch.size(), 3);
    EXPECT_TRUE(batch.commit().empty());
    EXPECT_EQ(batch.size(), 0);
    EXPECT_EQ(folder.read(u"a"_s), "new");
    EXPECT_EQ(folder.read(u"b"_s), "other");
    EXPECT_EQ(entries(folder.path()), (QStringList{ u"a"_s, u"b"_s, longest }));
#ifdef Q_OS_UNIX
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(folder.file(u"a"_s)), all);
#endif
}

TEST(FileBatch, WhatWasNotCommittedIsTakenBack)
{
    const TempFolder folder;
    folder.write(u"a"_s, "old");
    {
        FileBatch batch;
        ASSERT_TRUE(batch.add(folder.file(u"a"_s), "new"));
        ASSERT_TRUE(batch.add(folder.file(u"b"_s), "new"));
    }
    EXPECT_EQ(entries(folder.path()), QStringList{ u"a"_s });
    EXPECT_EQ(folder.read(u"a"_s), "old");
}

TEST(FileBatch, AFileThatCannotBePutInPlaceIsToldAndTheOthersAre)
{
    const TempFolder folder;
    FileBatch batch;
    ASSERT_TRUE(batch.add(folder.file(u"a"_s), "new"));
    ASSERT_TRUE(batch.add(folder.file(u"b"_s), "new"));
    QDir(folder.path()).mkdir(u"a"_s);
    const auto failed = batch.commit();
    ASSERT_EQ(failed.size(), 1);
    EXPECT_EQ(failed[0].path, folder.file(u"a"_s));
    EXPECT_FALSE(failed[0].reason.isEmpty());
    EXPECT_EQ(entries(folder.path()), (QStringList{ u"a"_s, u"b"_s }));
    EXPECT_FALSE(batch.add(folder.file(u"nowhere/c"_s), "new"));
}

TEST(ReplaceFile, AFileThatHoldsSomethingElseByNowIsLeftAlone)
{
    const TempFolder folder;
    const QString path = folder.write(u"a"_s, "new");
    const auto replaced = replaceFile(path, "old", "mine");
    ASSERT_TRUE(replaced);
    EXPECT_FALSE(*replaced);
    EXPECT_EQ(folder.read(u"a"_s), "new");
    EXPECT_EQ(entries(folder.path()), QStringList{ u"a"_s });
}

TEST(ReplaceFile, AFileThatHoldsWhatItHeldIsReplacedAndAMissingOneMade)
{
    const TempFolder folder;
    const QString path = folder.write(u"a"_s, "old");
    EXPECT_TRUE(replaceFile(path, "old", "mine").value_or(false));
    EXPECT_EQ(folder.read(u"a"_s), "mine");
    EXPECT_TRUE(replaceFile(folder.file(u"b"_s), {}, "mine").value_or(false));
    EXPECT_EQ(folder.read(u"b"_s), "mine");
}
