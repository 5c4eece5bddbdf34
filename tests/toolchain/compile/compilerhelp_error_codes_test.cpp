// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/compilerhelp.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const QString codes = u"Codes\n"
                      u"ERROR 1001: First\nAn error of any kind.\n"
                      u"ERROR 1002: Second\nSee above.\nAnd below.\n"
                      u"ERROR 1003: Last"_s;

/// The stretch of the sample from the first place of one text to the first of another.
ErrorPassage stretch(QStringView start, QStringView end, QStringView heading)
{
    const qsizetype from = codes.indexOf(start);
    const qsizetype to = end.isEmpty() ? codes.size() : codes.indexOf(end);
    return { from, to, from + heading.size() };
}

} // namespace

TEST(FindErrorEntry, GoesFromTheCodeToTheNextEntry)
{
    EXPECT_EQ(findErrorEntry(codes, u"ERROR 1002: Second thing"),
              stretch(u"ERROR 1002", u"ERROR 1003", u"ERROR 1002: Second"));
}

TEST(FindErrorEntry, AWordInSmallLettersIsNoNextEntry)
{
    EXPECT_EQ(findErrorEntry(codes, u"ERROR 1001"),
              stretch(u"ERROR 1001", u"ERROR 1002", u"ERROR 1001: First"));
}

TEST(FindErrorEntry, TheLastEntryGoesToTheEndAndItsHeadingIsAsLongAsTheErrorText)
{
    EXPECT_EQ(findErrorEntry(codes, u"ERROR 1003: La"),
              stretch(u"ERROR 1003", u"", u"ERROR 1003: La"));
}

TEST(FindErrorEntry, AHeadingNeverGoesBeyondTheText)
{
    EXPECT_EQ(findErrorEntry(u"ERROR 1003", u"ERROR 1003: a long error text"),
              (ErrorPassage{ 0, 10, 10 }));
}

TEST(FindErrorEntry, OnlyTheFirstTenCharactersAreSearchedFor)
{
    EXPECT_TRUE(findErrorEntry(codes, u"ERROR 1001 in words that no entry has"));
    EXPECT_FALSE(findErrorEntry(codes, u"ERROR 100X"));
}

TEST(FindErrorEntry, AnUnknownOrMissingCodeIsNotFound)
{
    EXPECT_FALSE(findErrorEntry(codes, u"ERROR 9999: ?"));
    EXPECT_FALSE(findErrorEntry(codes, u""));
    EXPECT_FALSE(findErrorEntry(u"", u"ERROR 1001"));
}

TEST(FindErrorEntry, AShortTextAtTheVeryEndIsInBounds)
{
    EXPECT_EQ(findErrorEntry(u"xyz", u"z"), (ErrorPassage{ 2, 3, 3 }));
}

TEST(ReadErrorCodes, AMissingFileIsToldWithItsPath)
{
    const test::TempFolder folder;
    const QString path = folder.file(u"Info/Error codes.rtf"_s);
    const auto result = readErrorCodes(path);
    ASSERT_FALSE(result);
    EXPECT_TRUE(result.error().contains(path));
}

TEST(ReadErrorCodes, AFileThatIsNoRichTextIsToldWithItsPath)
{
    const test::TempFolder folder;
    const QString path = folder.write(u"Error codes.rtf"_s, "plain words");
    const auto result = readErrorCodes(path);
    ASSERT_FALSE(result);
    EXPECT_TRUE(result.error().contains(path));
}

TEST(ReadErrorCodes, TheFileIsFoundInAnyCase)
{
    const test::TempFolder folder;
    folder.write(u"info/ERROR CODES.RTF"_s, "{\\rtf1 ERROR 1001\\par}");
    const auto result = readErrorCodes(folder.file(u"Info/Error codes.rtf"_s));
    ASSERT_TRUE(result) << result.error().toStdString();
    EXPECT_TRUE(result->text.startsWith(u"ERROR 1001"));
}
