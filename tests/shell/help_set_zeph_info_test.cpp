// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_set.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct ZephInfoFile : testing::Test {
    test::TempFolder folder;
    Paths paths;

    ZephInfoFile() { paths.appFolder = folder.path(); }

    ZephInfo read(const QByteArray &bytes)
    {
        folder.write(u"Info/ZephInfo.ini"_s, bytes);
        const auto info = readZephInfo(paths);
        EXPECT_TRUE(info);
        return info.value_or(ZephInfo());
    }
};

} // namespace

TEST_F(ZephInfoFile, MissingGivesNothing)
{
    EXPECT_FALSE(readZephInfo(paths));
}

TEST_F(ZephInfoFile, NamesHowDoITextsOfTheInfoFolder)
{
    const ZephInfo info = read("[Online Help]\nNumberOfTopics=2\nMenuCaption1=&Fly\n"
                               "InfoFile1=Fly.rtf\nMenuCaption2=Land\nInfoFile2=Land.rtf\n"
                               "MenuCaption3=Beyond the count\nInfoFile3=No.rtf\n");
    ASSERT_EQ(info.onlineHelp.size(), 2);
    EXPECT_EQ(info.onlineHelp[0].caption, u"&Fly");
    EXPECT_EQ(info.onlineHelp[1].path, paths.infoFolder() + u"Land.rtf"_s);
    EXPECT_TRUE(info.manuals.isEmpty());
}

TEST_F(ZephInfoFile, NamesManualsFromTheProgramsFolderOrByFullPath)
{
    const ZephInfo info = read("[Manuals]\nNumberOfManuals=2\nMenuCaption1=A\n"
                               "Path1=Help\\a.html\nMenuCaption2=B\nPath2="
                               + folder.file(u"b.pdf"_s).toLocal8Bit() + "\n");
    ASSERT_EQ(info.manuals.size(), 2);
    EXPECT_EQ(info.manuals[0].path, folder.file(u"Help/a.html"_s));
    EXPECT_EQ(info.manuals[1].path, folder.file(u"b.pdf"_s));
}

TEST_F(ZephInfoFile, GarbledCountsAndMissingCaptionsAreLeftOut)
{
    EXPECT_TRUE(read("[Manuals]\nNumberOfManuals=-4\nMenuCaption1=A\n").manuals.isEmpty());
    EXPECT_EQ(
        read("[Manuals]\nNumberOfManuals=2000000000\nMenuCaption2=B\nPath2=x\n").manuals.size(), 1);
}
