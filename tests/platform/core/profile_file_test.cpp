// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_file.h"

#include "tests/support/cpu_time.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QThread>

using namespace zeph;
using test::TempFolder;

namespace {

QByteArray set(const QByteArray &file, const QString &section, const QString &key,
               const QString &value)
{
    return profile::withValue(file, { section, key, value });
}

} // namespace

TEST(ProfileValue, SectionsAndKeysAreFoundInAnyCase)
{
    const QByteArray file = "[FileLocations]\r\nShowTips=0\r\n[\xC4rger]\r\n\xDC=1\r\n";
    EXPECT_EQ(profile::value(file, u"FILELOCATIONS", u"showtips"), u"0"_s);
    EXPECT_EQ(profile::value(file, u"ärger", u"ü"), u"1"_s);
}

TEST(ProfileValue, AbsentSectionOrKeyHasNoValue)
{
    const QByteArray file = "[A]\nx=1\n[B]\ny=\n";
    EXPECT_EQ(profile::value(file, u"C", u"x"), std::nullopt);
    EXPECT_EQ(profile::value(file, u"B", u"x"), std::nullopt);
    EXPECT_EQ(profile::value(file, u"B", u"y"), QString());
    EXPECT_EQ(profile::value("", u"B", u"y"), std::nullopt);
}

TEST(ProfileValue, BlanksAroundKeyAndValueAreDropped)
{
    const QByteArray file = " [ A ] \n \tx\t = \t one two \t\n";
    EXPECT_EQ(profile::value(file, u"A", u"x"), u"one two"_s);
}

TEST(ProfileValue, OnePairOfEqualQuotesIsDropped)
{
    const QByteArray file = "[A]\na=\" x \"\nb='y'\nc=\"\"z\"\"\nd=\"w'\ne=\"\nf=\"\"\n";
    EXPECT_EQ(profile::value(file, u"A", u"a"), u" x "_s);
    EXPECT_EQ(profile::value(file, u"A", u"b"), u"y"_s);
    EXPECT_EQ(profile::value(file, u"A", u"c"), u"\"z\""_s);
    EXPECT_EQ(profile::value(file, u"A", u"d"), u"\"w'"_s);
    EXPECT_EQ(profile::value(file, u"A", u"e"), u"\""_s);
    EXPECT_EQ(profile::value(file, u"A", u"f"), QString());
}

TEST(ProfileValue, TheFirstOfTwoSectionsOrKeysCounts)
{
    const QByteArray file = "[A]\nx=1\nx=2\n[A]\nx=3\ny=4\n";
    EXPECT_EQ(profile::value(file, u"A", u"x"), u"1"_s);
    EXPECT_EQ(profile::value(file, u"A", u"y"), std::nullopt);
}

TEST(ProfileValue, CommentsAndLinesBeforeTheFirstSectionAreIgnored)
{
    const QByteArray file = "x=0\n[A]\n;x=1\n  ; x=2\nx=3;4\n";
    EXPECT_EQ(profile::value(file, u"A", u"x"), u"3;4"_s);
    EXPECT_EQ(profile::value(file, u"", u"x"), std::nullopt);
    EXPECT_EQ(profile::value(file, u"A", u";x"), std::nullopt);
}

TEST(ProfileValue, EachKindOfLineEndPartsLines)
{
    const QByteArray file = "[A]\rx=1\ny=2\r\nz=3";
    EXPECT_EQ(profile::value(file, u"A", u"x"), u"1"_s);
    EXPECT_EQ(profile::value(file, u"A", u"y"), u"2"_s);
    EXPECT_EQ(profile::value(file, u"A", u"z"), u"3"_s);
}

TEST(ProfileValue, AMissingClosingBracketIsTolerated)
{
    EXPECT_EQ(profile::value("[A\nx=1\n", u"A", u"x"), u"1"_s);
    EXPECT_EQ(profile::value("[A] and more\nx=1\n", u"A", u"x"), u"1"_s);
}

TEST(ProfileValue, AByteOrderMarkHidesNothing)
{
    EXPECT_EQ(profile::value("\xEF\xBB\xBF[A]\r\nx=1\r\n", u"A", u"x"), u"1"_s);
}

TEST(ProfileValue, OnlyTheFirstEqualSignParts)
{
    EXPECT_EQ(profile::value("[A]\nx=a=b\n", u"A", u"x"), u"a=b"_s);
}

TEST(ProfileValue, ALineWithoutEqualSignIsNoKey)
{
    EXPECT_EQ(profile::value("[A]\nx\n", u"A", u"x"), std::nullopt);
}

TEST(ProfileValue, AValueEndsAtItsFirstNul)
{
    EXPECT_EQ(profile::value(QByteArray("[A]\nx=ab\0cd\ny=2\n", 16), u"A", u"x"), u"ab"_s);
    EXPECT_EQ(profile::value(QByteArray("[A]\nx=ab\0cd\ny=2\n", 16), u"A", u"y"), u"2"_s);
}

TEST(ProfileValue, HugeLinesAreReadWhole)
{
    const QByteArray file = "[A]\nx=" + QByteArray(1000000, 'v') + "\ny=1\n";
    EXPECT_EQ(profile::value(file, u"A", u"x")->size(), 1000000);
    EXPECT_EQ(profile::value(file, u"A", u"y"), u"1"_s);
}

TEST(ProfileWrite, ReplacesOnlyTheValue)
{
    const QByteArray file = "; mine\r\n[A]\r\n  X = old\t\r\nunknown\r\n\r\n[B]\r\nX=1\r\n";
    EXPECT_EQ(set(file, u"a"_s, u"x"_s, u"new"_s),
              "; mine\r\n[A]\r\n  X = new\r\nunknown\r\n\r\n[B]\r\nX=1\r\n");
}

TEST(ProfileWrite, AddsAKeyAtItsSectionsEndBeforeTheEmptyLines)
{
    EXPECT_EQ(set("[A]\nx=1\n\n\n[B]\n", u"A"_s, u"y"_s, u"2"_s), "[A]\nx=1\ny=2\n\n\n[B]\n");
    EXPECT_EQ(set("[A]\n[B]\n", u"A"_s, u"y"_s, u"2"_s), "[A]\ny=2\n[B]\n");
}

TEST(ProfileWrite, AddsASectionAtTheFilesEnd)
{
    EXPECT_EQ(set("[A]\nx=1", u"B"_s, u"y"_s, u"2"_s), "[A]\nx=1\n[B]\ny=2\n");
    EXPECT_EQ(set("[A]\nx=1\n", u"B"_s, u"y"_s, u"2"_s), "[A]\nx=1\n[B]\ny=2\n");
}

TEST(ProfileWrite, ANewFileHasCrLf)
{
    EXPECT_EQ(set("", u"A"_s, u"x"_s, u"1"_s), "[A]\r\nx=1\r\n");
}

TEST(ProfileWrite, NewLinesHaveTheFilesOwnLineEnd)
{
    EXPECT_EQ(set("[A]\rx=1\r", u"A"_s, u"y"_s, u"2"_s), "[A]\rx=1\ry=2\r");
    EXPECT_EQ(set("[A]\r\nx=1", u"A"_s, u"y"_s, u"2"_s), "[A]\r\nx=1\r\ny=2\r\n");
    EXPECT_EQ(set("\xEF\xBB\xBF", u"A"_s, u"x"_s, u"1"_s), "\xEF\xBB\xBF[A]\r\nx=1\r\n");
}

TEST(ProfileWrite, WritesIntoTheFirstOfTwoSections)
{
    EXPECT_EQ(set("[A]\nx=1\n[a]\ny=2\n", u"A"_s, u"y"_s, u"3"_s), "[A]\nx=1\ny=3\n[a]\ny=2\n");
}

TEST(ProfileWrite, AnOutCommentedKeyIsNotReplaced)
{
    EXPECT_EQ(set("[A]\n;x=1\n", u"A"_s, u"x"_s, u"2"_s), "[A]\n;x=1\nx=2\n");
}

TEST(ProfileWrite, ValuesThatAReadWouldTrimAreQuoted)
{
    for (const QString &value : { u" x"_s, u"x\t"_s, u"\"x\""_s, u"'x'"_s, u" "_s, u"\"\""_s,
                                  u"\""_s, u"x\"y"_s, u"a=b;c"_s, u"[x]"_s, u";x"_s, QString() }) {
        const QByteArray file = set("[A]\nx=old\n", u"A"_s, u"x"_s, value);
        EXPECT_EQ(profile::value(file, u"A", u"x"), value) << value.toStdString();
    }
    EXPECT_EQ(set("[A]\nx=1\n", u"A"_s, u"x"_s, u"plain text"_s), "[A]\nx=plain text\n");
    EXPECT_EQ(set("[A]\nx=1\n", u"A"_s, u"x"_s, u" y"_s), "[A]\nx=\" y\"\n");
}

TEST(ProfileWrite, TheSameValueChangesNothing)
{
    const QByteArray file = "[A]\nx = \"1\" \n";
    EXPECT_EQ(set(file, u"A"_s, u"x"_s, u"1"_s), file);
}

TEST(ProfileWrite, AValueIsCutAtItsFirstLineEndOrNul)
{
    EXPECT_EQ(set("", u"A"_s, u"x"_s, u"1\r\n[B]"_s), "[A]\r\nx=1\r\n");
    EXPECT_EQ(set("", u"A"_s, u"x"_s, u"1\0002"_s), "[A]\r\nx=1\r\n");
}

TEST(ProfileWrite, NamesThatNoLineCanHoldChangeNothing)
{
    const QByteArray file = "[A]\nx=1\n";
    EXPECT_EQ(set(file, u"A"_s, u"a=b"_s, u"1"_s), file);
    EXPECT_EQ(set(file, u"A"_s, u";a"_s, u"1"_s), file);
    EXPECT_EQ(set(file, u"A"_s, u"[a"_s, u"1"_s), file);
    EXPECT_EQ(set(file, u"A"_s, QString(), u"1"_s), file);
    EXPECT_EQ(set(file, u"A]B"_s, u"a"_s, u"1"_s), file);
    EXPECT_EQ(set(file, u"A"_s, u"a\nb"_s, u"1"_s), file);
    EXPECT_EQ(set(file, u"Ж"_s, u"a"_s, u"1"_s), file);
}

TEST(ProfileInteger, ReadsSignAndLeadingDigits)
{
    EXPECT_EQ(profile::integerOf(u"12"_s, 7), 12);
    EXPECT_EQ(profile::integerOf(u"-12 twips"_s, 7), -12);
    EXPECT_EQ(profile::integerOf(u"+3"_s, 7), 3);
    EXPECT_EQ(profile::integerOf(u"3.9"_s, 7), 3);
    EXPECT_EQ(profile::integerOf(u" \t-4 "_s, 7), -4);
    EXPECT_EQ(profile::integerOf(u"  "_s, 7), 0);
}

TEST(ProfileInteger, NoDigitsGiveZeroAndAnEmptyOrAbsentValueTheDefault)
{
    EXPECT_EQ(profile::integerOf(u"none"_s, 7), 0);
    EXPECT_EQ(profile::integerOf(u"-"_s, 7), 0);
    EXPECT_EQ(profile::integerOf(QString(), 7), 7);
    EXPECT_EQ(profile::integerOf(std::nullopt, 7), 7);
}

TEST(ProfileInteger, WrapsAt32Bits)
{
    EXPECT_EQ(profile::integerOf(u"2147483647"_s, 0), 2147483647);
    EXPECT_EQ(profile::integerOf(u"-2147483648"_s, 0), -2147483647 - 1);
    EXPECT_EQ(profile::integerOf(u"2147483648"_s, 0), -2147483647 - 1);
    EXPECT_EQ(profile::integerOf(u"4294967297"_s, 0), 1);
}

TEST(ProfileFile, AMissingFileReadsAsEmptyAndIsMadeByTheFirstWrite)
{
    const TempFolder folder;
    const ProfileFile file(folder.file(u"Zeph.ini"_s));
    EXPECT_EQ(file.text(u"A", u"x", u"default"_s), u"default"_s);
    EXPECT_EQ(file.integer(u"A", u"x", 5), 5);
    EXPECT_FALSE(folder.exists(u"Zeph.ini"_s));
    ASSERT_TRUE(file.write({ u"A"_s, u"x"_s, u"1"_s }));
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[A]\r\nx=1\r\n");
}

TEST(ProfileFile, ABufferHoldsOneCharacterLessThanItsSize)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "[A]\nx=" + QByteArray(600, 'v') + "\n");
    const ProfileFile file(folder.file(u"Zeph.ini"_s));
    EXPECT_EQ(file.text(u"A", u"x").size(), 499);
    EXPECT_EQ(file.text(u"A", u"x", {}, profileColourBuffer).size(), 49);
}

TEST(ProfileFile, AnEmptyValueIsNotTheDefault)
{
    const TempFolder folder;
    folder.write(u"Zeph.ini"_s, "[A]\nx=\n");
    EXPECT_EQ(ProfileFile(folder.file(u"Zeph.ini"_s)).text(u"A", u"x", u"default"_s), QString());
}

TEST(ProfileFile, EachReadSeesWhatAnotherProgramWrote)
{
    const TempFolder folder;
    const ProfileFile file(folder.write(u"HOTAS.ini"_s, "[Compiler]\nStatus=\n"));
    EXPECT_EQ(file.text(u"Compiler", u"Status"), QString());
    folder.write(u"HOTAS.ini"_s, "[Compiler]\nStatus=OKAY\n");
    EXPECT_EQ(file.text(u"Compiler", u"Status"), u"OKAY"_s);
}

TEST(ProfileFile, ManyValuesGoInOneReplacement)
{
    const TempFolder folder;
    const ProfileFile file(folder.write(u"Zeph.ini"_s, "[A]\nx=1\nkept=yes\n"));
    ASSERT_TRUE(file.write(QList<ProfileEntry>{
        { u"A"_s, u"x"_s, u"2"_s }, { u"B"_s, u"y"_s, u"3"_s }, { u"A"_s, u"z"_s, u"4"_s } }));
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[A]\nx=2\nkept=yes\nz=4\n[B]\ny=3\n");
}

TEST(ProfileFile, NoEntriesWriteNothing)
{
    const TempFolder folder;
    const ProfileFile file(folder.file(u"Zeph.ini"_s));
    ASSERT_TRUE(file.write(QList<ProfileEntry>{}));
    EXPECT_FALSE(folder.exists(u"Zeph.ini"_s));
}

TEST(ProfileFile, AMissingFolderIsToldWithPathAndReason)
{
    const TempFolder folder;
    const QString path = folder.file(u"gone/Zeph.ini"_s);
    const auto written = ProfileFile(path).write({ u"A"_s, u"x"_s, u"1"_s });
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().path, QDir::toNativeSeparators(path));
    EXPECT_FALSE(written.error().reason.isEmpty());
}

TEST(ProfileFile, AFileOfAnotherCaseIsTheSameFile)
{
    const TempFolder folder;
    folder.write(u"hotas.INI"_s, "[A]\nx=1\n");
    const ProfileFile file(folder.file(u"HOTAS.ini"_s));
    EXPECT_EQ(file.text(u"A", u"x"), u"1"_s);
    ASSERT_TRUE(file.write({ u"A"_s, u"x"_s, u"2"_s }));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{ u"hotas.INI"_s });
    EXPECT_EQ(folder.read(u"hotas.INI"_s), "[A]\nx=2\n");
}

TEST(ProfileFile, AValueThatTheCodePageLacksIsToldAndTheOthersAreWritten)
{
    const TempFolder folder;
    const ProfileFile file(folder.write(u"Zeph.ini"_s, "[A]\nx=old\ny=old\n"));
    const auto written = file.write(
        QList<ProfileEntry>{ { u"A"_s, u"x"_s, u"Жук"_s }, { u"A"_s, u"y"_s, u"new"_s } });
    ASSERT_FALSE(written);
    EXPECT_TRUE(written.error().reason.contains(u"x"_s));
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[A]\nx=old\ny=new\n");
}

TEST(ProfileFile, AProtectedFileIsToldAndStaysAsItIs)
{
    const TempFolder folder;
    const QString path = folder.write(u"Zeph.ini"_s, "[A]\nx=1\n");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
    EXPECT_FALSE(ProfileFile(path).write({ u"A"_s, u"x"_s, u"2"_s }));
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[A]\nx=1\n");
}

TEST(ProfileFile, AFolderInItsPlaceIsNotReplaced)
{
    const TempFolder folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Zeph.ini"_s));
    const ProfileFile file(folder.file(u"Zeph.ini"_s));
    EXPECT_EQ(file.text(u"A", u"x", u"default"_s), u"default"_s);
    EXPECT_FALSE(file.write({ u"A"_s, u"x"_s, u"2"_s }));
}

TEST(ProfileSet, ManyValuesAtOnceAreWhatOneAfterTheOtherGives)
{
    const QByteArray files[] = { "",
                                 "x",
                                 "[A]",
                                 "[A]\nx=1",
                                 "\xEF\xBB\xBF",
                                 "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n[a]\r\nz=3\r\n",
                                 "[B]\n\n\n",
                                 "[A]\nx = ' q'\n;y=1\n[B]" };
    const QList<ProfileEntry> entries = {
        { u"B"_s, u"y"_s, u"new"_s },    { u"A"_s, u"X"_s, u"other"_s },
        { u"A"_s, u"added"_s, u"1"_s },  { u"C"_s, u"first"_s, u"1"_s },
        { u"a"_s, u"also"_s, u" 2 "_s }, { u"c"_s, u"second"_s, u"2"_s },
        { u"A"_s, u"x"_s, u"last"_s },   { u"A"_s, u"no=key"_s, u"1"_s },
    };
    for (const QByteArray &file : files) {
        QByteArray oneByOne = file;
        for (const ProfileEntry &entry : entries) {
            oneByOne = profile::withValue(oneByOne, entry);
        }
        EXPECT_EQ(profile::withValues(file, entries), oneByOne) << file.toStdString();
    }
}

TEST(ProfileFile, HugeFilesAreReadAndWrittenInTimeThatGrowsWithTheirLength)
{
    const TempFolder folder;
    const QByteArray middles[] = { QByteArray(10'000'000, '\n'),
                                   QByteArray("a=b\n").repeated(2'500'000),
                                   QByteArray("[x]\n").repeated(2'500'000),
                                   QByteArray(10'000'000, 'x') };
    for (const QByteArray &middle : middles) {
        const ProfileFile file(
            folder.write(u"huge.ini"_s, "[First]\nkey0=1\n" + middle + "\n[Last]\nkey0=2\n"));
        QList<ProfileEntry> entries;
        for (int i = 0; i < 300; ++i) {
            entries.append({ u"Last"_s, u"key"_s + QString::number(i), QString::number(i) });
        }
        const double start = test::cpuSeconds();
        ASSERT_TRUE(file.write(entries));
        const QByteArray bytes = *file.bytes();
        for (int i = 0; i < 300; ++i) {
            const QString key = u"key"_s + QString::number(i);
            EXPECT_EQ(profile::value(bytes, u"Last", key), QString::number(i));
        }
        for (int i = 0; i < 30; ++i) {
            EXPECT_EQ(file.integer(u"First", u"key0", 0), 1);
        }
        // A walk through the file for each key took twenty times as long. An address sanitizer
        // looks at each byte, which takes its time too.
#ifdef __SANITIZE_ADDRESS__
        constexpr double mostSeconds = 20;
#else
        constexpr double mostSeconds = 3;
#endif
        EXPECT_LT(test::cpuSeconds() - start, mostSeconds) << middle.first(4).toStdString();
    }
}

TEST(ProfileFile, ChangesOfManyProgramsAtOnceAreAllKept)
{
    const TempFolder folder;
    const QString path = folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nPOVhat=2\r\n");
    constexpr int programs = 4;
    constexpr int keys = 50;
    QList<QThread *> threads;
    for (int program = 0; program < programs; ++program) {
        threads.append(QThread::create([path, program] {
            const ProfileFile file(path, ProfileUse::Shared);
            for (int key = 0; key < keys; ++key) {
                const QString name = u"key%1"_s.arg(key);
                EXPECT_TRUE(file.write({ u"program%1"_s.arg(program), name, name }));
            }
        }));
        threads.last()->start();
    }
    for (QThread *thread : threads) {
        EXPECT_TRUE(thread->wait(60000));
        delete thread;
    }
    const ProfileFile file(path);
    int kept = 0;
    for (int i = 0; i < programs * keys; ++i) {
        const QString name = u"key%1"_s.arg(i % keys);
        kept += file.text(u"program%1"_s.arg(i / keys), name) == name ? 1 : 0;
    }
    EXPECT_EQ(kept, programs * keys);
    EXPECT_EQ(file.integer(u"Defaults", u"POVhat", 0), 2);
    EXPECT_FALSE(QFile::exists(path + u".lock"_s));
}

TEST(ProfileFile, ALockThatADeadProgramLeftKeepsNobodyOut)
{
    const TempFolder folder;
    const QString path = folder.write(u"HOTAS.ini"_s, "");
    QByteArray mark;
    {
        QLockFile sample(folder.file(u"sample.lock"_s));
        ASSERT_TRUE(sample.tryLock());
        mark = folder.read(u"sample.lock"_s);
    }
    // No process has this number.
    folder.write(u"HOTAS.ini.lock"_s, "99999999" + mark.sliced(mark.indexOf('\n')));
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(ProfileFile(path, ProfileUse::Shared).write({ u"A"_s, u"x"_s, u"1"_s }));
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_EQ(folder.read(u"HOTAS.ini"_s), "[A]\r\nx=1\r\n");
}

TEST(ProfileFile, AFileInUtf16IsToldAndLeftAlone)
{
    const TempFolder folder;
    const char16_t text[] = u"[Defaults]\r\nPOVhat=2\r\n";
    const QByteArray plain(reinterpret_cast<const char *>(text), sizeof(text) - sizeof(char16_t));
    for (const QByteArray &file : { "\xFF\xFE" + plain, plain, '\0' + plain }) {
        const QString path = folder.write(u"HOTAS.ini"_s, file);
        for (const ProfileUse use : { ProfileUse::Own, ProfileUse::Shared }) {
            const auto written = ProfileFile(path, use).write({ u"A"_s, u"x"_s, u"1"_s });
            ASSERT_FALSE(written);
            EXPECT_EQ(written.error().path, QDir::toNativeSeparators(path));
            EXPECT_TRUE(written.error().reason.contains(u"UTF-16"));
            EXPECT_FALSE(ProfileFile(path, use).remove(u"Defaults", { u"POVhat"_s }));
            EXPECT_EQ(folder.read(u"HOTAS.ini"_s), file);
        }
    }
}
