// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "compiler.h"
#include "source_files.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <random>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace zeph;
using namespace zeph::standin;

namespace {

class Compiler : public testing::Test
{
protected:
    QString hotas() const { return folder.path() + u"/HOTAS/"_s; }

    void SetUp() override
    {
        folder.write(u"HOTAS/HOTAS.ini"_s, "[Defaults]\r\nMDEFrequired=1\r\n[Other]\r\nx=y\r\n");
    }

    Outcome run(const QString &option, const QString &file, const Options &options = {})
    {
        return runCompiler({ u"/ZEPH"_s, option, file }, hotas(), options);
    }

    QString value(const QString &key, const QString &section = u"Compiler"_s) const
    {
        return ProfileFile(hotas() + u"HOTAS.ini"_s).text(section, key, u"(absent)"_s);
    }

    test::TempFolder folder;
};

} // namespace

TEST_F(Compiler, TellsSuccessWithEveryKey)
{
    const QString file = folder.write(u"my file.tmj"_s, "BTN S1 a\r\n");
    EXPECT_EQ(run(u"/CO"_s, file).exitCode, 0);
    EXPECT_EQ(value(u"Status"_s), u"OK");
    EXPECT_EQ(value(u"FileName"_s), file);
    EXPECT_EQ(value(u"LineNumber"_s), u"0");
    EXPECT_EQ(value(u"ErrorCode"_s), QString());
    EXPECT_GE(value(u"Memory"_s).toInt(), 1);
    EXPECT_TRUE(value(u"CompileTime"_s).contains(u'.'));
    EXPECT_TRUE(value(u"DownloadTime"_s).contains(u'.'));
    EXPECT_EQ(value(u"x"_s, u"Other"_s), u"y");
}

TEST_F(Compiler, TellsTheFirstMistakeWithItsLine)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\n\r\nBTN S9 b\r\nBTN T11 c\r\n");
    EXPECT_EQ(run(u"/co"_s, file).exitCode, 1);
    EXPECT_EQ(value(u"Status"_s), u"ERROR");
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1002: "));
    EXPECT_EQ(value(u"LineNumber"_s), u"3");
}

TEST_F(Compiler, CountsLinesWhateverEndsThey)
{
    const QByteArrayList files{
        "BTN S1 a\r\nBTN S2 b\r\n\r\nBTN S9 c\r\n",
        "BTN S1 a\nRem BTN S8 b\n\nBTN S9 c\n",
        "BTN S1 a\r  b Rem ( \r\rBTN S9 c",
        "BTN S1 a\rBTN S2 b\n\r\nBTN S9 c",
        "BTN S1 a\r\r\n\r\nBTN S9 c",
        QByteArray::fromHex("0ca0200a001a0a0985810a0b") + "BTN S9 c",
    };
    for (const QByteArray &bytes : files) {
        run(u"/CO"_s, folder.write(u"a.tmj"_s, bytes));
        EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1002")) << bytes.toStdString();
        EXPECT_EQ(value(u"LineNumber"_s), u"4") << bytes.toStdString();
    }
}

TEST_F(Compiler, HasAVerdictOnWhateverBytesTheFilesHold)
{
    std::mt19937 random(20240314);
    std::uniform_int_distribution<int> pick(0, 255);
    for (int round = 0; round < 100; ++round) {
        QByteArray bytes(2000, 0);
        for (char &byte : bytes)
            byte = char(pick(random));
        folder.write(u"a.tmm"_s, bytes);
        const int exitCode = run(u"/CO"_s, folder.write(u"a.tmj"_s, bytes)).exitCode;
        EXPECT_EQ(value(u"Status"_s), exitCode == 0 ? u"OK" : u"ERROR");
        EXPECT_EQ(value(u"ErrorCode"_s).startsWith(u"ERROR "), exitCode == 1);
    }
}

TEST_F(Compiler, TellsALineAfterAHugeOne)
{
    run(u"/CO"_s,
        folder.write(u"a.tmj"_s, "BTN S1 " + QByteArray("a ").repeated(500'000) + "\r\nBTN S9"));
    EXPECT_EQ(value(u"LineNumber"_s), u"2");
}

TEST_F(Compiler, TellsAMistakeOfTheMacroFileWithItsOwnLine)
{
    folder.write(u"Keys.TMM"_s, "Fire = a\r\nFlare = (b\r\n");
    const QString file = folder.write(u"a.tmj"_s, "USE MDEF keys Rem mine\r\nBTN S1 Fire\r\n");
    run(u"/CO"_s, file);
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1013"));
    EXPECT_EQ(value(u"LineNumber"_s), u"2");
}

TEST_F(Compiler, TellsAMacroFileThatIsNotThere)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\nUSE MDEF keys\r\n");
    run(u"/CO"_s, file);
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1012"));
    EXPECT_EQ(value(u"LineNumber"_s), u"2");
}

TEST_F(Compiler, TellsAMacroFileThatCannotBeReadAsThat)
{
    folder.write(u"keys.tmm"_s,
                 QByteArray("\xFF\xFE"
                            "F\0=\0",
                            6));
    run(u"/CO"_s, folder.write(u"a.tmj"_s, "BTN S1 a\r\nUSE MDEF keys\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1024"));
    EXPECT_TRUE(value(u"ErrorCode"_s).contains(u"keys.tmm"));
    EXPECT_TRUE(value(u"ErrorCode"_s).contains(u"UTF-16"));
    EXPECT_EQ(value(u"LineNumber"_s), u"2");
    folder.write(u"b.tmm"_s,
                 QByteArray("\xFE\xFF"
                            "\0F\0=",
                            6));
    run(u"/CO"_s, folder.write(u"b.tmj"_s, "BTN S1 a\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1024"));
    EXPECT_EQ(value(u"LineNumber"_s), u"0");
}

TEST_F(Compiler, TellsAFolderOfTheMacroFilesNameAsAFileThatCannotBeRead)
{
    folder.write(u"Keys.tmm/inside"_s, "");
    folder.write(u"plain/inside"_s, "");
    run(u"/CO"_s, folder.write(u"a.tmj"_s, "BTN S1 a\r\nUSE MDEF keys\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1024"));
    // Where a name in any case opens it, the joystick file's words are enough.
    const QString told = nameOf(existingPath(folder.file(u"keys.tmm"_s)));
    EXPECT_TRUE(value(u"ErrorCode"_s).contains(told)) << told.toStdString();
    EXPECT_EQ(value(u"LineNumber"_s), u"2");
    run(u"/CO"_s, folder.write(u"keys.tmj"_s, "BTN S1 a\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1024"));
    // A folder without the ending is no macro file.
    run(u"/CO"_s, folder.write(u"b.tmj"_s, "USE MDEF plain\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1012"));
}

#ifdef Q_OS_UNIX
TEST_F(Compiler, TellsAMacroFileWithoutPermissionAsOneThatCannotBeRead)
{
    const QString macros = folder.write(u"keys.tmm"_s, "Fire = a\r\n");
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 a\r\nUSE MDEF keys\r\n");
    ASSERT_TRUE(QFile::setPermissions(macros, QFile::WriteOwner));
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    // An administrator may read everything.
    const bool wasRoot = geteuid() == 0;
    if (wasRoot && seteuid(65534) != 0)
        GTEST_SKIP() << "cannot drop the right to read everything";
    const auto sources = readSources(file, false);
    if (wasRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    ASSERT_TRUE(sources);
    ASSERT_TRUE(sources->unreadable);
    EXPECT_EQ(sources->unreadable->path, macros);
    EXPECT_FALSE(sources->unreadable->reason.isEmpty());
    EXPECT_FALSE(sources->missing);
    EXPECT_EQ(sources->macroNamePlace.line, 2);
}
#endif

TEST_F(Compiler, ReadsAFileWithoutItsByteOrderMark)
{
    folder.write(u"Käse.tmm"_s,
                 "\xEF\xBB\xBF"
                 "F\xC3\xA4hre = a\r\n");
    const QByteArray text = "\xEF\xBB\xBFUSE MDEF K\xC3\xA4se\r\nBTN S1 F\xC3\xA4hre\r\n";
    run(u"/CO"_s, folder.write(u"a.tmj"_s, text));
    EXPECT_EQ(value(u"Status"_s), u"OK") << value(u"ErrorCode"_s).toStdString();
    run(u"/CO"_s,
        folder.write(u"b.tmj"_s,
                     "\xEF\xBB\xBF"
                     "BTN S9 a\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1002"));
    EXPECT_EQ(value(u"LineNumber"_s), u"1");
    const auto sources = readSources(folder.file(u"a.tmj"_s), false);
    ASSERT_TRUE(sources);
    EXPECT_EQ(sources->pair.joystick.items.last().kind, language::ItemKind::MacroUse);
}

TEST_F(Compiler, TellsAJoystickFileInUtf16)
{
    run(u"/CO"_s,
        folder.write(u"a.tmj"_s,
                     QByteArray("\xFF\xFE"
                                "B\0T\0N\0",
                                8)));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1001"));
    EXPECT_TRUE(value(u"ErrorCode"_s).contains(u"UTF-16"));
}

TEST_F(Compiler, SaysThatTheMemoryIsFullAtAHundredPercentOnly)
{
    const auto lastLine = [&](int buttons) {
        const QByteArray text = QByteArray("BTN S1 a\r\n").repeated(buttons);
        return run(u"/CO"_s, folder.write(u"a.tmj"_s, text)).lines.last();
    };
    EXPECT_TRUE(lastLine(100'000).contains(u"100% of the memory: it is full"));
    EXPECT_EQ(value(u"Memory"_s), u"100");
    EXPECT_FALSE(lastLine(10).contains(u"full"));
}

TEST_F(Compiler, TakesTheMacroFileOfTheSameNameWhenAsked)
{
    folder.write(u"a.tmm"_s, "Fire = (b\r\n");
    const QString file = folder.write(u"a.tmj"_s, "BTN S1 Fire\r\n");
    run(u"/CO"_s, file);
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1013"));
    folder.write(u"HOTAS/HOTAS.ini"_s, "[Defaults]\r\nMDEFrequired=0\r\n");
    run(u"/CO"_s, file);
    EXPECT_EQ(value(u"Status"_s), u"OK");
}

TEST_F(Compiler, AUseMdefThatNamesNothingIsNone)
{
    folder.write(u"a.tmm"_s, "Fire = (b\r\n");
    run(u"/CO"_s, folder.write(u"a.tmj"_s, "USE MDEF Rem none\r\nBTN S1 Fire\r\n"));
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1013"));
}

TEST_F(Compiler, TellsAFileThatIsNotThere)
{
    EXPECT_EQ(run(u"/CO"_s, folder.file(u"none.tmj"_s)).exitCode, 1);
    EXPECT_EQ(value(u"Status"_s), u"ERROR");
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1001"));
    EXPECT_EQ(value(u"LineNumber"_s), u"0");
}

TEST_F(Compiler, FindsTheFileInAnyCaseAndWithBackslashes)
{
    folder.write(u"Files/My.tmj"_s, "BTN S1 a\r\n");
    run(u"/CO"_s, folder.path() + u"\\files\\MY.TMJ"_s);
    EXPECT_EQ(value(u"Status"_s), u"OK");
}

TEST_F(Compiler, ADownloadKeepsTheFileAndEnableSwitchesTheButtons)
{
    const QString file = folder.write(u"a.tmj"_s, "USE PROFILE Mine (AUTO)\r\nBTN S1 a\r\n");
    run(u"/CO"_s, file);
    EXPECT_EQ(value(u"LoadedFile"_s, u"StandIn"_s), u"(absent)");
    run(u"/CD"_s, file);
    EXPECT_EQ(value(u"LoadedFile"_s, u"StandIn"_s), file);
    EXPECT_EQ(value(u"LoadedProfile"_s, u"StandIn"_s), u"Mine.tmc");
    EXPECT_EQ(value(u"Buttons"_s, u"TMMODE"_s), u"(absent)");
    run(u"/CE"_s, file);
    EXPECT_EQ(value(u"Buttons"_s, u"TMMODE"_s), u"1");
}

TEST_F(Compiler, AFailedDownloadKeepsAndEnablesNothing)
{
    run(u"/CE"_s, folder.write(u"a.tmj"_s, "BTN S9 a\r\n"));
    EXPECT_EQ(value(u"LoadedFile"_s, u"StandIn"_s), u"(absent)");
    EXPECT_EQ(value(u"Buttons"_s, u"TMMODE"_s), u"(absent)");
}

TEST_F(Compiler, WritesNothingWhenItHasToBeSilent)
{
    Options options;
    options.silent = true;
    run(u"/CO"_s, folder.write(u"a.tmj"_s, "BTN S1 a\r\n"), options);
    EXPECT_EQ(value(u"Status"_s), u"(absent)");
}

TEST_F(Compiler, TellsTheOrderedMistake)
{
    Options options;
    options.fail = { 1007, 12 };
    run(u"/CO"_s, folder.write(u"a.tmj"_s, "BTN S1 a\r\n"), options);
    EXPECT_EQ(value(u"ErrorCode"_s),
              u"ERROR 1007: The number of bands and their borders do not agree");
    EXPECT_EQ(value(u"LineNumber"_s), u"12");
    EXPECT_EQ(value(u"Status"_s), u"ERROR");
}

TEST_F(Compiler, RefusesARequestWithoutAFile)
{
    EXPECT_EQ(runCompiler({ u"/ZEPH"_s, u"/CO"_s }, hotas(), {}).exitCode, 1);
    EXPECT_TRUE(value(u"ErrorCode"_s).startsWith(u"ERROR 1023"));
}

TEST_F(Compiler, SaysThatItIsAStandIn)
{
    const Outcome outcome = run(u"/CO"_s, folder.write(u"a.tmj"_s, "BTN S1 a\r\n"));
    ASSERT_GE(outcome.lines.size(), 2);
    EXPECT_TRUE(outcome.lines[0].contains(u"stand-in"));
    EXPECT_TRUE(outcome.lines[0].contains(u"no hardware"));
}

TEST_F(Compiler, AcceptsTheSamplePair)
{
    const QString sample = QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/Sample flight.tmj");
    run(u"/CO"_s, sample);
    EXPECT_EQ(value(u"Status"_s), u"OK") << value(u"ErrorCode"_s).toStdString();
}

// It comes without a macro file.
TEST_F(Compiler, AcceptsTheFileForGames)
{
    const QString games = QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/TM Default for games.tmj");
    run(u"/CE"_s, games);
    EXPECT_EQ(value(u"Status"_s), u"OK") << value(u"ErrorCode"_s).toStdString();
}

TEST(FindMacroFile, AddsTheExtensionThatBelongsToTheJoystickFile)
{
    const test::TempFolder folder;
    folder.write(u"keys.m22"_s, "");
    const QString joystick = folder.file(u"a.f22"_s);
    EXPECT_TRUE(isSameFile(findMacroFile(joystick, u"KEYS"_s), folder.file(u"keys.m22"_s)));
    EXPECT_EQ(findMacroFile(joystick, u"keys.m22"_s), folder.file(u"keys.m22"_s));
    EXPECT_EQ(findMacroFile(joystick, u"other"_s), QString());
    EXPECT_EQ(findMacroFile(joystick, QString()), QString());
}

// A pair to learn from uses what it defines.
TEST(SamplePair, UsesMostOfItsMacros)
{
    const QString sample = QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/Sample flight.tmj");
    const auto sources = readSources(sample, false);
    ASSERT_TRUE(sources);
    const language::FilePair &pair = sources->pair;
    EXPECT_TRUE(sources->macroPath.endsWith(u"Sample flight.tmm"));
    QSet<int> used;
    for (const auto &items : { pair.joystick.items, pair.macro.items }) {
        for (const language::Item &item : items) {
            if (item.kind == language::ItemKind::MacroUse)
                used.insert(item.reference);
        }
    }
    EXPECT_GE(pair.macro.macros.size(), 50);
    EXPECT_GE(used.size() * 10, pair.macro.macros.size() * 9);
    EXPECT_GE(pair.macro.headings.size(), 5);
    EXPECT_GE(pair.joystick.statements.size(), 40);
    // Every word is understood: a slip in a macro's name would be left over here.
    for (const language::Item &item : pair.joystick.items) {
        const QStringView word = pair.joystick.at(item);
        EXPECT_TRUE(item.kind != language::ItemKind::Unknown || word[0].isDigit())
            << word.toString().toStdString();
    }
    EXPECT_TRUE(pair.joystick.text.contains(u"Last modified: "));
}

TEST(SamplePair, HasTheLineEndsOfItsKind)
{
    for (const QString &name : { u"tmj"_s, u"tmm"_s }) {
        const auto bytes =
            readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/Sample flight.") + name);
        ASSERT_TRUE(bytes);
        EXPECT_GT(bytes->count('\n'), 80);
        EXPECT_EQ(bytes->count("\r\n"), bytes->count('\n'));
        EXPECT_FALSE(bytes->contains('\t'));
    }
}
