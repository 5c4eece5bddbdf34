// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/list_file.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(ListFile, HasTrimmedLinesOfAnyLineEndAndIsEmptyWhenMissing)
{
    const test::TempFolder folder;
    const QString path = folder.write(u"List.txt"_s, "Guns\r\n\r\n  Radar \nR\xE9sum\xE9\r\n \r\n");
    EXPECT_EQ(linesOfListFile(path), (QStringList{ u"Guns"_s, u"Radar"_s, u"R\u00E9sum\u00E9"_s }));
    EXPECT_EQ(linesOfListFile(folder.file(u"list.TXT"_s)).size(), 3);
    EXPECT_TRUE(linesOfListFile(folder.file(u"None.txt"_s)).isEmpty());
}
