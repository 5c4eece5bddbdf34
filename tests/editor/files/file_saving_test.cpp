// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/file_saving.h"

#include "editor/editor_settings.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "platform/core/rtf.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QMenu>

#include "menus/menu_actions.h"

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class FileSavingTest : public EditorTest
{
protected:
    FileSaving &saving() { return editor->saving(); }
    void open(const QString &name, const QByteArray &bytes)
    {
        editor->opening().OpenFavouriteFile(file(name, bytes));
    }
};

} // namespace

TEST_F(FileSavingTest, ASaveWritesThePlainFileAndItsColouredCopy)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"Rem x\n"_s);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(status.savedPicture(), 3);
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "Rem x\r\nBTN S1 a");
    EXPECT_EQ(readRtf(folder.read(u"Rtf/a.tmj"_s))->text, u"Rem x\nBTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(status.text(), folder.file(u"Files/a.tmj"_s) + u" saved successfully."_s);
    EXPECT_EQ(status.savedTooltip(), u"a.tmj is saved");
}

TEST_F(FileSavingTest, AnyBytesComeBackUnchanged)
{
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            bytes.append(char(byte));
        }
    }
    bytes.append("\r\n\r\n\x1A");
    open(u"a.tmj"_s, bytes);
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), bytes);
}

TEST_F(FileSavingTest, TheStampIsBroughtUpToDateAndIsNoEdit)
{
    open(u"a.tmj"_s, "Rem Last modified: long ago\r\nBTN S1 a");
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s),
              "Rem Last modified: 05 March 2024, 9:07 am\r\nBTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(FileSavingTest, ATextOnItsWayToTheCougarKeepsItsStamp)
{
    open(u"a.tmj"_s, "Rem Last modified: long ago\r\nBTN S1 a");
    editor->joystick().setLocked(true);
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "Rem Last modified: long ago\r\nBTN S1 a");
}

TEST_F(FileSavingTest, WithoutUpdateModifiedTheStampStays)
{
    settings.of<EditorSettings>().UpdateModified = false;
    open(u"a.tmj"_s, "Rem Last modified: long ago");
    saving().mnuFileSave_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "Rem Last modified: long ago");
}

TEST_F(FileSavingTest, TheSelectionIsPutBack)
{
    open(u"a.tmj"_s, "BTN S1 a\r\nUSE ZEPH README x.txt");
    editor->joystick().select(4, 2);
    saving().mnuFileSave_Click();
    EXPECT_EQ(editor->joystick().selStart(), 4);
    EXPECT_EQ(editor->joystick().selLength(), 2);
}

TEST_F(FileSavingTest, AnUntitledDocumentGoesToSaveAs)
{
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    dialogs.answerFile(folder.file(u"Files/new.tmj"_s));
    saving().mnuFileSave_Click();
    EXPECT_EQ(dialogs.files().last().title, u"Save file as ...");
    EXPECT_EQ(folder.read(u"Files/new.tmj"_s), "BTN S1 a");
    EXPECT_EQ(editor->joystick().name(), u"new.tmj");
}

TEST_F(FileSavingTest, ANameThatMerelyBeginsUntitledGoesToSaveAs)
{
    open(u"Untitled flight.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answerFile({});
    saving().mnuFileSave_Click();
    EXPECT_EQ(dialogs.files().size(), 1);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(FileSavingTest, ACancelledSaveAsLeavesTheStateModified)
{
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    dialogs.answerFile({});
    saving().mnuFileSave_Click();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(editor->joystick().name(), u"Untitled.tmj");
}

TEST_F(FileSavingTest, AnExistingFileIsOverwrittenOnlyWhenAskedFor)
{
    const QString path = file(u"old.tmj"_s, "old");
    type(DocumentKind::Joystick, u"new"_s);
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::No);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(folder.read(u"Files/old.tmj"_s), "old");
    EXPECT_EQ(dialogs.boxes().last().text,
              u"old.tmj already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(dialogs.boxes().last().defaultButton, BoxButton::No);
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(folder.read(u"Files/old.tmj"_s), "new");
}

TEST_F(FileSavingTest, AReadOnlyFileGoesToSaveAs)
{
    open(u"a.tmj"_s, "BTN S1 a");
    const QString path = folder.file(u"Files/a.tmj"_s);
    QFile::setPermissions(path, QFile::ReadOwner);
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answer(u"Can't save Read Only file"_s, BoxButton::Ok);
    dialogs.answerFile({});
    saving().mnuFileSave_Click();
    EXPECT_EQ(dialogs.boxes().last().text,
              path
                  + u" is read only. You'll need to save it elsewhere using the Save As routine. "
                    "I'll run this for you now."_s);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "BTN S1 a");
}

TEST_F(FileSavingTest, SaveAsOverAReadOnlyFileSavesNothing)
{
    const QString path = file(u"old.tmj"_s, "old");
    QFile::setPermissions(path, QFile::ReadOwner);
    type(DocumentKind::Joystick, u"new"_s);
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"Can't save Read Only file"_s, BoxButton::Ok);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(dialogs.boxes().last().text,
              path + u" is read only. Please save the file with a different name or location."_s);
    EXPECT_EQ(folder.read(u"Files/old.tmj"_s), "old");
    EXPECT_EQ(editor->joystick().name(), u"Untitled.tmj");
}

TEST_F(FileSavingTest, AFolderThatIsGoneIsToldAndTheDocumentStaysModified)
{
    open(u"deep/a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    QDir(folder.file(u"Files/deep"_s)).removeRecursively();
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    saving().mnuFileSave_Click();
    EXPECT_TRUE(dialogs.boxes().last().text.startsWith(folder.file(u"Files/deep/a.tmj"_s)));
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(editor->joystickText(), u"xBTN S1 a");
}

TEST_F(FileSavingTest, AFailedSaveAsKeepsTheOldName)
{
    open(u"a.tmj"_s, "BTN S1 a");
    dialogs.answerFile(folder.file(u"nowhere/b.tmj"_s));
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(editor->joystick().path(), folder.file(u"Files/a.tmj"_s));
    EXPECT_EQ(editor->joystick().state(), Document::Saved) << "its own file holds it";
}

TEST_F(FileSavingTest, AFailedSaveAsOfAChangedTextLeavesItUnsaved)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answerFile(folder.file(u"nowhere/b.tmj"_s));
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(FileSavingTest, AfterASaveIntoAFolderThatIsGoneUndoDoesNotMakeTheTextSaved)
{
    open(u"gone/a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    ASSERT_TRUE(QDir(folder.file(u"Files/gone"_s)).removeRecursively());
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    saving().mnuFileSave_Click();
    editor->joystick().undo();
    EXPECT_EQ(editor->joystick().text(), u"BTN S1 a");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(FileSavingTest, ACharacterOutsideTheCodePageIsRefusedAndShown)
{
    open(u"a.tmj"_s, "one\r\ntwo");
    editor->joystick().select(5, 0);
    type(DocumentKind::Joystick, u"\u0416"_s);
    dialogs.answer(u"There's a letter in there that I can't write"_s, BoxButton::Ok);
    saving().mnuFileSave_Click();
    EXPECT_TRUE(dialogs.boxes().last().text.contains(u"in line 2"_s));
    EXPECT_EQ(editor->joystick().selStart(), 5);
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "one\r\ntwo");
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
}

TEST_F(FileSavingTest, SaveBothSavesEachAndComesBackToTheTab)
{
    open(u"a.tmm"_s, "Gun = g");
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    type(DocumentKind::Macro, u"y"_s);
    saving().mnuFileSaveBoth_Click();
    EXPECT_EQ(folder.read(u"Files/a.tmj"_s), "xBTN S1 a");
    EXPECT_EQ(folder.read(u"Files/a.tmm"_s), "yGun = g");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(FileSavingTest, AnUntitledMacroFileIsProposedTheJoystickFilesName)
{
    open(u"falcon.tmj"_s, "BTN S1 a");
    editor->documents().select(DocumentKind::Macro);
    dialogs.answerFile({});
    saving().mnuFileSaveAs_Click();
    EXPECT_EQ(dialogs.files().last().name, u"falcon.tmm");
    EXPECT_EQ(dialogs.files().last().filter, u"Macro file (*.tmm)|*.tmm|All files (*.*)|*.*");
}

TEST_F(FileSavingTest, AFreshFileTakesTheOldOnesPlace)
{
    open(u"a.tmj"_s, "USE ZEPH README x.txt");
    editor->fresh().mnuFileNewJoystick_Click();
    EXPECT_EQ(editor->joystickText(), QString());
    EXPECT_EQ(editor->joystick().name(), u"Untitled.tmj");
    EXPECT_EQ(editor->joystick().path(), paths.filesFolder() + u"Untitled.tmj"_s);
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
    EXPECT_EQ(status.text(), u"New joystick file created");
    EXPECT_EQ(status.savedTooltip(), u"Untitled.tmj has no text and isn't saved");
}

TEST_F(FileSavingTest, NewBothMakesAFreshPair)
{
    open(u"a.tmm"_s, "Gun = g");
    open(u"a.tmj"_s, "BTN S1 a");
    editor->fresh().mnuFileNewBoth_Click();
    EXPECT_EQ(editor->joystickText() + editor->macroText(), QString());
    EXPECT_EQ(status.text(), u"Done .... now what?");
}

TEST_F(FileSavingTest, CloseAsksFirst)
{
    open(u"a.tmj"_s, "BTN S1 a");
    type(DocumentKind::Joystick, u"x"_s);
    dialogs.answer(u" Save a.tmj now?"_s, BoxButton::Cancel);
    editor->fresh().mnuFileClose_Click();
    EXPECT_EQ(dialogs.boxes().last().text,
              u"a.tmj has changed and isn't saved. Do you want to save it first?");
    EXPECT_EQ(editor->joystickText(), u"xBTN S1 a");
}

TEST_F(FileSavingTest, TheCloseEntryNamesTheSelectedFile)
{
    open(u"FALCON.TMJ"_s, "BTN S1 a");
    Q_EMIT editor->actions().menu(u"mnuFile")->aboutToShow();
    EXPECT_EQ(editor->action(u"mnuFileClose")->text(), u"C&lose FALCON.tmj");
}

TEST_F(FileSavingTest, OpeningTheFileMenuRewritesUntitledNames)
{
    open(u"Untitled flight.tmj"_s, "BTN S1 a");
    Q_EMIT editor->actions().menu(u"mnuFile")->aboutToShow();
    EXPECT_EQ(editor->joystick().name(), u"Untitled.tmj");
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a");
}
