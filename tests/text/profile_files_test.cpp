// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/profile_files.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(ProfileFiles, AreThoseOfTheFolderInTheOrderOfTheAlphabet)
{
    const test::TempFolder folder;
    for (const auto &name : { u"zulu.tmc"_s, u"Alpha.TMC"_s, u"mike.tmc"_s, u"notes.txt"_s,
                              u"folder.tmc/inner.txt"_s }) {
        folder.write(name, "x");
    }
    EXPECT_EQ(profileFiles(folder.path()),
              (QStringList{ u"Alpha.TMC"_s, u"mike.tmc"_s, u"zulu.tmc"_s }));
    EXPECT_EQ(profileNames(folder.path()), (QStringList{ u"Alpha"_s, u"mike"_s, u"zulu"_s }));
    EXPECT_EQ(profileNames(folder.file(u"none"_s)), QStringList());
    EXPECT_EQ(profileNames({}), QStringList());
    EXPECT_EQ(profileFiles({}), QStringList());
}
