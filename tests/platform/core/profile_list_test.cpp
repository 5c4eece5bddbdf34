// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_file.h"
#include "platform/core/profile_list.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

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
    ASSERT_TRUE(file.write(profileListEntries(file, keys, rows)));
    EXPECT_EQ(readProfileList(file, keys), rows);
    EXPECT_EQ(file.text(u"Things", u"Other"), u"kept");
    EXPECT_EQ(file.integer(u"Things", u"Count", 0), 2);
}

TEST_F(ProfileListTest, WhatTheStoreCannotHoldLeavesNoOtherItemsValueInItsPlace)
{
    const ProfileFile file = store("[Things]\nCount=1\nName1=old\nPath1=old\n");
    ASSERT_TRUE(file.write(profileListEntries(file, keys, { { u"\u0416"_s, u"new"_s } })));
    EXPECT_EQ(readProfileList(file, keys), (QList<ProfileRow>{ { QString(), u"new"_s } }));
}

TEST_F(ProfileListTest, AShorterListTakesTheKeysOfWhatWentOutOfTheStore)
{
    const ProfileFile file = store("[Things]\r\nCount=3\r\nName1=a\r\nPath1=1\r\nName2=b\r\n"
                                   "Path2=2\r\n; mine\r\nName3=c\r\nPath3=3\r\nName4=odd\r\n"
                                   "[Other]\r\nName2=x\r\n");
    ASSERT_TRUE(writeProfileList(file, keys, { { u"b"_s, u"2"_s } },
                                 { { u"Things"_s, u"Best"_s, u"b"_s } }));
    EXPECT_EQ(file.bytes().value_or(QByteArray()),
              "[Things]\r\nCount=1\r\nName1=b\r\nPath1=2\r\n; mine\r\nName4=odd\r\nBest=b\r\n"
              "[Other]\r\nName2=x\r\n");
}

TEST_F(ProfileListTest, AListThatCannotBeReadIsNotReplaced)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"a.ini"_s));
    EXPECT_FALSE(writeProfileList(ProfileFile(folder.file(u"a.ini"_s)), keys, {}));
}

TEST(ProfileRemoval, TakesEveryLineOfAKeyInItsFirstSectionInAnyCase)
{
    EXPECT_EQ(profile::withoutKeys("[a]\nKey=1\nother=2\n ; key=3\nKEY = 4", u"A", { u"key"_s }),
              "[a]\nother=2\n ; key=3\n");
    EXPECT_EQ(profile::withoutKeys("[b]\nkey=1\n[a]\n[a]\nkey=2\n", u"a", { u"key"_s }),
              "[b]\nkey=1\n[a]\n[a]\nkey=2\n");
    EXPECT_EQ(profile::withoutKeys({}, u"a", { u"key"_s }), QByteArray());
}
