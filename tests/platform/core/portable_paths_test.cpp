// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/portable_paths.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace zeph;
using test::TempFolder;

namespace {

const QString stickFolder = QDir::toNativeSeparators(u"/stick/Zeph"_s);

QString systemPath(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString resolvedHere(const QString &stored, PathKind kind = PathKind::File)
{
    return resolvedPath(stored, stickFolder, kind);
}

} // namespace

TEST(StoredPath, InsideTheProgramsFolderItIsRelative)
{
    EXPECT_EQ(storedPath(systemPath(u"/stick/Zeph/Files/a.tmj"_s), stickFolder),
              systemPath(u"Files/a.tmj"_s));
    EXPECT_EQ(storedPath(systemPath(u"/stick/Zeph/Backup/"_s), stickFolder),
              systemPath(u"Backup/"_s));
    EXPECT_EQ(storedPath(stickFolder, stickFolder), u".");
    EXPECT_EQ(storedPath(stickFolder + QDir::separator(), stickFolder), u"./");
}

TEST(StoredPath, ElsewhereItStaysAsItIs)
{
    for (const QString &path : { u"/stick/Zeph 2/a.tmj"_s, u"/home/ann/a.tmj"_s, u"None"_s,
                                 u"C:\\Old\\a.tmj"_s, u"relative.tmj"_s, QString() }) {
        EXPECT_EQ(storedPath(path, stickFolder), path);
    }
}

TEST(StoredPath, WhatWouldBeMistakenForSomethingElseComesBack)
{
    for (const QString &name : { u"~"_s, u"~/a.tmj"_s, u"None"_s, u"none"_s, QString() }) {
        const QString path = systemPath(u"/stick/Zeph/"_s + name);
        EXPECT_EQ(resolvedHere(storedPath(path, stickFolder)), path);
    }
}

TEST(ResolvedPath, ARelativeOneLiesInTheProgramsFolder)
{
    EXPECT_EQ(resolvedHere(u"Files\\a.tmj"_s), systemPath(u"/stick/Zeph/Files/a.tmj"_s));
    EXPECT_EQ(resolvedHere(u"Backup/"_s), systemPath(u"/stick/Zeph/Backup/"_s));
    EXPECT_EQ(resolvedHere(u"../Other/./a.tmj"_s), systemPath(u"/stick/Other/a.tmj"_s));
    EXPECT_EQ(resolvedHere(u"."_s), stickFolder);
}

TEST(ResolvedPath, ATildeIsTheHomeFolder)
{
    EXPECT_EQ(resolvedHere(u"~"_s), systemPath(QDir::homePath()));
    EXPECT_EQ(resolvedHere(u"~/Backup/"_s), systemPath(QDir::homePath() + u"/Backup/"_s));
    EXPECT_EQ(resolvedHere(u"~a.tmj"_s), systemPath(u"/stick/Zeph/~a.tmj"_s));
}

TEST(ResolvedPath, NothingStaysNothing)
{
    for (const QString &path : { QString(), u"None"_s, u" NONE "_s }) {
        EXPECT_EQ(resolvedHere(path), path);
    }
}

TEST(ResolvedPath, AProgramThatTheSystemLooksUpStaysABareName)
{
    for (const QString &command :
         { u"falcon.exe"_s, u"falcon.exe -w C:\\x"_s, u"\"My game/x\" -w"_s, u"www.falcon.org"_s,
           u"http://falcon.org/play"_s, u"C:\\Falcon\\f.exe -g2"_s }) {
        EXPECT_EQ(resolvedHere(command, PathKind::Command), command);
    }
    const QString inside = systemPath(u"/stick/Zeph/falcon.exe"_s);
    EXPECT_EQ(resolvedHere(storedPath(inside, stickFolder, PathKind::Command), PathKind::Command),
              inside);
    EXPECT_EQ(resolvedHere(u"Games/f.exe -w a//b"_s, PathKind::Command),
              stickFolder + QDir::separator() + u"Games/f.exe -w a//b"_s);
}

TEST(ResolvedPath, AFullOneWhoseFolderIsGoneIsMendedWhenTheSameFileLiesHere)
{
    const TempFolder folder;
    const QString file = systemPath(folder.write(u"Files/a.tmj"_s, "x"));
    for (const QString &old :
         { u"/gone/Zeph/Files/a.tmj"_s, u"E:\\Zeph\\Files\\A.TMJ"_s, u"/gone/Files/a.tmj"_s }) {
        const QString found = resolvedPath(old, folder.path());
        EXPECT_EQ(found, systemPath(found));
        EXPECT_TRUE(isSameFile(found, file)) << found.toStdString();
    }
    EXPECT_EQ(resolvedPath(u"E:\\Zeph\\Files\\"_s, folder.path()),
              systemPath(folder.file(u"Files/"_s)));
}

TEST(ResolvedPath, AFullOneIsLeftWhereItsFolderOrNoSuchFileExists)
{
    const TempFolder folder;
    const TempFolder other;
    folder.write(u"Files/a.tmj"_s, "x");
    const QString deleted = other.file(u"a.tmj"_s);
    EXPECT_EQ(resolvedPath(deleted, folder.file(u"Files"_s)), deleted);
    EXPECT_EQ(resolvedPath(u"E:\\Zeph\\Files\\b.tmj"_s, folder.path()), u"E:\\Zeph\\Files\\b.tmj");
}

TEST(PathKeys, AreKnownBySectionAndNameWithoutTheNumber)
{
    EXPECT_EQ(pathKindOf(u"FileLocations", u"BackUpFolder"), PathKind::File);
    EXPECT_EQ(pathKindOf(u"PreviousMacroFiles", u"MFPath12"), PathKind::File);
    EXPECT_EQ(pathKindOf(u"Games", u"GamePath3"), PathKind::Command);
    EXPECT_EQ(pathKindOf(u"Games", u"GameName3"), PathKind::None);
    EXPECT_EQ(pathKindOf(u"Favourites", u"BackUpFolder"), PathKind::None);
}

TEST(StoredValue, IsMeantFromTheFolderOfTheStore)
{
    const ProfileFile store(systemPath(u"/stick/Zeph/Zeph.2"_s));
    const QString path = systemPath(u"/stick/Zeph/Files/a.tmj"_s);
    const QString stored = storedValue(store, u"Miscellaneous", u"RestoreJoyFile", path);
    EXPECT_EQ(stored, systemPath(u"Files/a.tmj"_s));
    EXPECT_EQ(resolvedValue(store, u"Miscellaneous", u"RestoreJoyFile", stored), path);
    EXPECT_EQ(resolvedValue(store, u"Miscellaneous", u"PilotCallsign", stored), stored);
}

#ifdef Q_OS_WIN

TEST(StoredPath, NamesOfDrivesAndSharesHaveNoCase)
{
    EXPECT_EQ(storedPath(u"e:\\STICK\\zeph\\Files\\a.tmj"_s, u"E:\\Stick\\Zeph"_s),
              u"Files\\a.tmj");
    EXPECT_EQ(
        storedPath(u"\\\\Server\\pilots\\Zeph\\Files\\a.tmj"_s, u"\\\\server\\Pilots\\Zeph"_s),
        u"Files\\a.tmj");
    EXPECT_EQ(storedPath(u"F:\\Stick\\Zeph\\a.tmj"_s, u"E:\\Stick\\Zeph"_s),
              u"F:\\Stick\\Zeph\\a.tmj");
}

TEST(ResolvedPath, GoesWithTheFolderToAnotherDriveAndToAShare)
{
    for (const QString &folder : { u"F:\\Zeph"_s, u"\\\\server\\share\\Zeph"_s }) {
        EXPECT_EQ(resolvedPath(u"Files/a.tmj"_s, folder), folder + u"\\Files\\a.tmj"_s);
        EXPECT_EQ(resolvedPath(u"..\\a.tmj"_s, folder), folder.chopped(4) + u"a.tmj"_s);
    }
}

#endif
