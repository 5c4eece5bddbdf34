// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document.h"
#include "editor/files/recovery.h"

#include "editor/editor_settings.h"
#include "editor/files/auto_save.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "settings/shared_settings.h"
#include "tests/support/editor_fixture.h"

#include <QFile>
#include <QTimer>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

const QString offerTitle = u"Look what I found, buddy"_s;
const QString takeOverTitle = u"Is somebody else at work?"_s;

class RecoveryTest : public EditorTest
{
protected:
    RecoveryTest()
    {
        settings.of<SharedSettings>().PilotCallsign = u"buddy"_s;
        settings.of<EditorSettings>().BackUpFolder = folder.file(u"Backup/"_s);
    }
    Recovery &recovery() { return editor->guards().recovery; }
    QString parent() const { return folder.file(u"Recovery"_s); }
    QString open(const QString &name, const QByteArray &bytes)
    {
        const QString path = file(name, bytes);
        editor->opening().OpenFavouriteFile(path);
        return path;
    }
    std::optional<RecoveredText> kept(const QString &name)
    {
        return readRecovery(folder.read(u"Recovery/"_s + name));
    }
    /// An edit of the joystick text, as a tool makes it.
    void rewrite(int start, int length, const QString &text)
    {
        Change change(editor->joystick());
        editor->joystick().replace(start, length, text);
        change.commit();
    }
    /// What a run leaves that was killed.
    QString leave(DocumentKind kind, const QString &path, const QString &text, int number = 7)
    {
        const QString name = kind == DocumentKind::Joystick ? u"joystick.txt"_s : u"macro.txt"_s;
        return folder.write(u"Recovery/%1/"_s.arg(number) + name,
                            recoveryBytes({ recoveredKind(kind), path, clock.now(), text }));
    }
};

} // namespace

TEST(RecoveryFiles, WhatIsWrittenIsRead)
{
    const RecoveredText text{ RecoveredKind::Macro, u"C:/F\u00FCnf/a.tmm"_s,
                              QDateTime(QDate(2024, 3, 5), QTime(9, 7, 30)),
                              u"m = \u03A9\n\n~ Kind=Joystick\n"_s };
    EXPECT_EQ(readRecovery(recoveryBytes(text)), text);
}

TEST(RecoveryFiles, WhatIsTornOrForeignIsNoRecoveryFile)
{
    const QByteArray whole =
        recoveryBytes({ RecoveredKind::Joystick, u"a.tmj"_s, QDateTime(), u"BTN S1 a"_s });
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readRecovery(whole.first(length))) << length;
    }
    EXPECT_FALSE(readRecovery(whole + 'x'));
    QByteArray otherKind = whole;
    otherKind.replace("Kind=Joystick", "Kind=Throttle");
    EXPECT_FALSE(readRecovery(otherKind));
}

TEST_F(RecoveryTest, UnsavedTextsAreOnTheDiskAndSavedOnesAreNot)
{
    const QString path = open(u"a.tmj"_s, "BTN S1 a");
    EXPECT_FALSE(QFile::exists(parent()));
    type(DocumentKind::Joystick, u"\u03A9x"_s);
    recovery().update();
    EXPECT_EQ(kept(u"1/joystick.txt"_s),
              (RecoveredText{ RecoveredKind::Joystick, path, clock.now(), u"\u03A9xBTN S1 a"_s }));
    EXPECT_FALSE(QFile::exists(parent() + u"/1/macro.txt"_s));
    rewrite(0, 1, u""_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_FALSE(QFile::exists(parent() + u"/1/joystick.txt"_s));
}

TEST_F(RecoveryTest, AnAutosaveAndAFreshDocumentTakeTheFileAwayToo)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    type(DocumentKind::Macro, u"m = a"_s);
    recovery().update();
    editor->guards().autoSave.AutoSaveFile();
    EXPECT_FALSE(QFile::exists(parent() + u"/1/joystick.txt"_s));
    type(DocumentKind::Macro, u"b"_s);
    recovery().update();
    ASSERT_TRUE(QFile::exists(parent() + u"/1/macro.txt"_s));
    dialogs.answer(u" Save Untitled.tmm now?"_s, BoxButton::No);
    editor->fresh().mnuFileNewMacro_Click();
    EXPECT_FALSE(QFile::exists(parent() + u"/1/macro.txt"_s));
}

TEST_F(RecoveryTest, TheBareFolderThatAKillAtTheEndLeftIsTakenAway)
{
    const QString parent = folder.file(u"Bare/"_s);
    ASSERT_TRUE(QDir().mkdir(parent));
    EXPECT_TRUE(leftRecoveries(parent).empty());
    EXPECT_FALSE(folder.exists(u"Bare"_s));
}

TEST_F(RecoveryTest, ACleanExitLeavesNothing)
{
    type(DocumentKind::Joystick, u"x"_s);
    recovery().update();
    ASSERT_TRUE(QFile::exists(parent()));
    recovery().finish();
    EXPECT_FALSE(QFile::exists(parent()));
}

TEST_F(RecoveryTest, NothingLeftAsksNothing)
{
    recovery().offerLeft();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(RecoveryTest, WhatIsTakenBackStandsModifiedAndTheFileIsUntouched)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    leave(DocumentKind::Joystick, path, u"BTN S1 a lot more"_s);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a lot more");
    EXPECT_EQ(editor->joystick().path(), path);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
    // It is this run's own now, and still on the disk.
    EXPECT_FALSE(QFile::exists(parent() + u"/7"_s));
    EXPECT_EQ(kept(u"1/joystick.txt"_s)->text, u"BTN S1 a lot more");
}

TEST_F(RecoveryTest, TheOfferShowsBothDates)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    QFile onDisk(path);
    ASSERT_TRUE(onDisk.open(QFile::ReadWrite));
    onDisk.setFileTime(QDateTime(QDate(2024, 3, 4), QTime(18, 30)), QFile::FileModificationTime);
    onDisk.close();
    leave(DocumentKind::Joystick, path, u"more"_s);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    const QString text = dialogs.boxes().constFirst().text;
    EXPECT_TRUE(text.contains(path));
    EXPECT_TRUE(text.contains(u"05 March 2024, 9:07 am"_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"04 March 2024, 6:30 pm"_s)) << text.toStdString();
}

TEST_F(RecoveryTest, WhatIsNotWantedGoesIntoTheBackupFolder)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    leave(DocumentKind::Joystick, path, u"BTN S1 more"_s);
    dialogs.answer(offerTitle, BoxButton::No);
    recovery().offerLeft();
    EXPECT_EQ(editor->joystickText(), QString());
    EXPECT_EQ(folder.read(u"Backup/a Mar 05 2024, 09-07am.tmj"_s), "BTN S1 more");
    EXPECT_FALSE(QFile::exists(parent()));
}

TEST_F(RecoveryTest, WhatIsOnTheDiskAlreadyIsNotOffered)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a\r\n");
    leave(DocumentKind::Joystick, path, u"BTN S1 a\n"_s);
    recovery().offerLeft();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_FALSE(QFile::exists(parent()));
}

TEST_F(RecoveryTest, ASecondTextOfTheKindDoesNotPushTheFirstOut)
{
    leave(DocumentKind::Joystick, file(u"a.tmj"_s, "a"), u"first"_s, 7);
    leave(DocumentKind::Joystick, file(u"b.tmj"_s, "b"), u"second"_s, 8);
    leave(DocumentKind::Macro, file(u"c.tmm"_s, "c"), u"third"_s, 8);
    dialogs.answer(offerTitle, BoxButton::Yes);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    EXPECT_EQ(editor->macroText(), u"third");
    const QStringList backups =
        QDir(settings.of<EditorSettings>().BackUpFolder).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(backups.size(), 1);
    // Which of the two runs is the later one is the file system's word.
    const bool firstShown = editor->joystickText() == u"first"_s;
    EXPECT_EQ(editor->joystickText(), firstShown ? u"first"_s : u"second"_s);
    EXPECT_EQ(folder.read(u"Backup/"_s + backups[0]), firstShown ? "second" : "first");
}

TEST_F(RecoveryTest, ARunningProgramsFilesAreNotOffered)
{
    leave(DocumentKind::Joystick, file(u"a.tmj"_s, "a"), u"its own"_s, 3);
    const InstanceLock other(parent() + u"/3"_s);
    recovery().offerLeft();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_TRUE(QFile::exists(parent() + u"/3/joystick.txt"_s));
}

TEST_F(RecoveryTest, AnotherMachinesTextsAreOfferedOnlyAfterAQuestion)
{
    leave(DocumentKind::Joystick, file(u"a.tmj"_s, "a"), u"its own"_s, 3);
    QFile lock(folder.write(u"Recovery/3/Zeph.lock"_s, "4711\nzeph\nhangar\nfeedc0de\n0815\n"));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    recovery().offerLeft();
    EXPECT_TRUE(dialogs.boxes().isEmpty()) << "touched a moment ago";
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-11 * 60),
                                 QFileDevice::FileModificationTime));
    lock.close();
    dialogs.answer(takeOverTitle, BoxButton::No);
    recovery().offerLeft();
    EXPECT_TRUE(folder.exists(u"Recovery/3/joystick.txt"_s));
    dialogs.answer(takeOverTitle, BoxButton::Yes);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    EXPECT_EQ(editor->joystickText(), u"its own");
    EXPECT_FALSE(folder.exists(u"Recovery/3"_s));
}

TEST_F(RecoveryTest, WhereNothingCanBeWrittenItIsToldOnce)
{
    folder.write(u"Recovery"_s, "a file where the folder should be");
    type(DocumentKind::Joystick, u"x"_s);
    recovery().update();
    EXPECT_TRUE(status.text().contains(u"better save often"_s)) << status.text().toStdString();
    status.setText(u"other"_s);
    type(DocumentKind::Joystick, u"y"_s);
    recovery().update();
    EXPECT_EQ(status.text(), u"other");
}

TEST_F(RecoveryTest, ItComesThreeSecondsAfterTheFirstUnkeptKeyToTheMillisecond)
{
    const auto *timer = editor->findChild<QTimer *>(u"RecoveryTimer"_s);
    ASSERT_TRUE(timer);
    EXPECT_EQ(timer->interval(), 3000);
    EXPECT_EQ(timer->timerType(), Qt::PreciseTimer);
    EXPECT_FALSE(timer->isActive());
    type(DocumentKind::Joystick, u"x"_s);
    EXPECT_TRUE(timer->isActive());
}

TEST_F(RecoveryTest, AWriteThatFailedIsTriedAgainWithoutAnotherKey)
{
    const QString inTheWay = folder.write(u"Recovery"_s, "a file where the folder should be");
    type(DocumentKind::Joystick, u"x"_s);
    auto *timer = editor->findChild<QTimer *>(u"RecoveryTimer"_s);
    timer->stop();
    recovery().update();
    EXPECT_TRUE(timer->isActive());
    QFile::remove(inTheWay);
    timer->stop();
    recovery().update();
    EXPECT_EQ(kept(u"1/joystick.txt"_s)->text, u"x");
    EXPECT_FALSE(timer->isActive());
}

TEST_F(RecoveryTest, ASaveFindsTheRecoveryFileAsNewAsItself)
{
    const QString path = open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    recovery().update();
    type(DocumentKind::Joystick, u"y"_s);
    std::optional<RecoveredText> rightAfter;
    QObject::connect(&editor->joystick(), &Document::aboutToBeWritten, editor.get(),
                     [&] { rightAfter = kept(u"1/joystick.txt"_s); });
    editor->saving().mnuFileSave_Click();
    ASSERT_TRUE(rightAfter);
    EXPECT_EQ(rightAfter->text, editor->joystickText());
}

TEST_F(RecoveryTest, ATextThatCameBackIsNotAutosavedBeforeTheUserSavesIt)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    leave(DocumentKind::Joystick, path, u"BTN S1 a lot more"_s);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    AutoSave &autoSave = editor->guards().autoSave;
    autoSave.AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a lot more");
    rewrite(0, 3, u"Rem"_s);
    autoSave.AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "Rem S1 a lot more");
}

TEST_F(RecoveryTest, AnotherDocumentInItsPlaceIsAutosavedAgain)
{
    leave(DocumentKind::Joystick, file(u"a.tmj"_s, "BTN S1 a"), u"more"_s);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    dialogs.answer(u" Save a.tmj now?"_s, BoxButton::No);
    open(u"b.tmj"_s, "BTN S1 b");
    type(DocumentKind::Joystick, u"x"_s);
    editor->guards().autoSave.AutoSaveFile();
    EXPECT_EQ(folder.read(u"Files/b.tmj"_s), "xBTN S1 b");
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
}

TEST_F(RecoveryTest, ATextThatAFallenRunHadTakenBackItselfIsOfferedOnce)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    leave(DocumentKind::Joystick, path, u"BTN S1 more"_s, 7);
    leave(DocumentKind::Joystick, path, u"BTN S1 more"_s, 8);
    dialogs.answer(offerTitle, BoxButton::Yes);
    recovery().offerLeft();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 more");
    EXPECT_TRUE(QDir(settings.of<EditorSettings>().BackUpFolder).entryList(QDir::Files).isEmpty());
    EXPECT_FALSE(QFile::exists(parent() + u"/7"_s));
    EXPECT_FALSE(QFile::exists(parent() + u"/8"_s));
}

TEST_F(RecoveryTest, ThePartOfATornWriteDoesNotKeepTheFolder)
{
    // As each system's way to replace files names them.
    for (const auto *part : { u"joystick.txt.Xa3kQz", u"~1n5n7nk" }) {
        folder.write(u"Recovery/7/"_s + QString::fromUtf16(part), "Zeph recov");
    }
    recovery().offerLeft();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_FALSE(QFile::exists(parent()));
}

TEST_F(RecoveryTest, TheTimersWriteDoesNotHoldTheEditorUp)
{
    // Long enough to be told from a write that is waited for.
    const QString line = u"BTN S1 /I Radar_Mode /O Missile_Mode Rem a line\n"_s;
    type(DocumentKind::Joystick, line.repeated(200'000));
    recovery().updateSoon();
    EXPECT_FALSE(folder.exists(u"Recovery/1/joystick.txt"_s));
    // What follows waits for it.
    recovery().update();
    EXPECT_EQ(kept(u"1/joystick.txt"_s)->text, editor->joystickText());
}

TEST_F(RecoveryTest, AWriteUnderWayIsOverBeforeTheFileGoes)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    recovery().updateSoon();
    editor->saving().mnuFileSave_Click();
    EXPECT_FALSE(QFile::exists(parent() + u"/1/joystick.txt"_s));
}

TEST_F(RecoveryTest, AFailureOfTheOtherThreadIsToldAndTriedAgain)
{
    folder.write(u"Recovery"_s, "a file where the folder should be");
    type(DocumentKind::Joystick, u"x"_s);
    auto *timer = editor->findChild<QTimer *>(u"RecoveryTimer"_s);
    timer->stop();
    recovery().updateSoon();
    recovery().catchUp();
    EXPECT_TRUE(status.text().contains(u"better save often"_s)) << status.text().toStdString();
    EXPECT_TRUE(timer->isActive());
}

TEST_F(RecoveryTest, ADamagedFileIsToldWithItsPathAndStays)
{
    const QString path = leave(DocumentKind::Joystick, file(u"a.tmj"_s, "a"), u"text"_s);
    const QByteArray damaged = folder.read(u"Recovery/7/joystick.txt"_s).chopped(2);
    folder.write(u"Recovery/7/joystick.txt"_s, damaged);
    dialogs.answer(u"I can't read that black box"_s, BoxButton::Ok);
    recovery().offerLeft();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(path));
    EXPECT_EQ(folder.read(u"Recovery/7/joystick.txt"_s), damaged);
}
