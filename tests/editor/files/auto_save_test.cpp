// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/auto_save.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "menus/menu_actions.h"
#include "platform/core/rtf.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QFile>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

const QString unsavedTitle = u"I couldn't save your file buddy"_s;

class AutoSaveTest : public EditorTest
{
protected:
    AutoSaveTest()
    {
        settings.of<EditorSettings>().AutoSaveEnabled = true;
        settings.of<EditorSettings>().AutoSaveTime = 5;
        settings.of<EditorSettings>().CreateBackup = false;
        settings.of<EditorSettings>().BackUpFolder = folder.file(u"Backup/"_s);
        QDir().mkpath(settings.of<EditorSettings>().BackUpFolder);
    }
    AutoSave &guard() { return editor->guards().autoSave; }
    QString open(const QString &name, const QByteArray &bytes)
    {
        const QString path = file(name, bytes);
        editor->opening().OpenFavouriteFile(path);
        return path;
    }
    QStringList backups()
    {
        return QDir(settings.of<EditorSettings>().BackUpFolder).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(AutoSaveTest, WithFiveMinutesTheFifthTickSavesAndTheSixthCountsOne)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    for (int tick = 1; tick <= 4; ++tick) {
        guard().Timer1_Timer();
        EXPECT_EQ(guard().counted(), tick);
    }
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
    guard().Timer1_Timer();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN S1 a");
    EXPECT_EQ(guard().counted(), 0);
    guard().Timer1_Timer();
    EXPECT_EQ(guard().counted(), 1);
}

TEST_F(AutoSaveTest, AnUnmodifiedDocumentIsNotTouched)
{
    const QString path = open(u"a.tmj"_s, "BTN S1 a");
    file(u"a.tmj"_s, "changed by another program");
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "changed by another program");
    EXPECT_NE(status.text(), path + u" saved successfully."_s);
}

TEST_F(AutoSaveTest, BothDocumentsAreSavedWithTheirColouredCopies)
{
    open(u"a.tmj"_s, "BTN S1 a");
    const QString macro = open(u"a.tmm"_s, "m = a");
    type(DocumentKind::Joystick, u"x"_s);
    type(DocumentKind::Macro, u"y"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN S1 a");
    EXPECT_EQ(folder.read(u"Files/a.tmm"_s), "ym = a");
    EXPECT_EQ(readRtf(folder.read(u"Rtf/a.tmj"_s))->text, u"xBTN S1 a");
    EXPECT_EQ(readRtf(folder.read(u"Rtf/a.tmm"_s))->text, u"ym = a");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(editor->macro().state(), Document::Saved);
    EXPECT_EQ(status.text(), macro + u" saved successfully."_s);
    EXPECT_EQ(status.savedPicture(), 2);
}

TEST_F(AutoSaveTest, CaretStampAndHistoryStayAsTheyAre)
{
    settings.of<DocumentSettings>().UndoClearOnSave = true;
    open(u"a.tmj"_s, "Rem Last modified: long ago\r\nBTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    editor->joystick().select(5, 3);
    ASSERT_TRUE(editor->action(u"mnuEditUndo")->isEnabled());
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xRem Last modified: long ago\r\nBTN S1 a");
    EXPECT_EQ(editor->joystick().selStart(), 5);
    EXPECT_EQ(editor->joystick().selLength(), 3);
    EXPECT_TRUE(editor->action(u"mnuEditUndo")->isEnabled());
}

TEST_F(AutoSaveTest, AnUnnamedDocumentIsSavedUnderItsFreshName)
{
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "BTN S1 a");
    type(DocumentKind::Joystick, u"b"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "BTN S1 ab");
    EXPECT_TRUE(backups().isEmpty());
}

TEST_F(AutoSaveTest, AnEarlierRunsUnnamedFileMovesAmongTheBackups)
{
    file(u"Untitled.tmj"_s, "yesterday's work");
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "BTN S1 a");
    ASSERT_EQ(backups(), QStringList{ u"Untitled Mar 05 2024, 09-07am.tmj"_s });
    EXPECT_EQ(folder.read(u"Backup/Untitled Mar 05 2024, 09-07am.tmj"_s), "yesterday's work");
}

TEST_F(AutoSaveTest, TheUnnamedDocumentBeforeMovesAmongTheBackups)
{
    type(DocumentKind::Joystick, u"an hour's work"_s);
    guard().AutoSaveFile();
    // It counts as saved, so nobody is asked.
    editor->fresh().mnuFileNewJoystick_Click();
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "BTN S1 a");
    ASSERT_EQ(backups(), QStringList{ u"Untitled Mar 05 2024, 09-07am.tmj"_s });
    EXPECT_EQ(folder.read(u"Backup/Untitled Mar 05 2024, 09-07am.tmj"_s), "an hour's work");
}

TEST_F(AutoSaveTest, AnotherProgramsUnnamedFileMovesAmongTheBackups)
{
    type(DocumentKind::Joystick, u"a"_s);
    guard().AutoSaveFile();
    file(u"Untitled.tmj"_s, "another window's work");
    type(DocumentKind::Joystick, u"b"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "ab");
    ASSERT_EQ(backups().size(), 1);
    EXPECT_EQ(folder.read(u"Backup/"_s + backups()[0]), "another window's work");
}

TEST_F(AutoSaveTest, AnUnnamedFileThatCannotMoveAsideStaysAndIsTold)
{
    file(u"Untitled.tmj"_s, "yesterday's work");
    settings.of<EditorSettings>().BackUpFolder =
        folder.write(u"file"_s, "no folder") + u"/below/"_s;
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/Untitled.tmj"_s), "yesterday's work");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_TRUE(status.text().contains(u"wasn't saved"_s)) << status.text().toStdString();
}

TEST_F(AutoSaveTest, AReadOnlyFileFailsAndStaysAsItIs)
{
    const QString path = open(u"a.tmj"_s, "BTN S1 a");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser);
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answer(unsavedTitle, BoxButton::Ok);
    guard().AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(AutoSaveTest, ALetterThatTheFileCannotHoldIsToldWithoutMovingTheCaret)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"\u03A9"_s);
    editor->joystick().select(4, 0);
    dialogs.answer(u"There's a letter in there that I can't write"_s, BoxButton::Ok);
    guard().AutoSaveFile();
    EXPECT_EQ(editor->joystick().selStart(), 4);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(AutoSaveTest, ItRunsOnlyWhenWantedAndAFreshDocumentStartsTheCount)
{
    guard().restart();
    EXPECT_TRUE(guard().runs());
    guard().Timer1_Timer();
    EXPECT_EQ(guard().counted(), 1);
    editor->fresh().mnuFileNewJoystick_Click();
    EXPECT_EQ(guard().counted(), 0);
    settings.of<EditorSettings>().AutoSaveEnabled = false;
    editor->fresh().mnuFileNewMacro_Click();
    EXPECT_FALSE(guard().runs());
}

TEST_F(AutoSaveTest, ABackupFollowsEachSaveOfEitherDocument)
{
    settings.of<EditorSettings>().CreateBackup = true;
    open(u"a.tmj"_s, "BTN S1 a");
    open(u"a.TMM"_s, "m = a");
    type(DocumentKind::Joystick, u"x"_s);
    type(DocumentKind::Macro, u"y"_s);
    // The macro file's tab is in front: each backup has its own document's name all the same.
    guard().AutoSaveFile();
    EXPECT_EQ(backups(), (QStringList{ u"a.tmj"_s, u"a.tmm"_s }));
    EXPECT_EQ(folder.read(u"Backup/a.tmj"_s), "xBTN S1 a");
    EXPECT_EQ(folder.read(u"Backup/a.tmm"_s), "ym = a");
    type(DocumentKind::Macro, u"z"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Backup/a.tmm"_s), folder.read(u"Files/a.TMM"_s));
}

TEST_F(AutoSaveTest, AnEmptyBackupFolderMeansTheOneBesideTheProgram)
{
    settings.of<EditorSettings>().CreateBackup = true;
    settings.of<EditorSettings>().BackUpFolder.clear();
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Backup/a.tmj"_s), "xBTN S1 a");
}

TEST_F(AutoSaveTest, ABackupThatCannotBeWrittenIsToldAndTheSaveHolds)
{
    settings.of<EditorSettings>().CreateBackup = true;
    settings.of<EditorSettings>().BackUpFolder = folder.file(u"nowhere/"_s);
    const QString path = open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN S1 a");
    EXPECT_TRUE(status.text().startsWith(path + u" saved successfully. Its backup wasn't: "_s))
        << status.text().toStdString();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(AutoSaveTest, TheEmergencySavesBothAsAUserWould)
{
    open(u"a.tmj"_s, "BTN S1 a");
    open(u"a.tmm"_s, "m = a");
    type(DocumentKind::Joystick, u"x"_s);
    type(DocumentKind::Macro, u"y"_s);
    dialogs.answer(u"Zeph - Emergency file save procedure executed"_s, BoxButton::Ok);
    guard().EmergencySaveFiles();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN S1 a");
    EXPECT_EQ(folder.read(u"Files/a.tmm"_s), "ym = a");
}
