// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/package.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;
using test::TempFolder;

TEST(PackageTest, TheFileSaysWhatWasFetchedAndWhetherTheFolderIsShared)
{
    EXPECT_EQ(packageOf("[Package]\nFile=zeph_<version>_amd64.deb\nShared=1\n"),
              (Package{ u"zeph_<version>_amd64.deb"_s, true }));
    EXPECT_EQ(packageOf("[Package]\r\nFile=Zeph-<version>-win64.zip\r\n"),
              (Package{ u"Zeph-<version>-win64.zip"_s, false }));
    EXPECT_EQ(packageOf("[Package]\r\nShared=0\r\n"), Package());
}

TEST(PackageTest, WithoutTheFileOrItsSectionNothingIsKnown)
{
    const TempFolder folder;
    EXPECT_EQ(readPackage(folder.path()), Package());
    folder.write(u"Package.ini"_s, "File=zeph.deb\nShared=1\n");
    EXPECT_EQ(readPackage(folder.path()), Package());
    folder.write(u"Package.ini"_s, "[Package]\nFile=zeph.deb\nShared=1\n");
    EXPECT_EQ(readPackage(folder.path()), (Package{ u"zeph.deb"_s, true }));
}

TEST(FileToFetch, HasTheVersionInItsPlace)
{
    for (const auto &[file, fetched] :
         { std::pair{ u"Zeph-<version>-win64.zip", u"Zeph-4.5.01-win64.zip" },
           { u"Zeph-<version>-setup.exe", u"Zeph-4.5.01-setup.exe" },
           { u"zeph_<version>_amd64.deb", u"zeph_4.5.01_amd64.deb" },
           { u"zeph-<version>-linux-x86_64.tar.xz", u"zeph-4.5.01-linux-x86_64.tar.xz" },
           { u"newest.zip", u"newest.zip" } }) {
        EXPECT_EQ(fileToFetch({ QString::fromUtf16(file) }, u"4.5.01"_s),
                  QString::fromUtf16(fetched));
    }
    EXPECT_EQ(fileToFetch({}, u"4.5.01"_s), QString());
}
