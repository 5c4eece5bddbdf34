// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_list.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr QStringView fields[] = { u"Name", u"Path" };
constexpr ProfileListKeys keys = { u"Things", u"Count", fields, 3 };

struct ProfileListTest : testing::Test {
    test::TempFolder folder;
    ProfileFile store(const QByteArray &bytes) const
    {
        return ProfileFile(folder.write(u"a.ini"_s, bytes));
    }
};

} // namespace

TEST_F(ProfileListTest, AMissingFileIsAnEmptyList)
{
    EXPECT_EQ(readProfileList(ProfileFile(folder.file(u"none.ini"_s)), keys), QList<ProfileRow>());
}

TEST_F(ProfileListTest, WhatIsAbsentIsEmpty)
{
    const auto rows = readProfileList(store("[things]\r\nCount=2\r\nName2=b\r\n"), keys);
    EXPECT_EQ(rows, (QList<ProfileRow>{ { QString(), QString() }, { u"b"_s, QString() } }));
}

TEST_F(ProfileListTest, ACountBeyondTheLimitIsCutAndOneBelowNothingIsNone)
{
    EXPECT_EQ(readProfileList(store("[Things]\nCount=2000000000\n"), keys).size(), 3);
    EXPECT_EQ(readProfileList(store("[Things]\nCount=-1\n"), keys).size(), 0);
    EXPECT_EQ(readProfileList(store("[Things]\nCount=many\n"), keys).size(), 0);
}

TEST_F(ProfileListTest, AValueIsCutToTheBuffer)
{
    const auto rows =
        readProfileList(store("[Things]\nCount=1\nName1=" + QByteArray(600, 'x') + "\n"), keys);
    EXPECT_EQ(rows.value(0).value(0).size(), 499);
}

TEST_F(ProfileListTest, WhatIsWrittenComesBack)
{
    const ProfileFile file = store("[Things]\r\nOther=kept\r\n");
    const QList<ProfileRow> rows = { { u"a"_s, u"C:\\a b.tmj"_s }, { u"b"_s, QString() } };
    ASSERT_TRUE(file.write(profileListEntries(keys, rows)));
    EXPECT_EQ(readProfileList(file, keys), rows);
    EXPECT_EQ(file.text(u"Things", u"Other"), u"kept");
    EXPECT_EQ(file.integer(u"Things", u"Count", 0), 2);
}

TEST_F(ProfileListTest, WhatTheStoreCannotHoldLeavesNoOtherItemsValueInItsPlace)
{
    const ProfileFile file = store("[Things]\nCount=1\nName1=old\nPath1=old\n");
    ASSERT_TRUE(file.write(profileListEntries(keys, { { u"\u0416"_s, u"new"_s } })));
    EXPECT_EQ(readProfileList(file, keys), (QList<ProfileRow>{ { QString(), u"new"_s } }));
}
