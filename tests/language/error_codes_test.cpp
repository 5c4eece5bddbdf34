// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/error_codes.h"

#include "platform/core/rtf.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::language;

namespace {

/// The information file as it is built.
QByteArray informationFile()
{
    return writeRtf(errorCodesText());
}

} // namespace

TEST(ErrorCodes, RiseAndHaveFourDigits)
{
    int before = 999;
    for (const ErrorEntry &entry : errorCodes()) {
        EXPECT_GT(entry.code, before);
        EXPECT_LT(entry.code, 10000);
        EXPECT_FALSE(entry.title.isEmpty());
        EXPECT_FALSE(entry.cause.isEmpty());
        EXPECT_FALSE(entry.cure.isEmpty());
        before = entry.code;
    }
    EXPECT_EQ(errorHeading(1013), u"ERROR 1013");
    EXPECT_EQ(errorHeading(7), u"ERROR 0007");
}

TEST(ErrorCodes, TheMacroFileIsOneThousandAndThirteen)
{
    EXPECT_EQ(int(InMacroFile), 1013);
    ASSERT_TRUE(errorEntry(1013));
    EXPECT_TRUE(errorEntry(1013)->title.contains(u"macro file"));
    EXPECT_FALSE(errorEntry(1));
}

// The reader goes from a heading to the next "ERROR", and takes the heading's line for the title.
TEST(ErrorCodesFile, EachEntryRunsFromItsHeadingToTheNext)
{
    const auto text = readRtf(informationFile());
    ASSERT_TRUE(text) << text.error().reason.toStdString();
    for (const ErrorEntry &entry : errorCodes()) {
        const qsizetype start = text->text.indexOf(u"ERROR %1"_s.arg(entry.code));
        ASSERT_GE(start, 0) << entry.code;
        const qsizetype next = text->text.indexOf(u"ERROR"_s, start + 5);
        const QString whole =
            text->text.sliced(start, (next < 0 ? text->text.size() : next) - start);
        EXPECT_TRUE(whole.contains(entry.cure)) << entry.code;
        const QString heading = whole.section(u'\n', 0, 0);
        EXPECT_TRUE(heading.endsWith(entry.title)) << entry.code;
        EXPECT_EQ(text->text.count(u"ERROR %1"_s.arg(entry.code)), 1);
    }
}

TEST(ErrorCodesFile, HeadingsAreBold)
{
    const auto text = readRtf(informationFile());
    ASSERT_TRUE(text) << text.error().reason.toStdString();
    const qsizetype start = text->text.indexOf(u"ERROR 1007"_s);
    EXPECT_TRUE(text->formatAt(start).bold);
    EXPECT_TRUE(text->formatAt(text->text.indexOf(u'\n', start) - 1).bold);
    EXPECT_FALSE(text->formatAt(text->text.indexOf(u'\n', start) + 1).bold);
}

TEST(DocumentOfError, IsTheMacroFileForCode1013AtItsPlace)
{
    EXPECT_EQ(documentOfError(u"ERROR 1013: something"), DocumentKind::Macro);
    EXPECT_EQ(documentOfError(u"ERROR 1013"), DocumentKind::Macro);
    for (const QStringView other :
         { u"ERROR 1012: something", u"ERROR 1014: see 1013", u"1013", u"ERROR 101", u"" })
        EXPECT_EQ(documentOfError(other), DocumentKind::Joystick);
}
