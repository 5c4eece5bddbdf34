// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/changed_files.h"

#include "editor/files/auto_save.h"
#include "editor/files/both_texts.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "tests/support/editor_fixture.h"

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QTimer>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

const QString title = u"a.tmj has changed on the disk"_s;

class ChangedFilesTest : public EditorTest
{
protected:
    ChangedFilesTest()
    {
        path = file(u"a.tmj"_s, "BTN S1 a");
        editor->opening().OpenFavouriteFile(path);
    }
    ChangedFiles &files() { return editor->guards().changedFiles; }
    void change(const QByteArray &bytes) { folder.write(u"Files/a.tmj"_s, bytes); }
    QByteArray onDisk() { return folder.read(u"Files/a.tmj"_s); }

    QString path;
};

} // namespace

TEST_F(ChangedFilesTest, AFileThatNobodyTouchedIsNoneAndNeitherIsOneWrittenHere)
{
    EXPECT_FALSE(files().hasChanged(editor->joystick()));
    type(DocumentKind::Joystick, u"x"_s);
    editor->saving().mnuFileSave_Click();
    EXPECT_FALSE(files().hasChanged(editor->joystick()));
    files().check();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(ChangedFilesTest, OtherBytesOfTheSameLengthAreNoticedAtOnce)
{
    change("BTN S1 b");
    EXPECT_TRUE(files().hasChanged(editor->joystick()));
}

TEST_F(ChangedFilesTest, TheSameBytesWrittenAgainAreNoChange)
{
    change("BTN S1 a");
    EXPECT_FALSE(files().hasChanged(editor->joystick()));
}

TEST_F(ChangedFilesTest, AFileThatIsGoneIsNotAskedAbout)
{
    QFile::remove(path);
    EXPECT_FALSE(files().hasChanged(editor->joystick()));
}

TEST_F(ChangedFilesTest, AFileThatAnotherProgramEmptiedIsAskedAbout)
{
    change("");
    dialogs.answer(title, BoxButton::No);
    files().check();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::No);
    files().check();
}

TEST_F(ChangedFilesTest, AFileThatWasEmptyHereIsAskedAboutWhenAnotherProgramFillsIt)
{
    change("");
    editor->opening().OpenFavouriteFile(path);
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Cancel);
    files().check();
    dialogs.answer(title, BoxButton::Cancel);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(onDisk(), "BTN S1 other");
}

TEST_F(ChangedFilesTest, ItIsLoadedAnewWhenTheUserSaysSo)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Yes);
    files().check();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 other");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    files().check();
}

TEST_F(ChangedFilesTest, TheTextThatIsKeptIsModifiedAndItsSaveAsksNoMore)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::No);
    files().check();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    files().check();
    EXPECT_EQ(onDisk(), "BTN S1 other");
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(onDisk(), "BTN S1 a");
}

TEST_F(ChangedFilesTest, TheTextThatIsKeptGoesIntoTheRecoveryFileWithoutAKey)
{
    auto *timer = editor->findChild<QTimer *>(u"RecoveryTimer"_s);
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::No);
    files().check();
    EXPECT_TRUE(timer->isActive());
}

TEST_F(ChangedFilesTest, BytesThatComeWhileTheQuestionIsOpenAreNotTakenForAnswered)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Other);
    dialogs.answer(title, BoxButton::No);
    QTimer::singleShot(0, editor.get(), [&] {
        change("BTN S1 third");
        QApplication::activeModalWidget()->close();
    });
    files().check();
    EXPECT_FALSE(files().hasChanged(editor->joystick())) << "the second question was about these";
    change("BTN S1 fourth");
    EXPECT_TRUE(files().hasChanged(editor->joystick()));
}

TEST_F(ChangedFilesTest, BeforeACompileTheAnswerDecidesWhetherTheFileIsTheTextShown)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Cancel);
    EXPECT_FALSE(editor->saving().settleChange(editor->joystick()));
    dialogs.answer(title, BoxButton::No);
    EXPECT_TRUE(editor->saving().settleChange(editor->joystick()));
    EXPECT_TRUE(editor->joystick().isModified()) << "to be saved before it is sent";
    EXPECT_TRUE(editor->saving().settleChange(editor->joystick()));
}

TEST_F(ChangedFilesTest, AnotherChangeAfterThatIsAskedAboutAgain)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::No);
    files().check();
    change("BTN S1 third");
    dialogs.answer(title, BoxButton::Yes);
    files().check();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 third");
}

TEST_F(ChangedFilesTest, NotNowAsksAgainAtTheSaveAndNotBefore)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Cancel);
    files().check();
    files().check();
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answer(title, BoxButton::Cancel);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(onDisk(), "BTN S1 other");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(status.text(), u"a.tmj isn't saved");
    dialogs.answer(title, BoxButton::No);
    editor->saving().mnuFileSave_Click();
    EXPECT_EQ(onDisk(), "xBTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(ChangedFilesTest, ASaveThatLoadsAnewWritesNothing)
{
    type(DocumentKind::Joystick, u"x"_s);
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Yes);
    editor->saving().mnuFileSave_Click();
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(u"would be gone"_s));
    EXPECT_EQ(editor->joystickText(), u"BTN S1 other");
    EXPECT_EQ(onDisk(), "BTN S1 other");
}

TEST_F(ChangedFilesTest, BothTextsAreShownAndTheQuestionComesAgain)
{
    change("BTN S1 other");
    QString ours;
    QString theirs;
    dialogs.answer(title, BoxButton::Other);
    dialogs.answer(title, BoxButton::No);
    QTimer::singleShot(0, editor.get(), [&] {
        auto *window = qobject_cast<BothTexts *>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        ours = window->findChild<QPlainTextEdit *>(u"OurText"_s)->toPlainText();
        auto *disk = window->findChild<QPlainTextEdit *>(u"DiskText"_s);
        theirs = disk->toPlainText();
        EXPECT_TRUE(disk->isReadOnly());
        window->reject();
    });
    files().check();
    EXPECT_EQ(ours, u"BTN S1 a");
    EXPECT_EQ(theirs, u"BTN S1 other");
}

TEST_F(ChangedFilesTest, AnAutosaveLeavesItAloneAndSaysSo)
{
    type(DocumentKind::Joystick, u"x"_s);
    change("BTN S1 other");
    editor->guards().recovery.update();
    editor->guards().autoSave.AutoSaveFile();
    EXPECT_EQ(onDisk(), "BTN S1 other");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_TRUE(status.text().contains(path)) << status.text().toStdString();
    EXPECT_TRUE(status.text().contains(u"another program"_s)) << status.text().toStdString();
    EXPECT_TRUE(folder.exists(u"Recovery/1/joystick.txt"_s));
}

TEST_F(ChangedFilesTest, TheUsersTextWrittenByAnotherProgramIsSaved)
{
    type(DocumentKind::Joystick, u"x"_s);
    change("xBTN S1 a");
    dialogs.answer(title, BoxButton::No);
    files().check();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(ChangedFilesTest, TheWindowsFocusBringsTheQuestion)
{
    change("BTN S1 other");
    dialogs.answer(title, BoxButton::Yes);
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&editor->view(), &activated);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor->joystickText(), u"BTN S1 other");
}

TEST(DifferentLinesTest, AreThoseThatTheOtherTextDoesNotHaveAtThatPlace)
{
    const DifferentLines lines = differentLines(u"a\nb\nc\nd", u"a\nx\nc\nnew\nd");
    EXPECT_EQ(lines.ours, (std::vector<bool>{ false, true, false, false }));
    EXPECT_EQ(lines.theirs, (std::vector<bool>{ false, true, false, true, false }));
}

TEST(DifferentLinesTest, ALongBlockThatWasPutInIsNoOtherDifference)
{
    const QString block = u"new\n"_s.repeated(1000);
    const DifferentLines lines = differentLines(u"a\nb", u"a\n"_s + block + u'b');
    EXPECT_EQ(lines.ours, (std::vector<bool>{ false, false }));
    EXPECT_EQ(std::ranges::count(lines.theirs, true), 1000);
}
