// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/hotas_folder.h"

#include "platform/core/paths.h"
#include "platform/core/stand_in.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace zeph;

namespace {

/// A path below the root of the drive, with the system's own separators.
QString on(const QString &path)
{
    return nativeSeparators(QDir::rootPath() + path);
}

const QString appFolder = on(u"opt/zeph"_s);

} // namespace

TEST(HotasFolder, IsTheProgramsOwnWithoutASetting)
{
    EXPECT_EQ(hotasFolderBy({}, appFolder), on(u"opt/zeph/"_s));
    EXPECT_EQ(hotasFolderBy(u"  "_s, on(u"opt/zeph/"_s)), on(u"opt/zeph/"_s));
}

TEST(HotasFolder, IsFoundFromTheProgramsFolderOrFromHome)
{
    const QString home = nativeSeparators(QDir::homePath());
    EXPECT_EQ(hotasFolderBy(on(u"opt/tools"_s), appFolder), on(u"opt/tools/"_s));
    EXPECT_EQ(hotasFolderBy(u"tools\\hotas"_s, appFolder), on(u"opt/zeph/tools/hotas/"_s));
    EXPECT_EQ(hotasFolderBy(u"../tools"_s, appFolder), on(u"opt/tools/"_s));
    EXPECT_EQ(hotasFolderBy(u"~"_s, appFolder), home + QDir::separator());
    EXPECT_EQ(hotasFolderBy(u"~/tools"_s, appFolder), home + nativeSeparators(u"/tools/"_s));
}

TEST(HotasFolder, TheProgramsOwnIsTheEmptySetting)
{
    EXPECT_EQ(settingForHotasFolder(on(u"opt/zeph/"_s), appFolder), QString());
    EXPECT_EQ(settingForHotasFolder({}, appFolder), QString());
    EXPECT_EQ(settingForHotasFolder(on(u"opt/tools"_s), appFolder), on(u"opt/tools/"_s));
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
