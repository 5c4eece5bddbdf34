// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/file_opening.h"

#include "editor/files/file_saving.h"
#include "editor/files/use_directives.h"
#include "menus/menu_actions.h"
#include "platform/core/rtf.h"
#include "tests/support/editor_fixture.h"

using namespace zeph;
using zeph::test::EditorTest;

namespace {

class FileOpeningTest : public EditorTest
{
protected:
    /// A coloured copy whose text is the given one and whose characters are all of one colour.
    void colouredCopy(const QString &name, const QString &text, ColorRef colour)
    {
        CharFormat format;
        format.family = u"Arial"_s;
        format.pointSize = 8;
        format.colour = colour;
        folder.write(u"Rtf/"_s + name, writeRtf(RichText::plain(text, format)));
    }
    ColorRef colourAt(DocumentKind kind, qsizetype position)
    {
        return editor->documents().of(kind).richText().formatAt(position).colour.value_or(
            0xFFFFFFFF);
    }
    FileOpening &opening() { return editor->opening(); }
};

} // namespace

TEST_F(FileOpeningTest, APairIsOpenedByItsUseMdef)
{
    const QString joystick = file(u"a.tmj"_s, "USE MDEF macros.tmm\r\nBTN S1 Fire\r\n");
    file(u"macros.tmm"_s, "Fire = SPC\r\n");
    opening().mnuFileOpen_Click(joystick);
    EXPECT_EQ(editor->joystickText(), u"USE MDEF macros.tmm\nBTN S1 Fire\n");
    EXPECT_EQ(editor->macroText(), u"Fire = SPC\n");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(status.text(), u"Finished analysing the macros assigned in your joystick file.");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(editor->macro().state(), Document::Saved);
}

TEST_F(FileOpeningTest, ANamedMacroFileIsFoundInAnyCase)
{
    const QString joystick = file(u"a.tmj"_s, "USE MDEF MACROS.tmm\r\n");
    file(u"Macros.TMM"_s, "Fire = SPC");
    opening().mnuFileOpen_Click(joystick);
    EXPECT_EQ(editor->macro().name(), u"Macros.TMM");
}

TEST_F(FileOpeningTest, WithoutAnExistingMdefFileTheSameNameServes)
{
    const QString joystick = file(u"a.f22"_s, "USE MDEF gone\r\n");
    file(u"a.m22"_s, "Fire = SPC");
    opening().mnuFileOpen_Click(joystick);
    EXPECT_EQ(editor->macro().name(), u"a.m22");
}

TEST_F(FileOpeningTest, AJoystickFileWithoutMacroFileLeavesTheLastOneInPlace)
{
    opening().MnuFileMacroLoad_Click(file(u"other.tmm"_s, "Gun = g"));
    opening().mnuFileOpen_Click(file(u"a.tmj"_s, "BTN S1 a"));
    EXPECT_EQ(status.text(), u"Macro file not opened");
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    EXPECT_EQ(editor->macro().name(), u"other.tmm");
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
}

TEST_F(FileOpeningTest, APickedMacroFileBringsTheJoystickFileOfItsNameAndNoMdefSearch)
{
    const QString macro = file(u"a.tmm"_s, "Gun = g");
    file(u"a.tmj"_s, "USE MDEF other.tmm");
    file(u"other.tmm"_s, "Fire = SPC");
    opening().mnuFileOpen_Click(macro);
    EXPECT_EQ(editor->joystick().name(), u"a.tmj");
    EXPECT_EQ(editor->macro().name(), u"a.tmm");
}

TEST_F(FileOpeningTest, APickedMacroFileWithoutPartnerStandsAlone)
{
    opening().mnuFileOpen_Click(file(u"a.mdf"_s, "Gun = g"));
    EXPECT_EQ(status.text(), u"Joystick file not opened");
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
}

TEST_F(FileOpeningTest, AStrangeExtensionOpensNothing)
{
    opening().mnuFileOpen_Click(file(u"a.txt"_s, "hello"));
    EXPECT_EQ(status.text(), u"Files not opened");
    EXPECT_EQ(editor->joystickText(), QString());
}

TEST_F(FileOpeningTest, AnEqualColouredCopyBringsItsColours)
{
    colouredCopy(u"a.tmj"_s, u"BTN S1 a\n"_s, 0x0000FF);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a\r\n"));
    EXPECT_EQ(colourAt(DocumentKind::Joystick, 0), 0x0000FFU);
}

TEST_F(FileOpeningTest, AStylesFontSizeAndBoldComeBackAndPlainTextTakesTodaysFont)
{
    const QString path = file(u"a.tmj"_s, "BTN S1 a");
    opening().mnuFileJoystickLoad_Click(path);
    editor->joystick().changeLooks(0, 6, [](CharFormat &look) {
        look = { .family = u"Courier"_s, .pointSize = 20, .bold = true, .colour = ColorRef(255) };
    });
    editor->saving().mnuFileSave_Click();
    settings.of<ColourSettings>().TextFontName = u"Times"_s;
    settings.of<ColourSettings>().TextFontSize = 12;
    makeEditor();
    opening().mnuFileJoystickLoad_Click(path);
    const RichText shown = editor->joystick().richText();
    EXPECT_EQ(
        shown.formatAt(0),
        (CharFormat{
            .family = u"Courier"_s, .pointSize = 20, .bold = true, .colour = ColorRef(255) }));
    EXPECT_EQ(shown.formatAt(7).family, u"Times");
    EXPECT_EQ(shown.formatAt(7).pointSize, 12);
    EXPECT_FALSE(shown.formatAt(7).bold);
}

TEST_F(FileOpeningTest, InACopyWithoutStylesMostOfTheTextIsPlain)
{
    RichText text =
        RichText::plain(u"BTN S1 a\n"_s, { .family = u"Other"_s, .pointSize = 9, .colour = 0U });
    text.change(0, 3, [](CharFormat &look) { look.pointSize = 30; });
    folder.write(u"Rtf/a.tmj"_s, writeRtf(text));
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a\r\n"));
    const RichText shown = editor->joystick().richText();
    EXPECT_EQ(shown.formatAt(0).pointSize, 30);
    EXPECT_EQ(shown.formatAt(5).family, u"Arial");
    EXPECT_EQ(shown.formatAt(5).pointSize, 8);
}

TEST_F(FileOpeningTest, ACopyThatDiffersByOneCharacterIsDroppedAndReplaced)
{
    colouredCopy(u"a.tmj"_s, u"BTN S1 b\n"_s, 0x0000FF);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a\r\n"));
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a\n");
    EXPECT_NE(colourAt(DocumentKind::Joystick, 0), 0x0000FFU);
    EXPECT_EQ(readRtf(folder.read(u"Rtf/a.tmj"_s))->text, u"BTN S1 a\n");
}

TEST_F(FileOpeningTest, ABrokenColouredCopyIsNoFailure)
{
    folder.write(u"Rtf/a.tmj"_s, "{\\rtf1 {{{");
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a"));
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a");
}

TEST_F(FileOpeningTest, ACapitalExtensionShowsInLowerCaseWhileThePathKeepsItsCase)
{
    const QString path = file(u"FALCON.TMJ"_s, "BTN S1 a");
    opening().mnuFileJoystickLoad_Click(path);
    EXPECT_EQ(editor->joystick().path(), path);
    EXPECT_EQ(editor->joystick().caption(), u"FALCON.tmj");
}

TEST_F(FileOpeningTest, AVanishedFileIsToldWithPathAndReasonAndReplacesNothing)
{
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    editor->joystick().setState(Document::Saved);
    const QString path = folder.file(u"Files/gone.tmj"_s);
    dialogs.answer(u"I couldn't open that file buddy"_s, BoxButton::Ok);
    opening().mnuFileJoystickLoad_Click(path);
    EXPECT_TRUE(dialogs.boxes().last().text.startsWith(path));
    EXPECT_EQ(editor->joystickText(), u"BTN S1 a");
}

TEST_F(FileOpeningTest, ANulIsToldAndReplacesNothing)
{
    const QString path = file(u"a.tmj"_s, QByteArray("ab\0c", 4));
    dialogs.answer(u"That's no text file buddy"_s, BoxButton::Ok);
    opening().mnuFileJoystickLoad_Click(path);
    EXPECT_TRUE(dialogs.boxes().last().text.contains(path));
    EXPECT_EQ(editor->joystick().name(), u"Untitled.tmj");
}

TEST_F(FileOpeningTest, CancelInTheQuestionLeavesEverything)
{
    type(DocumentKind::Joystick, u"mine"_s);
    dialogs.answer(u" Save Untitled.tmj now?"_s, BoxButton::Cancel);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a"));
    EXPECT_EQ(editor->joystickText(), u"mine");
    EXPECT_EQ(dialogs.boxes().last().text,
              u"Untitled.tmj has changed and isn't saved. Do you want to save it before opening a "
              "different joystick file?");
    EXPECT_EQ(dialogs.boxes().last().icon, BoxIcon::Exclamation);
}

TEST_F(FileOpeningTest, NoInTheQuestionGoesOnWithoutSaving)
{
    type(DocumentKind::Macro, u"mine"_s);
    dialogs.answer(u" Save Untitled.tmm now?"_s, BoxButton::No);
    opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "Gun = g"));
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    EXPECT_EQ(status.text(), u"Finished");
}

TEST_F(FileOpeningTest, YesWithACancelledSaveAsStopsWithAWord)
{
    type(DocumentKind::Joystick, u"mine"_s);
    dialogs.answer(u" Save Untitled.tmj now?"_s, BoxButton::Yes);
    dialogs.answerFile({});
    dialogs.answer(u"Hmmm...let me think..."_s, BoxButton::Ok);
    opening().mnuFileJoystickLoad_Click(file(u"a.tmj"_s, "BTN S1 a"));
    EXPECT_EQ(dialogs.boxes().last().text,
              u"Untitled.tmj wasn't saved, so I won't continue to load up a new joystick file just "
              "in case you pressed the cancel button by accident.");
    EXPECT_EQ(editor->joystickText(), u"mine");
}

TEST_F(FileOpeningTest, ThePairDialogUsesTheMacroWordingForBothRefusals)
{
    type(DocumentKind::Joystick, u"mine"_s);
    dialogs.answer(u" Save Untitled.tmj now?"_s, BoxButton::Yes);
    dialogs.answerFile({});
    dialogs.answer(u"Hmmm...let me think..."_s, BoxButton::Ok);
    opening().mnuFileOpen_Click();
    EXPECT_TRUE(dialogs.boxes().last().text.contains(u"load up a new macro file"_s));
}

TEST_F(FileOpeningTest, TheDialogForAPairProposesNoName)
{
    dialogs.answerFile({});
    opening().mnuFileOpen_Click();
    EXPECT_EQ(dialogs.files().last().name, QString());
    EXPECT_EQ(dialogs.files().last().defaultExtension, u"tmj");
    EXPECT_EQ(dialogs.files().last().folder, paths.filesFolder());
}

TEST_F(FileOpeningTest, TheDialogProposesTheOtherFilesName)
{
    opening().MnuFileMacroLoad_Click(file(u"falcon.tmm"_s, "Gun = g"));
    dialogs.answerFile({});
    opening().mnuFileJoystickLoad_Click();
    const FileRequest &request = dialogs.files().last();
    EXPECT_EQ(request.name, u"falcon.tmj");
    EXPECT_EQ(request.title, u"Select the joystick file to open ...");
    EXPECT_EQ(request.defaultExtension, u"tmj");
    EXPECT_EQ(request.folder, paths.filesFolder());
}

TEST_F(FileOpeningTest, AListedFileOpensWithItsPartnerUnlessSingleFilesAreWanted)
{
    const QString joystick = file(u"a.tmj"_s, "BTN S1 a");
    file(u"a.tmm"_s, "Gun = g");
    opening().OpenSingleFileOnly = true;
    opening().OpenPreviouslySavedFiles(joystick);
    EXPECT_EQ(editor->macroText(), QString());
    opening().OpenSingleFileOnly = false;
    opening().OpenPreviouslySavedFiles(joystick);
    EXPECT_EQ(editor->macroText(), u"Gun = g");
}

TEST_F(FileOpeningTest, ASingleMacroFileIsKnownByItsExtension)
{
    opening().OpenSingleFileOnly = true;
    opening().OpenPreviouslySavedFiles(file(u"a.mdf"_s, "Gun = g"));
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    opening().OpenFavouriteFile(file(u"b.M22"_s, "Fire = f"));
    EXPECT_EQ(editor->macroText(), u"Fire = f");
    opening().OpenFavouriteFile(file(u"b.xyz"_s, "BTN"));
    EXPECT_EQ(editor->joystickText(), u"BTN");
}

TEST_F(FileOpeningTest, RestoredFilesOpenEachOnItsOwnIfItExists)
{
    const QString macro = file(u"b.tmm"_s, "Gun = g");
    EXPECT_TRUE(opening().OpenRestoredStatus(folder.file(u"Files/gone.tmj"_s), macro));
    EXPECT_EQ(editor->macroText(), u"Gun = g");
    EXPECT_EQ(editor->joystick().state(), Document::Empty);
    EXPECT_FALSE(opening().OpenRestoredStatus({}, {}));
}

TEST_F(FileOpeningTest, PictureAndReadmeAreFoundBesideTheFile)
{
    file(u"falcon.bmp"_s, "x");
    opening().mnuFileJoystickLoad_Click(
        file(u"a.tmj"_s, "USE ZEPH GRAPHIC Falcon.bmp\r\nUSE ZEPH README gone.txt\r\n"));
    EXPECT_EQ(editor->useDirectives().imageFilePath(), folder.file(u"Files/falcon.bmp"_s));
    EXPECT_EQ(editor->useDirectives().textFilePath(), QString());
    EXPECT_EQ(editor->useDirectives().statements().ZephReadme, QString());
}

TEST_F(FileOpeningTest, OpeningSelectsTheTabAndPutsTheCaretAtTheStart)
{
    opening().MnuFileMacroLoad_Click(file(u"a.tmm"_s, "Gun = g\r\nFire = f"));
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(editor->macro().selStart(), 0);
    EXPECT_EQ(status.lineText(), u"Line no: 1");
    EXPECT_EQ(status.savedPicture(), 2);
}
