// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Opening and saving where files, names and folders are not as one would like them.

#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/use_directives.h"
#include "menus/menu_actions.h"
#include "platform/core/rtf.h"
#include "settings/shared_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class FileExtremesTest : public EditorTest
{
protected:
    FileOpening &opening() { return editor->opening(); }
    FileSaving &saving() { return editor->saving(); }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    QString tabText(int index)
    {
        return editor->findChild<QTabBar *>(u"TabStrip1"_s)->tabText(index);
    }
    /// Opens, types a character and takes it back, saves: the way of most files.
    void throughTheEditor(const QString &path)
    {
        opening().mnuFileJoystickLoad_Click(path);
        type(DocumentKind::Joystick, u"x"_s);
        joystick()->shown().replace(0, 1, {});
        saving().mnuFileSave_Click();
    }
};

} // namespace

TEST_F(FileExtremesTest, FormFeedsAndNoBreakSpacesComeBackByteForByte)
{
    const QByteArray bytes("a\fb\xA0"
                           "c\x85\x1C\x1D\x1E\x0B\t \r\n\xA0\r\n\f");
    const QString path = file(u"a.tmj"_s, bytes);
    throughTheEditor(path);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), bytes);
    // And by way of the coloured copy, which has to take them too.
    const QByteArray copy = folder.read(u"Rtf/a.tmj"_s);
    throughTheEditor(path);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), bytes);
    EXPECT_EQ(folder.read(u"Rtf/a.tmj"_s), copy);
}

TEST_F(FileExtremesTest, ALineOfAMegabyteComesBack)
{
    const QByteArray bytes = QByteArray("BTN S1 ").append(QByteArray(1 << 20, 'a')) + "\r\nlast";
    throughTheEditor(file(u"a.tmj"_s, bytes));
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), bytes);
}

TEST_F(FileExtremesTest, TwoHundredThousandLinesComeBack)
{
    const QByteArray bytes = QByteArray("BTN S1 /U a /M b\r\n").repeated(200000);
    throughTheEditor(file(u"a.tmj"_s, bytes));
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), bytes);
    editor->HighlightErrorLine(200000, u"ERROR 1004: x"_s);
    EXPECT_EQ(status.lineText(), u"Line no: 200000");
}

TEST_F(FileExtremesTest, AnEmptyFileIsASavedDocument)
{
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, ""));
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    type(DocumentKind::Joystick, u"x"_s);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    saving().mnuFileSave_Click();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    editor->fresh().mnuFileNewJoystick_Click();
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
}

TEST_F(FileExtremesTest, AFileIsSavedEvenWhereItsColouredCopyCannotBe)
{
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN"));
    // A folder of the copy's name stands in its way.
    ASSERT_TRUE(QFile::remove(folder.file(u"Rtf/a.tmj"_s)));
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"Rtf/a.tmj/x"_s));
    type(DocumentKind::Joystick, u"x"_s);
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_TRUE(
        status.text().startsWith(folder.file(u"Files/a.tmj"_s) + u" saved successfully."_s));
    EXPECT_TRUE(status.text().contains(u"coloured copy"_s));
    opening().mnuFileJoystickLoad_Click(folder.file(u"Files/a.tmj"_s));
    EXPECT_EQ(editor->joystickText(), u"xBTN");
}

TEST_F(FileExtremesTest, AnUnchangedFileIsOpenedWithoutColouringItAgain)
{
    CharFormat format;
    format.colour = 0x0000FF;
    const QByteArray copy = writeRtf(RichText::plain(u"BTN\n"_s, format)) + "\n";
    folder.write(u"Rtf/a.tmj"_s, copy);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN\r\n"));
    // A colouring pass writes the copy anew, never with a line end at its end.
    EXPECT_EQ(folder.read(u"Rtf/a.tmj"_s), copy);
}

TEST_F(FileExtremesTest, TwoFilesOfOneNameShareACopyWithoutHarm)
{
    const QString here = file(u"a.tmj"_s, "BTN S1 here");
    const QString there = file(u"other/a.tmj"_s, "BTN S1 there");
    opening().mnuFileJoystickLoad_Click(here);
    opening().mnuFileJoystickLoad_Click(there);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 there");
    opening().mnuFileJoystickLoad_Click(here);
    EXPECT_EQ(editor->joystickText(), u"BTN S1 here");
    EXPECT_EQ(editor->joystick().path(), here);
}

TEST_F(FileExtremesTest, ANameWithAnAmpersandIsShownAsItIs)
{
    opening().mnuFileJoystickLoad_Click(file(u"F&F.TMJ"_s, "BTN"));
    EXPECT_EQ(tabText(0), u"F&&F.tmj");
    Q_EMIT editor->actions().menu(u"mnuFile")->aboutToShow();
    EXPECT_EQ(editor->action(u"mnuFileClose")->text(), u"C&lose F&&F.tmj");
    EXPECT_EQ(status.savedTooltip(), u"F&F.TMJ is saved");
}

TEST_F(FileExtremesTest, ACapitalExtensionIsLowerCasedOnTheTabAlone)
{
    opening().mnuFileJoystickLoad_Click(file(u"FALCON.TMJ"_s, "BTN"));
    EXPECT_EQ(tabText(0), u"FALCON.tmj");
    EXPECT_EQ(editor->joystick().name(), u"FALCON.TMJ");
    EXPECT_EQ(editor->joystick().path(), folder.file(u"Files/FALCON.TMJ"_s));
}

TEST_F(FileExtremesTest, ANameOfAnyAlphabetIsOpenedAndSaved)
{
    const QString name = u"Полёт 猫.tmj"_s;
    const QString joystick = file(name, "BTN S1 a");
    file(u"Полёт 猫.tmm"_s, "Gun = g");
    opening().mnuFileOpen_Click(joystick);
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    editor->documents().select(DocumentKind::Joystick);
    type(DocumentKind::Joystick, u"x"_s);
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/"_s + name), "xBTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(FileExtremesTest, TheSameFileOpenedTwiceIsReadAfresh)
{
    const QString path = file(u"a.tmj"_s, "one");
    opening().mnuFileJoystickLoad_Click(path);
    file(u"a.tmj"_s, "two");
    opening().mnuFileJoystickLoad_Click(path);
    EXPECT_EQ(editor->joystickText(), u"two");
}

TEST_F(FileExtremesTest, SaveAsOverItselfAsksAndSaves)
{
    const QString path = file(u"a.tmj"_s, "BTN");
    opening().mnuFileJoystickLoad_Click(path);
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(FileExtremesTest, SaveAsOverAFileInAnotherCaseOverwritesThatFile)
{
    file(u"Old.TMJ"_s, "old");
    type(DocumentKind::Joystick, u"new"_s);
    dialogs.answerFile(folder.file(u"Files/old.tmj"_s));
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(QDir(folder.file(u"Files"_s)).entryList(QDir::Files), QStringList{ u"Old.TMJ"_s });
    EXPECT_EQ(folder.read(u"Files/Old.TMJ"_s), "new");
    EXPECT_EQ(editor->joystick().name(), u"Old.TMJ");
    EXPECT_EQ(tabText(0), u"Old.tmj");
}

TEST_F(FileExtremesTest, AMacroFileSavedOverTheJoystickFileLeavesThatOneUnsaved)
{
    const QString path = file(u"a.tmj"_s, "BTN");
    opening().mnuFileJoystickLoad_Click(path);
    type(DocumentKind::Macro, u"Gun = g"_s);
    editor->documents().select(DocumentKind::Macro);
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "Gun = g");
    EXPECT_EQ(editor->macro().state(), Document::Saved);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(editor->joystickText(), u"BTN");
}

TEST_F(FileExtremesTest, SaveAsUnderAnUntitledNameSavesOnceAndAsksNoMore)
{
    type(DocumentKind::Joystick, u"BTN"_s);
    dialogs.answerFile(folder.file(u"Files/Untitled2.tmj"_s));
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/Untitled2.tmj"_s), "BTN");
    EXPECT_EQ(dialogs.files().size(), 1);
}

TEST_F(FileExtremesTest, ACharacterOfTwoUnitsIsShownAndSelectedWhole)
{
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, ""));
    const QString plane = u"\U0001F6E9"_s;
    type(DocumentKind::Joystick, u"a"_s + plane);
    dialogs.answer(u"There's a letter in there that I can't write"_s, BoxButton::Ok);
    saving().mnuFileSave_Click();
    EXPECT_TRUE(dialogs.boxes().last().text.contains(plane));
    EXPECT_EQ(joystick()->textCursor().selectedText(), plane);
}

TEST_F(FileExtremesTest, TheSelectionStaysOnItsTextWhenTheStampBeforeItGrows)
{
    opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "Rem Last modified: x\r\nGun = g"));
    TextControl *macro = &editor->view().control(DocumentKind::Macro);
    macro->shown().select(int(editor->macroText().indexOf(u"Gun"_s)), 3);
    saving().mnuFileSave_Click();
    EXPECT_EQ(macro->textCursor().selectedText(), u"Gun");
    // The document remembers the same for the next change of tabs.
    editor->documents().select(DocumentKind::Joystick);
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(macro->textCursor().selectedText(), u"Gun");
}

TEST_F(FileExtremesTest, ACaretInTheStampStaysWhereItIs)
{
    opening().mnuFileJoystickLoad_Click(
        file(u"a.tmj"_s, "Rem Last modified: 01 May 2020, 1:00 pm"));
    for (const int caret : { 19, 22, 4 }) {
        joystick()->shown().select(caret, 0);
        saving().mnuFileSave_Click();
        EXPECT_EQ(joystick()->shown().selStart(), caret);
        EXPECT_EQ(joystick()->shown().selLength(), 0);
    }
}

TEST_F(FileExtremesTest, ASaveLeavesWhatTheUserSees)
{
    editor->resize(600, 400);
    editor->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(editor.get()));
    const QByteArray bytes = "Rem last modified: x\r\n" + QByteArray("BTN S1 a\r\n").repeated(500);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, bytes));
    joystick()->shown().select(30, 0);
    joystick()->verticalScrollBar()->setValue(300);
    saving().mnuFileSave_Click();
    EXPECT_EQ(joystick()->verticalScrollBar()->value(), 300);
}

TEST_F(FileExtremesTest, TheLinePanelStartsAgainWithEachFile)
{
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "a\r\nb\r\nc"));
    joystick()->shown().select(5, 0);
    ASSERT_EQ(status.lineText(), u"Line no: 3");
    opening().mnuFileJoystickLoad_Click(file(u"b.tmj"_s, "a\r\nb\r\nc"));
    EXPECT_EQ(status.lineText(), u"Line no: 1");
    EXPECT_EQ(joystick()->shown().selStart(), 0);
}

TEST_F(FileExtremesTest, AFileThatCannotBeOpenedIsNamedOnTheStatusLineToo)
{
    dialogs.answer(u"I couldn't open that file buddy"_s, BoxButton::Ok);
    opening().mnuFileOpen_Click(folder.file(u"Files/gone.tmj"_s));
    EXPECT_EQ(status.text(), u"Joystick file not opened");
    dialogs.answer(u"I couldn't open that file buddy"_s, BoxButton::Ok);
    opening().MnuFileMacroLoad_Click(folder.file(u"Files/gone.tmm"_s));
    EXPECT_EQ(status.text(), u"Macro file not opened");
}

TEST_F(FileExtremesTest, AnUnreadableMacroFileOfAPairIsSaidSo)
{
    const QString joystick = file(u"a.tmj"_s, "BTN");
    file(u"a.tmm"_s, QByteArray("a\0", 2));
    dialogs.answer(u"That's no text file buddy"_s, BoxButton::Ok);
    opening().mnuFileOpen_Click(joystick);
    EXPECT_EQ(status.text(), u"Macro file not opened");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(editor->macro().name(), u"Untitled.tmm");
}

TEST_F(FileExtremesTest, AFolderOfTheJoystickFilesNameIsNoPartner)
{
    const QString macro = file(u"a.tmm"_s, "Gun = g");
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"Files/a.tmj"_s));
    opening().mnuFileOpen_Click(macro);
    EXPECT_EQ(status.text(), u"Joystick file not opened");
}

TEST_F(FileExtremesTest, TheViewersGetThePictureAndTheReadmeOfTheFile)
{
    settings.of<SharedSettings>().ImageFilePath = u"Zeph.bmp"_s;
    settings.of<SharedSettings>().TextFilePath = u"ReadMe.txt"_s;
    file(u"falcon.bmp"_s, "x");
    opening().mnuFileJoystickLoad_Click(
        file(u"a.tmj"_s, "USE ZEPH GRAPHIC falcon.bmp\r\nUSE ZEPH README gone.txt"));
    EXPECT_EQ(settings.of<SharedSettings>().ImageFilePath, folder.file(u"Files/falcon.bmp"_s));
    EXPECT_EQ(settings.of<SharedSettings>().TextFilePath, u"ReadMe.txt");
}

TEST_F(FileExtremesTest, RestoredFilesOpenByTheirExtension)
{
    const QString macro = file(u"odd.tmm"_s, "Gun = g");
    opening().OpenRestoredStatus(macro, {});
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
}

TEST_F(FileExtremesTest, TheFileMenuTellsTheRewrittenNameEverywhere)
{
    opening().mnuFileJoystickLoad_Click(file(u"Untitled flight.tmj"_s, "BTN"));
    Q_EMIT editor->actions().menu(u"mnuFile")->aboutToShow();
    EXPECT_EQ(tabText(0), u"Untitled.tmj");
    EXPECT_EQ(status.savedTooltip(), u"Untitled.tmj is saved");
    EXPECT_EQ(editor->action(u"mnuFileClose")->text(), u"C&lose Untitled.tmj");
}

TEST_F(FileExtremesTest, NewHardwareRenewsTheNamesOfUntitledFilesAlone)
{
    opening().mnuFileJoystickLoad_Click(file(u"Untitled flight.tmj"_s, "BTN"));
    opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "Gun = g"));
    editor->fresh().HardwareHasChanged();
    EXPECT_EQ(tabText(0), u"Untitled.tmj");
    EXPECT_EQ(editor->joystick().path(), paths.filesFolder() + u"Untitled.tmj"_s);
    EXPECT_EQ(editor->macro().name(), u"a.tmm");
}
