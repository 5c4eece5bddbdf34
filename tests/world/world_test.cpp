// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/fixture.h"

#include <gtest/gtest-spi.h>

using namespace zeph;
using test::WorldTest;

TEST(WorldGuard, ABoxThatNobodyPreparedFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            test::World world;
            world.dialogs.box({ .title = u"Engine fire"_s, .text = u"Eject?"_s });
        },
        "Engine fire");
}

TEST(WorldGuard, ABoxThatDidNotComeFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            test::World world;
            world.dialogs.answer(u"Engine fire"_s, BoxButton::Ok);
        },
        "never shown: box \"Engine fire\"");
}

TEST(WorldGuard, AFileThatCannotBeReadOrWrittenFailsTheTest)
{
    const test::World world;
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(world.folder.read(u"none"_s), QByteArray()), "cannot read");
    world.folder.write(u"file"_s, "in the way");
    EXPECT_NONFATAL_FAILURE(world.folder.write(u"file/below"_s, "x"), "cannot write");
    EXPECT_NONFATAL_FAILURE(world.installData(u"none"_s), "cannot read");
}

TEST_F(WorldTest, WindowsShareItsParts)
{
    const Context shared = context();
    shared.status.setText(u"Gear down"_s);
    EXPECT_EQ(status.text(), u"Gear down");
    EXPECT_EQ(shared.paths.filesFolder() + u"a.tmj"_s, file(u"a.tmj"_s, "BTN S2 a"));
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S2 a");
}

TEST_F(WorldTest, TwoWorldsHaveFoldersOfTheirOwn)
{
    writeStore("[Apps]\r\nCount=1\r\n");
    EXPECT_EQ(folder.read(u"Zeph.ini"_s),
              "[FileLocations]\r\nFirstTimeUsed=2\r\nShowTips=0\r\n[Apps]\r\nCount=1\r\n");
    const test::World other;
    EXPECT_FALSE(other.folder.exists(u"Zeph.ini"_s));
}
