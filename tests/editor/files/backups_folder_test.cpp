// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/backups.h"

#include "tests/support/fixture.h"

#include <QFileInfo>

using namespace zeph;

using BackupFolder = test::WorldTest;

TEST_F(BackupFolder, EmptyMeansTheOneBesideTheProgramWhichIsMade)
{
    EXPECT_EQ(checkedBackupFolder({}, paths, dialogs), folder.file(u"Backup/"_s));
    EXPECT_TRUE(QFileInfo(folder.file(u"Backup"_s)).isDir());
}

TEST_F(BackupFolder, GetsItsClosingSeparatorAndAllItsParents)
{
    const QString wanted = folder.file(u"far/away"_s);
    EXPECT_EQ(checkedBackupFolder(wanted, paths, dialogs), withClosingSeparator(wanted));
    EXPECT_TRUE(QFileInfo(wanted).isDir());
}

TEST_F(BackupFolder, OneThatCannotBeMadeIsToldAndTheDefaultTakesItsPlace)
{
    const QString inTheWay = folder.write(u"file"_s, "not a folder");
    dialogs.answer(u"Backup folder location error"_s, BoxButton::Ok);
    EXPECT_EQ(checkedBackupFolder(inTheWay + u"/below"_s, paths, dialogs),
              folder.file(u"Backup/"_s));
    EXPECT_TRUE(QFileInfo(folder.file(u"Backup"_s)).isDir());
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const QString text = dialogs.boxes()[0].text;
    EXPECT_TRUE(text.startsWith(
        u"There's a problem with your backup folder. Either it doesn't exist or I can't create it. "
        "Please edit your preferences. In the meantime I will change it to the default location."
        "\n\nError reported from Windows: Error number = "_s));
    EXPECT_TRUE(text.contains(u"\n Description = "_s));
    EXPECT_FALSE(text.endsWith(u" Description = "_s));
}
