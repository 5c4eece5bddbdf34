// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/paths.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace zeph;
using test::TempFolder;

namespace {

/// A path with the system's own separators.
QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

TEST(Paths, FoldersLieUnderTheAppFolderAndEndInASeparator)
{
    const Paths paths{ u"/app"_s, native(u"/hotas/"_s), {} };
    EXPECT_TRUE(paths.rtfFolder().startsWith(u"/app"));
    EXPECT_TRUE(paths.rtfFolder().endsWith(native(u"/Rtf/"_s)));
    EXPECT_TRUE(paths.filesFolder().endsWith(native(u"/Files/"_s)));
    EXPECT_TRUE(paths.layoutsFolder().endsWith(native(u"/Layouts/"_s)));
    EXPECT_TRUE(paths.tempFolder().endsWith(native(u"/Temp/"_s)));
    EXPECT_TRUE(paths.defaultBackupFolder().endsWith(native(u"/Backup/"_s)));
    EXPECT_TRUE(paths.infoFolder().endsWith(native(u"/Info/"_s)));
    EXPECT_TRUE(paths.inApp(u"Tips.txt").endsWith(native(u"/Tips.txt"_s)));
}

TEST(Paths, TheToolsLieInTheHotasFolder)
{
    const Paths paths{ u"/app"_s, u"/hotas/"_s, {} };
    EXPECT_EQ(paths.compiler(), u"/hotas/HOTASCompiler.exe"_s);
    EXPECT_EQ(paths.config(), u"/hotas/HOTASConfig.exe"_s);
    EXPECT_EQ(paths.hotasIni(), u"/hotas/HOTAS.ini"_s);
}

TEST(PathNames, BothSeparatorsPartFolderAndName)
{
    EXPECT_EQ(folderOf(u"C:\\Files\\a.tmj"_s), u"C:\\Files\\"_s);
    EXPECT_EQ(nameOf(u"C:\\Files\\a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(nameOf(u"/x\\y/a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(folderOf(u"a.tmj"_s), QString());
    EXPECT_EQ(nameOf(u"a.tmj"_s), u"a.tmj"_s);
    EXPECT_EQ(nameOf(u"/x/"_s), QString());
}

TEST(PathNames, AFolderGetsExactlyOneClosingSeparator)
{
    EXPECT_EQ(withClosingSeparator(u"/x"_s), u"/x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"/x//"_s), u"/x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"C:\\x\\"_s), u"C:\\x"_s + QDir::separator());
    EXPECT_EQ(withClosingSeparator(u"/"_s), QString(QDir::separator()));
    EXPECT_EQ(withClosingSeparator(QString()), QString());
}

TEST(PathNames, NativeSeparatorsReplaceBothKinds)
{
    EXPECT_EQ(nativeSeparators(u"Files\\x/a.tmj"_s), native(u"Files/x/a.tmj"_s));
}

TEST(ExistingPath, TheExactNameComesFirst)
{
    const TempFolder folder;
    folder.write(u"a.tmj"_s, "lower");
    folder.write(u"A.TMJ"_s, "upper");
    if (folder.read(u"a.tmj"_s) == "upper") {
        GTEST_SKIP() << "both names are one file here";
    }
    EXPECT_EQ(existingPath(folder.file(u"A.TMJ"_s)), native(folder.file(u"A.TMJ"_s)));
    EXPECT_EQ(existingPath(folder.file(u"a.tmj"_s)), native(folder.file(u"a.tmj"_s)));
}

TEST(ExistingPath, EachComponentIsFoundInAnyCase)
{
    const TempFolder folder;
    const QString real = folder.write(u"Files/F-16 Früh.tmj"_s, "x");
    const QString found = existingPath(folder.file(u"FILES/f-16 FRÜH.TMJ"_s));
    EXPECT_FALSE(found.isEmpty());
    EXPECT_TRUE(isSameFile(found, real)) << found.toStdString();
}

TEST(ExistingPath, BackslashesSeparateToo)
{
    const TempFolder folder;
    const QString real = folder.write(u"Files/Sub/a.tmj"_s, "x");
    const QString found = existingPath(folder.path() + u"\\files\\SUB\\A.tmj"_s);
    EXPECT_EQ(found, native(found));
    EXPECT_TRUE(isSameFile(found, real)) << found.toStdString();
}

TEST(ExistingPath, WhatIsNotThereIsEmpty)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    EXPECT_EQ(existingPath(folder.file(u"Files/b.tmj"_s)), QString());
    EXPECT_EQ(existingPath(folder.file(u"Filez/a.tmj"_s)), QString());
    EXPECT_EQ(existingPath(folder.file(u"Files/a.tmj/c"_s)), QString());
    EXPECT_EQ(existingPath(QString()), QString());
}

TEST(ExistingPath, DotsGoUpAndStay)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    folder.write(u"Temp/b.txt"_s, "x");
    EXPECT_TRUE(fileExists(folder.file(u"FILES/../temp/./B.TXT"_s)));
}

TEST(FileExists, TellsFilesFromFolders)
{
    const TempFolder folder;
    folder.write(u"Files/a.tmj"_s, "x");
    EXPECT_TRUE(fileExists(folder.file(u"files/A.tmj"_s)));
    EXPECT_FALSE(fileExists(folder.file(u"files"_s)));
    EXPECT_TRUE(folderExists(folder.file(u"files"_s)));
    EXPECT_TRUE(folderExists(folder.file(u"files\\"_s)));
    EXPECT_FALSE(folderExists(folder.file(u"files/a.tmj"_s)));
    EXPECT_FALSE(fileExists(QString()));
    EXPECT_FALSE(folderExists(QString()));
}

TEST(RootOf, IsTheDriveOfAPath)
{
    const QString separator = QDir::separator();
    EXPECT_EQ(rootOf(u"D:\\Games\\fly.exe"_s), u"D:"_s + separator);
    EXPECT_EQ(rootOf(u"d:fly.exe"_s), u"d:"_s + separator);
#ifdef Q_OS_UNIX
    EXPECT_EQ(rootOf(u"/opt/games/fly.exe"_s), u"/"_s);
#endif
}

TEST(IsSameFile, ByAnyPathThatLeadsThere)
{
    const TempFolder folder;
    const QString file = folder.write(u"Files/a.tmj"_s, "x");
    folder.write(u"Files/b.tmj"_s, "x");
    EXPECT_TRUE(isSameFile(file, file));
    EXPECT_TRUE(isSameFile(folder.file(u"Files/../Files/./a.tmj"_s), file));
    EXPECT_TRUE(isSameFile(folder.path(), folder.file(u"Files/.."_s)));
    EXPECT_FALSE(isSameFile(file, folder.file(u"Files/b.tmj"_s)));
    EXPECT_FALSE(isSameFile(folder.file(u"none"_s), folder.file(u"none"_s)));
    EXPECT_FALSE(isSameFile(file, QString()));
    EXPECT_FALSE(isSameFile(QString(), QString()));
}

#ifdef Q_OS_WIN

TEST(IsSameFile, InAnyCaseWhereTheSystemTellsNone)
{
    const TempFolder folder;
    const QString file = folder.write(u"Files/Früh.tmj"_s, "x");
    EXPECT_TRUE(isSameFile(file, folder.file(u"FILES\\FRÜH.TMJ"_s)));
}

TEST(ExistingPath, HasTheNameThatTheDiskHas)
{
    const TempFolder folder;
    const QString file = folder.write(u"Files/Früh.TMJ"_s, "x");
    EXPECT_EQ(existingPath(folder.file(u"Files/FRÜH.tmj"_s)), file);
    EXPECT_EQ(existingPath(folder.file(u"FILES"_s)), folder.file(u"Files"_s));
    EXPECT_EQ(existingPath(folder.file(u"Files/."_s)), folder.file(u"Files/."_s));
    EXPECT_EQ(existingPath(folder.file(u"Files/.."_s)), folder.file(u"Files/.."_s));
    EXPECT_EQ(existingPath(u"c:\\"_s), u"c:\\");
}

TEST(RootOf, IsTheDriveOrTheShare)
{
    EXPECT_EQ(rootOf(u"d:\\Files\\a.tmj"_s), u"d:\\");
    EXPECT_EQ(rootOf(u"D:/Files/a.tmj"_s), u"D:\\");
    EXPECT_EQ(rootOf(u"\\\\server\\share\\Files\\a.tmj"_s), u"\\\\server\\share\\");
    EXPECT_EQ(rootOf(u"a.tmj"_s), u"C:\\") << "on the system's drive";
}

TEST(ExistingPath, ADriveIsAFolder)
{
    EXPECT_TRUE(folderExists(u"C:\\"_s));
    EXPECT_TRUE(folderExists(u"c:/"_s));
    EXPECT_FALSE(folderExists(u"Q:\\"_s)) << "a drive that nobody has";
}

#endif
