// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_folder.h"

#include "platform/core/stand_in.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace zeph;

TEST(HotasFolder, IsTheProgramsOwnWithoutASetting)
{
    EXPECT_EQ(hotasFolderBy({}, u"/opt/zeph"_s), u"/opt/zeph/");
    EXPECT_EQ(hotasFolderBy(u"  "_s, u"/opt/zeph/"_s), u"/opt/zeph/");
}

TEST(HotasFolder, IsFoundFromTheProgramsFolderOrFromHome)
{
    EXPECT_EQ(hotasFolderBy(u"/opt/tools"_s, u"/opt/zeph"_s), u"/opt/tools/");
    EXPECT_EQ(hotasFolderBy(u"tools\\hotas"_s, u"/opt/zeph"_s), u"/opt/zeph/tools/hotas/");
    EXPECT_EQ(hotasFolderBy(u"../tools"_s, u"/opt/zeph"_s), u"/opt/tools/");
    EXPECT_EQ(hotasFolderBy(u"~"_s, u"/opt/zeph"_s), QDir::homePath() + u'/');
    EXPECT_EQ(hotasFolderBy(u"~/tools"_s, u"/opt/zeph"_s), QDir::homePath() + u"/tools/"_s);
}

TEST(HotasFolder, TheProgramsOwnIsTheEmptySetting)
{
    EXPECT_EQ(settingForHotasFolder(u"/opt/zeph/"_s, u"/opt/zeph"_s), QString());
    EXPECT_EQ(settingForHotasFolder({}, u"/opt/zeph"_s), QString());
    EXPECT_EQ(settingForHotasFolder(u"/opt/tools"_s, u"/opt/zeph"_s), u"/opt/tools/");
}

TEST(HotasFolder, AStandInIsNoRealTool)
{
    const test::TempFolder folder;
    EXPECT_FALSE(holdsRealTools(folder.path()));
    folder.write(u"HOTASCompiler.exe"_s,
                 QByteArray("\x7f"
                            "ELF ")
                     + standInMark);
    EXPECT_FALSE(holdsRealTools(folder.path()));
    folder.write(u"HOTASCompiler.exe"_s, "MZ ...");
    EXPECT_TRUE(holdsRealTools(folder.path()));
}
