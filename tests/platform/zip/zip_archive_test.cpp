// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/zip/zip_archive.h"

#include "platform/zip/zip_unpack.h"
#include "tests/support/temp_folder.h"
#include "tests/support/zips.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QRandomGenerator>

using namespace zeph;
using test::AnyZip;
using test::contentOf;
using test::run;

namespace {

using Overwrite = UnpackQuestions::Overwrite;

bool always(const QString &, int, int)
{
    return true;
}

class ZipTest : public testing::Test
{
protected:
    ZipTest() { QDir(folder.path()).mkdir(u"in"_s); }

    QString in() const { return folder.file(u"in"_s) + u'/'; }
    /// Unpacks the bytes into the folder "in"; asked and answered as the members say.
    UnpackReport unpack(const QByteArray &bytes, const UnpackLimits &limits = {})
    {
        auto zip = ZipReader::openBytes(bytes);
        if (!zip) {
            return { .damage = zip.error() };
        }
        return unpack(*zip, limits);
    }
    UnpackReport unpack(ZipReader &zip, const UnpackLimits &limits = {})
    {
        int expected = 0;
        return unpackZip(zip, in(),
                         { .overwrite =
                               [this](const QString &path) {
                                   asked.append(
                                       QDir::fromNativeSeparators(path.sliced(in().size())));
                                   return overwrite;
                               },
                           .goOn =
                               [this](qint64 bytes, qint64 entries) {
                                   limitsReached.append(bytes);
                                   entriesReached.append(entries);
                                   return limitsReached.size() <= goOnTimes;
                               },
                           .progress =
                               [this, &zip, &expected](const QString &, int done, int all) {
                                   EXPECT_EQ(done, expected++);
                                   EXPECT_EQ(all, zip.count());
                                   return ++steps != stopAt;
                               } },
                         limits);
    }
    /// All that lies in the folder of the test, below it, as "name" or "folder/name".
    QStringList everything() const
    {
        QStringList names;
        QDirIterator each(folder.path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                          QDirIterator::Subdirectories);
        while (each.hasNext()) {
            names.append(QDir(folder.path()).relativeFilePath(each.next()));
        }
        names.sort();
        return names;
    }

    test::TempFolder folder;
    QStringList asked;
    Overwrite overwrite = Overwrite::No;
    QList<qint64> limitsReached;
    QList<qint64> entriesReached;
    qsizetype goOnTimes = 0;
    int steps = 0;
    int stopAt = -1;
};

QByteArray noise(int size)
{
    QRandomGenerator random(42);
    QByteArray bytes(size, 0);
    for (char &byte : bytes) {
        byte = char(random.bounded(256));
    }
    return bytes;
}

} // namespace

TEST_F(ZipTest, AZipOfOursIsListedTestedAndUnpackedByUnzip)
{
    folder.write(u"p/My file.tmj"_s, "BTN S1 a\r\n");
    folder.write(u"p/Übung.tmm"_s, "a = b\r\n");
    folder.write(u"p/sub/picture.bmp"_s, noise(300'000));
    folder.write(u"p/empty.txt"_s, "");
    const QString zip = folder.file(u"p/p.zip"_s);
    ASSERT_EQ(packFolder(folder.file(u"p"_s) + u'/', zip, always), true);

    const auto tested = run(u"unzip"_s, { u"-t"_s, zip }, folder.path());
    EXPECT_TRUE(tested.ok) << tested.output.toStdString();
    EXPECT_TRUE(tested.output.contains(u"No errors detected"));
    const auto listed = run(u"unzip"_s, { u"-Z1"_s, zip }, folder.path());
    EXPECT_EQ(listed.output, u"empty.txt\nMy file.tmj\nsub/picture.bmp\nÜbung.tmm\n");
    ASSERT_TRUE(run(u"unzip"_s, { u"-q"_s, zip, u"-d"_s, u"in"_s }, folder.path()).ok);
    EXPECT_EQ(contentOf(in() + u"My file.tmj"_s), "BTN S1 a\r\n");
    EXPECT_EQ(contentOf(in() + u"Übung.tmm"_s), "a = b\r\n");
    EXPECT_EQ(contentOf(in() + u"sub/picture.bmp"_s), noise(300'000));
    EXPECT_EQ(contentOf(in() + u"empty.txt"_s), "");
}

TEST_F(ZipTest, AZipOfOursIsTestedBySevenZip)
{
    folder.write(u"p/a.tmj"_s, "BTN S1 a\r\n");
    const QString zip = folder.file(u"p.zip"_s);
    ASSERT_EQ(packFolder(folder.file(u"p"_s) + u'/', zip, always), true);
    const auto tested = run(u"7z"_s, { u"t"_s, zip }, folder.path());
    EXPECT_TRUE(tested.ok) << tested.output.toStdString();
}

TEST_F(ZipTest, AZipOfOursKeepsTheFilesTimes)
{
    const QString path = folder.write(u"p/a.tmj"_s, "x");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6)),
                     QFileDevice::FileModificationTime);
    file.close();
    ASSERT_EQ(packFolder(folder.file(u"p"_s) + u'/', folder.file(u"p.zip"_s), always), true);
    ASSERT_TRUE(run(u"unzip"_s, { u"-q"_s, u"p.zip"_s, u"-d"_s, u"in"_s }, folder.path()).ok);
    EXPECT_EQ(QFileInfo(in() + u"a.tmj"_s).lastModified(),
              QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6)));
}

TEST_F(ZipTest, PackingTellsWhereItIsAndCanBeStopped)
{
    for (int i = 0; i < 5; ++i) {
        folder.write(u"p/%1.txt"_s.arg(i), "x");
    }
    const QString zip = folder.write(u"p/p.zip"_s, "the old one");
    QStringList heard;
    const auto made = packFolder(folder.file(u"p"_s) + u'/', zip,
                                 [&heard](const QString &name, int done, int all) {
                                     heard.append(u"%1 %2/%3"_s.arg(name).arg(done).arg(all));
                                     return done < 2;
                                 });
    EXPECT_EQ(made, false);
    EXPECT_EQ(heard, (QStringList{ u"0.txt 0/5"_s, u"1.txt 1/5"_s, u"2.txt 2/5"_s }));
    EXPECT_EQ(contentOf(zip), "the old one");
    EXPECT_EQ(everything().size(), 8);
}

TEST_F(ZipTest, AnOldZipIsReplacedAndNotPackedIntoTheNewOne)
{
    folder.write(u"p/a.txt"_s, "x");
    QFile::link(u"/etc/passwd"_s, folder.file(u"p/link"_s));
    const QString zip = folder.write(u"p/P.zip"_s, "the old one");
    ASSERT_EQ(packFolder(folder.file(u"p"_s) + u'/', zip, always), true);
    EXPECT_EQ(run(u"unzip"_s, { u"-Z1"_s, zip }, folder.path()).output, u"a.txt\n");
}

TEST_F(ZipTest, AZipThatCannotBeMadeIsAnError)
{
    folder.write(u"p/a.txt"_s, "x");
    const auto made = packFolder(folder.file(u"p"_s) + u'/', folder.file(u"none/p.zip"_s), always);
    ASSERT_FALSE(made);
    EXPECT_TRUE(made.error().startsWith(folder.file(u"none/p.zip"_s)));
}

TEST_F(ZipTest, ZipsOfOtherProgramsAreOpened)
{
    const struct {
        QString program;
        QStringList arguments;
    } makers[] = {
        { u"zip"_s, { u"-q"_s, u"-r"_s, u"../made.zip"_s, u"."_s } },
        { u"zip"_s, { u"-q"_s, u"-0"_s, u"-r"_s, u"../made.zip"_s, u"."_s } },
        { u"7z"_s, { u"a"_s, u"-tzip"_s, u"../made.zip"_s, u"."_s } },
        { u"7z"_s, { u"a"_s, u"-tzip"_s, u"-mm=Copy"_s, u"../made.zip"_s, u"."_s } },
        { u"7z"_s, { u"a"_s, u"-tzip"_s, u"-mm=BZip2"_s, u"../made.zip"_s, u"."_s } },
        { u"7z"_s, { u"a"_s, u"-tzip"_s, u"-mm=LZMA"_s, u"../made.zip"_s, u"."_s } },
    };
    for (const auto &maker : makers) {
        SCOPED_TRACE((maker.program + maker.arguments.join(u' ')).toStdString());
        test::TempFolder from;
        from.write(u"p/My file.tmj"_s, "BTN S1 a\r\n");
        from.write(u"p/sub/Übung.tmm"_s, noise(100'000));
        const auto made = run(maker.program, maker.arguments, from.file(u"p"_s));
        ASSERT_TRUE(made.ok) << made.output.toStdString();
        auto zip = ZipReader::open(from.file(u"made.zip"_s));
        ASSERT_TRUE(zip) << zip.error().toStdString();
        QDir(in()).removeRecursively();
        QDir().mkdir(in());
        const UnpackReport report = unpack(*zip);
        EXPECT_EQ(report.damage, u"");
        EXPECT_TRUE(report.refused.isEmpty()) << report.refused.join(u'\n').toStdString();
        EXPECT_EQ(report.written.size(), 2);
        EXPECT_EQ(contentOf(in() + u"My file.tmj"_s), "BTN S1 a\r\n");
        EXPECT_EQ(contentOf(in() + u"sub/Übung.tmm"_s), noise(100'000));
    }
}

TEST_F(ZipTest, EntriesThatLeadOutsideAreRefusedOneByOneAndTheOthersUnpacked)
{
    AnyZip zip;
    zip.file("../up.txt", "x")
        .file("good.tmj", "a")
        .file("/absolute.txt", "x")
        .file("C:\\drive.txt", "x")
        .file("C:drive.txt", "x")
        .file("..\\back.txt", "x")
        .file("sub/../../deep.txt", "x")
        .file("sub\\fine.tmm", "b")
        .file("NUL", "x")
        .folder("../made/")
        .file("last.txt", "c");
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_EQ(report.damage, u"");
    EXPECT_EQ(report.refused.size(), 8) << report.refused.join(u'\n').toStdString();
    EXPECT_EQ(everything(),
              (QStringList{ u"in"_s, u"in/good.tmj"_s, u"in/last.txt"_s, u"in/sub"_s,
                            u"in/sub/fine.tmm"_s }));
}

TEST_F(ZipTest, LinksAreRefusedAndNothingIsWrittenThroughThem)
{
    QDir(folder.path()).mkdir(u"outside"_s);
    AnyZip zip;
    zip.link("out", "../outside").file("out/a.txt", "x").link("b.txt", "../outside/b.txt");
    zip.file("b.txt", "y");
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_EQ(
        report.refused,
        (QStringList{ u"out: it is a link, not a file"_s, u"b.txt: it is a link, not a file"_s }));
    EXPECT_EQ(
        everything(),
        (QStringList{ u"in"_s, u"in/b.txt"_s, u"in/out"_s, u"in/out/a.txt"_s, u"outside"_s }));
    EXPECT_FALSE(QFileInfo(in() + u"out"_s).isSymLink());
}

TEST_F(ZipTest, NothingIsWrittenThroughLinksThatAreThereAlready)
{
    QDir(folder.path()).mkdir(u"outside"_s);
    QFile::link(folder.file(u"outside"_s), in() + u"out"_s);
    QFile::link(folder.file(u"outside/b.txt"_s), in() + u"b.txt"_s);
    if (!QFileInfo(in() + u"b.txt"_s).isSymbolicLink()) {
        GTEST_SKIP() << "this system makes shortcuts, which are files";
    }
    AnyZip zip;
    zip.file("out/a.txt", "x").file("b.txt", "y").folder("out/sub");
    EXPECT_EQ(unpack(zip.bytes()).refused.size(), 3);
    EXPECT_TRUE(QDir(folder.file(u"outside"_s)).isEmpty());
}

TEST_F(ZipTest, AFileThatIsThereIsAskedAboutEachTime)
{
    folder.write(u"in/a.txt"_s, "mine");
    folder.write(u"in/b.txt"_s, "mine");
    AnyZip zip;
    zip.file("a.txt", "theirs").file("new.txt", "theirs").file("b.txt", "theirs");
    const QByteArray bytes = zip.bytes();
    UnpackReport report = unpack(bytes);
    EXPECT_EQ(asked, (QStringList{ u"a.txt"_s, u"b.txt"_s }));
    EXPECT_EQ(report.kept.size(), 2);
    EXPECT_EQ(contentOf(in() + u"a.txt"_s), "mine");
    EXPECT_EQ(contentOf(in() + u"new.txt"_s), "theirs");

    overwrite = Overwrite::Yes;
    report = unpack(bytes);
    EXPECT_EQ(report.written.size(), 3);
    EXPECT_EQ(contentOf(in() + u"b.txt"_s), "theirs");
}

TEST_F(ZipTest, ThePilotCanStopAtAQuestion)
{
    folder.write(u"in/a.txt"_s, "mine");
    overwrite = Overwrite::Stop;
    AnyZip zip;
    zip.file("a.txt", "theirs").file("new.txt", "theirs");
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_TRUE(report.stopped);
    EXPECT_EQ(everything(), (QStringList{ u"in"_s, u"in/a.txt"_s }));
    EXPECT_EQ(contentOf(in() + u"a.txt"_s), "mine");
}

TEST_F(ZipTest, NamesThatDifferOnlyInCaseAreOneFile)
{
    folder.write(u"in/ReadMe.txt"_s, "mine");
    folder.write(u"in/Sub/x.txt"_s, "mine");
    AnyZip zip;
    zip.file("README.TXT", "theirs").file("sub/X.TXT", "theirs").file("sub/new.txt", "n");
    unpack(zip.bytes());
    EXPECT_EQ(asked, (QStringList{ u"ReadMe.txt"_s, u"Sub/x.txt"_s }));
    EXPECT_EQ(everything(),
              (QStringList{ u"in"_s, u"in/ReadMe.txt"_s, u"in/Sub"_s, u"in/Sub/new.txt"_s,
                            u"in/Sub/x.txt"_s }));
}

TEST_F(ZipTest, ANameThatStandsTwiceInTheZipIsAskedAbout)
{
    AnyZip zip;
    zip.file("a.txt", "first").file("a.txt", "second").file("A.TXT", "third");
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_EQ(asked, (QStringList{ u"a.txt"_s, u"a.txt"_s }));
    EXPECT_EQ(report.written.size(), 1);
    EXPECT_EQ(contentOf(in() + u"a.txt"_s), "first");
}

TEST_F(ZipTest, ANulInANameHidesNothing)
{
    AnyZip zip;
    zip.file("evil.exeX.txt", "x").file("X../up.txt", "y");
    QByteArray bytes = zip.bytes();
    bytes.replace("evil.exeX", QByteArray("evil.exe\0", 9));
    bytes.replace("X../up.txt", QByteArray("\0../up.txt", 10));
    const UnpackReport report = unpack(bytes);
    // What the reader sees is the name up to the NUL, and that is also where the file goes.
    for (const QString &name : everything()) {
        EXPECT_TRUE(name == u"in" || name == u"in/evil.exe") << name.toStdString();
    }
    EXPECT_GE(report.refused.size(), 1);
}

TEST_F(ZipTest, FilesAndFoldersInEachOthersWayAreRefused)
{
    folder.write(u"in/thing"_s, "mine");
    QDir(in()).mkdir(u"place"_s);
    AnyZip zip;
    zip.file("thing/a.txt", "x").file("place", "x").folder("thing").file("ok.txt", "x");
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_EQ(report.refused.size(), 3);
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(contentOf(in() + u"thing"_s), "mine");
    EXPECT_EQ(contentOf(in() + u"ok.txt"_s), "x");
}

TEST_F(ZipTest, AReadOnlyFileStaysAsItIs)
{
    const QString path = folder.write(u"in/a.txt"_s, "mine");
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    overwrite = Overwrite::Yes;
    AnyZip zip;
    zip.file("a.txt", "theirs");
    EXPECT_EQ(unpack(zip.bytes()).refused,
              QStringList{ u"a.txt: a file of that name is read only"_s });
    EXPECT_EQ(contentOf(path), "mine");
}

TEST_F(ZipTest, ABombIsAskedAboutWhileItGrowsAndLeavesNothingWhenRefused)
{
    AnyZip zip;
    zip.file("small.txt", "x").file("bomb.txt", QByteArray(20'000'000, '\0')).file("last.txt", "x");
    const QByteArray bytes = zip.bytes();
    ASSERT_LT(bytes.size(), 100'000);
    const UnpackReport report = unpack(bytes, { .bytes = 1'000'000, .entries = 100 });
    EXPECT_TRUE(report.stopped);
    ASSERT_EQ(limitsReached.size(), 1);
    EXPECT_LT(limitsReached.first(), 1'200'000);
    EXPECT_EQ(everything(), (QStringList{ u"in"_s, u"in/small.txt"_s }));
}

TEST_F(ZipTest, WhoeverSaysGoOnIsAskedAgainAfterAsMuch)
{
    AnyZip zip;
    zip.file("big.txt", QByteArray(2'500'000, 'x')).file("last.txt", "x");
    goOnTimes = 2;
    const UnpackReport report = unpack(zip.bytes(), { .bytes = 1'000'000, .entries = 100 });
    EXPECT_FALSE(report.stopped);
    EXPECT_EQ(limitsReached.size(), 2);
    EXPECT_EQ(report.written.size(), 2);
}

TEST_F(ZipTest, ManyEntriesAreAskedAboutToo)
{
    AnyZip zip;
    for (int i = 0; i < 30; ++i) {
        zip.file(u"%1.txt"_s.arg(i).toUtf8().constData(), "x");
    }
    const UnpackReport report = unpack(zip.bytes(), { .bytes = 1'000'000, .entries = 10 });
    EXPECT_TRUE(report.stopped);
    EXPECT_EQ(report.written.size(), 10);
    EXPECT_EQ(entriesReached, QList<qint64>{ 11 });
}

TEST_F(ZipTest, TheEntriesAreCountedBeforehand)
{
    AnyZip zip;
    zip.file("a.txt", "x").folder("b").link("c", "a.txt").file("../d.txt", "x");
    const QByteArray bytes = zip.bytes();
    EXPECT_EQ(ZipReader::openBytes(bytes)->count(), 4);
    EXPECT_EQ(ZipReader::open(folder.write(u"a.zip"_s, bytes))->count(), 4);
}

TEST_F(ZipTest, UnpackingCanBeStopped)
{
    AnyZip zip;
    zip.file("a.txt", "x").file("b.txt", "x").file("c.txt", "x");
    stopAt = 2;
    const UnpackReport report = unpack(zip.bytes());
    EXPECT_TRUE(report.stopped);
    EXPECT_EQ(everything(), (QStringList{ u"in"_s, u"in/a.txt"_s }));
}

TEST_F(ZipTest, ADamagedEntryIsRefusedAndTheOthersUnpacked)
{
    folder.write(u"p/a.txt"_s, "nothing wrong here");
    folder.write(u"p/b.bmp"_s, noise(2000));
    folder.write(u"p/c.txt"_s, "nor here");
    ASSERT_TRUE(run(u"zip"_s,
                    { u"-q"_s, u"-0"_s, u"../p.zip"_s, u"a.txt"_s, u"b.bmp"_s, u"c.txt"_s },
                    folder.file(u"p"_s))
                    .ok);
    QByteArray bytes = contentOf(folder.file(u"p.zip"_s));
    const qsizetype inside = bytes.indexOf(noise(2000)) + 1000;
    ASSERT_GT(inside, 1000);
    bytes[inside] = char(bytes[inside] ^ 1);
    const UnpackReport report = unpack(bytes);
    ASSERT_EQ(report.refused.size(), 1);
    EXPECT_TRUE(report.refused.first().startsWith(u"b.bmp: "));
    EXPECT_EQ(contentOf(in() + u"c.txt"_s), "nor here");
    EXPECT_FALSE(QFileInfo::exists(in() + u"b.bmp"_s));
}

TEST_F(ZipTest, WhatIsNoZipIsAnError)
{
    EXPECT_FALSE(ZipReader::open(folder.file(u"none.zip"_s)));
    EXPECT_FALSE(unpack("this is no zip at all").damage.isEmpty());
    EXPECT_FALSE(unpack("").damage.isEmpty());
    AnyZip zip;
    zip.file("a.txt", "x");
    EXPECT_FALSE(unpack(zip.bytes().chopped(30)).damage.isEmpty());
    EXPECT_TRUE(QDir(in()).isEmpty());
}

TEST_F(ZipTest, AnEntryWithAPasswordIsRefused)
{
    folder.write(u"p/a.txt"_s, "secret");
    ASSERT_TRUE(run(u"zip"_s, { u"-q"_s, u"-P"_s, u"word"_s, u"../p.zip"_s, u"a.txt"_s },
                    folder.file(u"p"_s))
                    .ok);
    const UnpackReport report = unpack(contentOf(folder.file(u"p.zip"_s)));
    EXPECT_EQ(report.refused.size(), 1);
    EXPECT_TRUE(QDir(in()).isEmpty());
}

TEST_F(ZipTest, TenThousandSmallFilesAreUnpackedInUnderTenSeconds)
{
    constexpr int many = 10000;
    AnyZip zip;
    for (int i = 0; i < many; ++i) {
        // None of the names is there in any case, so that each has to be looked for.
        zip.file(u"Folder %1/File %2.txt"_s.arg(i % 3).arg(i).toLatin1().constData(), "BTN S1 a");
    }
    const QByteArray bytes = zip.bytes();
    goOnTimes = many;
    QElapsedTimer timer;
    timer.start();
    const UnpackReport report = unpack(bytes);
    EXPECT_LT(timer.elapsed(), 10000);
    EXPECT_EQ(report.written.size(), many);
    EXPECT_EQ(steps, many) << "each was shown";
    EXPECT_EQ(QDir(in() + u"Folder 1"_s).entryList(QDir::Files).size(), many / 3);
    EXPECT_EQ(contentOf(in() + u"Folder 0/File 9999.txt"_s), "BTN S1 a");
}

TEST_F(ZipTest, AnEntryThatSaysItIsTooLargeIsRefusedBeforeItIsRead)
{
    QByteArray bytes = AnyZip().file("huge.bin", "small").file("b.txt", "b").bytes();
    // The size when unpacked: before the file's bytes, and in the list at the zip's end.
    const std::pair<const char *, qsizetype> places[] = { { "PK\x03\x04", 22 },
                                                          { "PK\x01\x02", 24 } };
    const quint32 claimed = 1'100'000'000;
    for (const auto &[sign, offset] : places) {
        const qsizetype start = bytes.indexOf(sign);
        ASSERT_GE(start, 0);
        for (int i = 0; i < 4; ++i) {
            bytes[start + offset + i] = char(claimed >> (8 * i));
        }
    }
    const UnpackReport report = unpack(bytes);
    EXPECT_EQ(report.refused, QStringList{ u"huge.bin: it is too large"_s });
    EXPECT_EQ(report.written, QStringList{ in() + u"b.txt"_s });
    EXPECT_TRUE(limitsReached.isEmpty());
}

TEST_F(ZipTest, NothingButTheFilesIsLeftAfterAStop)
{
    stopAt = 3;
    const UnpackReport report =
        unpack(AnyZip().file("a", "1").file("b", "2").file("c", "3").file("d", "4").bytes());
    EXPECT_TRUE(report.stopped);
    EXPECT_EQ(everything(), (QStringList{ u"in"_s, u"in/a"_s, u"in/b"_s }));
}
