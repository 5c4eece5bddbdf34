// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/templateform.h"
#include "text/macro_table.h"

#include "menus/menu_actions.h"
#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "platform/core/rtf.h"
#include "platform/fakes/fake_printers.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/richtext/rich_text_document.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "templates/template_settings.h"
#include "tests/support/cpu_time.h"
#include "tests/support/fixture.h"
#include "tests/support/rich_texts.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

using namespace zeph;

namespace {

class TemplateTest : public test::WorldTest
{
protected:
    TemplateTest()
    {
        QDir(folder.path()).mkdir(u"Templates"_s);
        installIcons();
        folder.write(u"Zeph.ini"_s, "[Miscellaneous]\r\nPilotCallsign=Viper\r\n");
        makeForm();
    }

    void makeForm()
    {
        form = std::make_unique<TemplateForm>(context(), printers, macros);
        QObject::connect(form.get(), &TemplateForm::fileWritten, form.get(),
                         [this](const QString &path) { written.append(path); });
        text = form->findChild<RichTextBox *>(u"TemplateText"_s);
    }

    QString templates(const QString &name) const { return folder.file(u"Templates/"_s + name); }
    void press(QStringView name)
    {
        EXPECT_TRUE(form->actions().action(name)->isEnabled()) << name.toString().toStdString();
        form->actions().action(name)->trigger();
    }
    bool isChecked(QStringView name) { return form->actions().action(name)->isChecked(); }
    QString combo(const QString &name) { return form->findChild<QComboBox *>(name)->currentText(); }
    void write(const QString &words)
    {
        text->textCursor().insertText(words);
        ASSERT_TRUE(form->HasTemplateTextChanged());
    }

    FakePrinters printers;
    QStringList written;
    MacroTable macros = extractMacros({ u"Fire = SPC"_s });
    std::unique_ptr<TemplateForm> form;
    RichTextBox *text = nullptr;
};

} // namespace

TEST_F(TemplateTest, ANewFileIsUntitledAndUnchanged)
{
    EXPECT_EQ(form->windowTitle().toStdString(), "ReadMe and Template Editor");
    EXPECT_EQ(form->path(), templates(u"Untitled.rtf"_s));
    EXPECT_FALSE(form->HasTemplateTextChanged());
    EXPECT_FALSE(form->actions().action(u"mnuEditUndo")->isEnabled());
    press(u"mnuFileNew");
    EXPECT_FALSE(form->actions().action(u"mnuEditUndo")->isEnabled());
    EXPECT_EQ(form->windowTitle().toStdString(), " Editing Untitled.rtf");
    EXPECT_TRUE(form->close());
}

TEST_F(TemplateTest, RichTextOpensAsRichTextAndTheStatusSaysSo)
{
    const QString path = folder.write(u"Templates/A.rtf"_s, "{\\rtf1{\\b bold} plain\\par}");
    EXPECT_TRUE(form->OpenReadMe(path));
    EXPECT_EQ(text->toPlainText().toStdString(), "bold plain");
    EXPECT_TRUE(text->richText().formatAt(1).bold);
    EXPECT_EQ(status.text().toStdString(), "A.rtf was opened successfully");
    EXPECT_EQ(form->findChild<QStatusBar *>(u"StatusBar1"_s)->currentMessage(), status.text());
    EXPECT_EQ(form->windowTitle().toStdString(), " Editing A.rtf");
    EXPECT_FALSE(form->HasTemplateTextChanged());
}

TEST_F(TemplateTest, AnyOtherFileOpensAsPlainText)
{
    dialogs.answerFile(folder.write(u"Files/A.tmj"_s, "BTN S1 a\r\n{\\rtf1}"));
    press(u"mnuFileOpen");
    EXPECT_EQ(text->toPlainText().toStdString(), "BTN S1 a\n{\\rtf1}");
    EXPECT_EQ(dialogs.files().first().folder, folder.file(u"Templates/"_s));
}

TEST_F(TemplateTest, AFileThatCannotBeReadIsToldAndChangesNothing)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    dialogs.answer(u"Can't read file"_s, BoxButton::Ok);
    EXPECT_FALSE(form->OpenReadMe(templates(u"nowhere.rtf"_s)));
    EXPECT_EQ(text->toPlainText().toStdString(), "mine");
}

TEST_F(TemplateTest, CancelKeepsTheWindowOpen)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::Cancel);
    EXPECT_FALSE(form->close());
    EXPECT_EQ(
        dialogs.boxes().first().text.toStdString(),
        "Untitled.rtf has changed and isn't saved. Do you want to save it before closing down the "
        "Template Editor?");
    EXPECT_EQ(dialogs.boxes().first().buttons,
              (QList<BoxButton>{ BoxButton::Yes, BoxButton::No, BoxButton::Cancel }));
}

TEST_F(TemplateTest, NoClosesWithoutSaving)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(folder.exists(u"Templates/Untitled.rtf"_s));
}

TEST_F(TemplateTest, AQuestionAnsweredBeforeIsNotAskedAgainByTheClosingWindow)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    EXPECT_TRUE(form->mayClose());
    EXPECT_TRUE(form->close());
}

TEST_F(TemplateTest, AnAnswerBeforeDoesNotCountForWhatIsWrittenLater)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    EXPECT_TRUE(form->mayClose());
    write(u" and more"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::Cancel);
    EXPECT_FALSE(form->close());
}

TEST_F(TemplateTest, WhoeverElseHasTheFileOpenHearsOfASave)
{
    const QString path = folder.write(u"Files/a.tmj"_s, "BTN S1 a\r\n");
    EXPECT_TRUE(form->OpenReadMe(path));
    EXPECT_EQ(form->windowTitle().toStdString(), " Editing a.tmj");
    write(u"Rem "_s);
    EXPECT_TRUE(written.isEmpty());
    press(u"mnuFileSave");
    EXPECT_EQ(written, QStringList{ path });
}

TEST_F(TemplateTest, AnExportedPdfIsToldInTheWindowItself)
{
    write(u"mine"_s);
    const QString path = templates(u"Mine.pdf"_s);
    dialogs.answerFile(path);
    press(u"mnuFileExportPDF");
    EXPECT_EQ(form->findChild<QStatusBar *>(u"StatusBar1"_s)->currentMessage(),
              path + u" saved successfully."_s);
    EXPECT_TRUE(folder.read(u"Templates/Mine.pdf"_s).startsWith("%PDF"));
}

TEST_F(TemplateTest, YesWithACancelledSaveIsTold)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::Yes);
    dialogs.answerFile(std::nullopt);
    dialogs.answer(u"Ooops!"_s, BoxButton::Ok);
    press(u"mnuFileNew");
    EXPECT_EQ(text->toPlainText().toStdString(), "mine");
    EXPECT_EQ(dialogs.boxes().last().text.toStdString(),
              "Untitled.rtf wasn't saved for some reason. I won't proceed in creating a new file");
}

TEST_F(TemplateTest, YesSavesAndGoesOn)
{
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::Yes);
    dialogs.answerFile(templates(u"Mine.rtf"_s));
    press(u"mnuFileNew");
    EXPECT_EQ(text->toPlainText().toStdString(), "");
    EXPECT_EQ(readRtf(folder.read(u"Templates/Mine.rtf"_s))->text.toStdString(), "mine");
}

TEST_F(TemplateTest, SaveUnderATextNameWritesPlainTextWithWindowsLineEnds)
{
    write(u"one\ntwo"_s);
    dialogs.answerFile(templates(u"Mine.txt"_s));
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/Mine.txt"_s), "one\r\ntwo");
    EXPECT_EQ(status.text().toStdString(), "Mine.txt was saved successfully");
    EXPECT_EQ(form->windowTitle().toStdString(), " Editing Mine.txt");
    EXPECT_FALSE(form->HasTemplateTextChanged());
}

TEST_F(TemplateTest, SaveAsAsksBeforeItOverwrites)
{
    folder.write(u"Templates/There.rtf"_s, "old");
    write(u"mine"_s);
    dialogs.answerFile(templates(u"There.rtf"_s));
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::No);
    press(u"mnuFileSaveAs");
    EXPECT_EQ(folder.read(u"Templates/There.rtf"_s), "old");
    EXPECT_TRUE(form->HasTemplateTextChanged());
}

TEST_F(TemplateTest, AReadOnlyFileGoesTheSaveAsRoute)
{
    const QString path = folder.write(u"Templates/Locked.txt"_s, "old");
    ASSERT_TRUE(form->OpenReadMe(path));
    QFile::setPermissions(path, QFile::ReadOwner);
    write(u"new "_s);
    dialogs.answer(u"Can't save Read Only file"_s, BoxButton::Ok);
    dialogs.answerFile(templates(u"Copy.txt"_s));
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/Copy.txt"_s), "new old");
    EXPECT_EQ(folder.read(u"Templates/Locked.txt"_s), "old");
}

TEST_F(TemplateTest, ALetterThatAPlainTextCannotHoldIsSelectedAndNothingIsWritten)
{
    const QString path = folder.write(u"Templates/A.txt"_s, "old");
    ASSERT_TRUE(form->OpenReadMe(path));
    write(u"a\u0436"_s);
    dialogs.answer(u"There's a letter in there that I can't write"_s, BoxButton::Ok);
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/A.txt"_s), "old");
    EXPECT_EQ(text->selText(), u"\u0436"_s);
}

TEST_F(TemplateTest, AFailedSaveKeepsTheTextChanged)
{
    write(u"mine"_s);
    dialogs.answerFile(templates(u"no folder/Mine.rtf"_s));
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    press(u"mnuFileSave");
    EXPECT_TRUE(form->HasTemplateTextChanged());
    EXPECT_EQ(form->path(), templates(u"Untitled.rtf"_s));
    EXPECT_TRUE(written.isEmpty());
}

TEST_F(TemplateTest, OnlyASavedFileBecomesTheDefault)
{
    const QString title =
        u"You need to save Untitled.rtf first before you can make it the default file."_s;
    dialogs.answer(title, BoxButton::Ok);
    press(u"mnuFileSetDefault");
    EXPECT_EQ(dialogs.boxes().last().text.toStdString(),
              "Untitled.rtf needs to be saved first buddy");
    const QString path = folder.write(u"Templates/A.rtf"_s, "{\\rtf1 a}");
    ASSERT_TRUE(form->OpenReadMe(path));
    press(u"mnuFileSetDefault");
    EXPECT_EQ(settings.of<SharedSettings>().TextFilePath, path);
    EXPECT_TRUE(folder.read(u"Zeph.ini"_s)
                    .contains("TextFilePath=" + nativeSeparators(u"Templates/A.rtf"_s).toLatin1()));
    press(u"mnuFileNew");
    press(u"mnuFileOpenDefault");
    EXPECT_EQ(status.text().toStdString(),
              (u" Default file ("_s + path + u") was opened successfully. How about that then!"_s)
                  .toStdString());
}

TEST_F(TemplateTest, WithoutADefaultThereIsABeer)
{
    settings.of<SharedSettings>().TextFilePath.clear();
    dialogs.answer(u"Have a beer instead"_s, BoxButton::Ok);
    press(u"mnuFileOpenDefault");
    EXPECT_EQ(dialogs.boxes().last().text.toStdString(),
              "You don't have a default template to open. You can set one here or in Preferences.");
}

TEST_F(TemplateTest, TheIniFileOpensAsPlainText)
{
    press(u"mnuEditIniFile");
    EXPECT_TRUE(text->toPlainText().contains(u"PilotCallsign=Viper"_s));
    EXPECT_EQ(form->windowTitle().toStdString(), " Editing Zeph.ini");
}

TEST_F(TemplateTest, AMissingIniFileIsTold)
{
    QFile::remove(folder.file(u"Zeph.ini"_s));
    dialogs.answer(u"Couldn't locate Zeph.ini"_s, BoxButton::Ok);
    press(u"mnuEditIniFile");
    EXPECT_EQ(
        dialogs.boxes().last().text.toStdString(),
        (u"Hmmm...I couldn't find your ini file - I was looking for it here: "_s + paths.iniPath)
            .toStdString());
}

TEST_F(TemplateTest, TheToolbarShowsTheSelectionAndNothingForAMixedOne)
{
    const QString path = folder.write(u"Templates/A.rtf"_s,
                                      "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Courier "
                                      "New;}}\\f0\\fs20\\b one\\b0 \\f1\\fs28 two\\par"
                                      "\\pard\\qr\\f0\\fs20 three\\par}");
    ASSERT_TRUE(form->OpenReadMe(path));
    text->select(0, 3);
    EXPECT_EQ(combo(u"ComboFonts"_s).toStdString(), "Arial");
    EXPECT_EQ(combo(u"ComboFontSize"_s).toStdString(), "10");
    EXPECT_TRUE(isChecked(u"mnuFormatArray1_0"));
    EXPECT_TRUE(isChecked(u"mnuFormatAlign_0"));
    text->select(0, 7);
    EXPECT_EQ(combo(u"ComboFonts"_s).toStdString(), "");
    EXPECT_EQ(combo(u"ComboFontSize"_s).toStdString(), "");
    EXPECT_FALSE(isChecked(u"mnuFormatArray1_0"));
    text->select(8, 3);
    EXPECT_TRUE(isChecked(u"mnuFormatAlign_2"));
    EXPECT_FALSE(isChecked(u"mnuFormatAlign_0"));
}

TEST_F(TemplateTest, BoldBulletsAlignmentAndUndo)
{
    write(u"one\ntwo"_s);
    text->selectAll();
    press(u"mnuFormatArray1_0");
    press(u"mnuFormatBullets");
    press(u"mnuFormatAlign_1");
    RichText now = text->richText();
    EXPECT_TRUE(now.formatAt(0).bold && now.formatAt(6).bold);
    ASSERT_EQ(now.paragraphs.size(), 1U);
    EXPECT_EQ(now.paragraphs[0].format,
              (ParagraphFormat{ .alignment = ParagraphAlignment::Centre, .bullet = true }));
    press(u"mnuFormatBullets");
    press(u"mnuFormatArray1_0");
    now = text->richText();
    EXPECT_FALSE(now.paragraphs[0].format.bullet);
    EXPECT_EQ(now.paragraphs[0].format.leftIndentTwips, 0);
    EXPECT_FALSE(now.formatAt(0).bold);
    press(u"mnuEditUndo");
    EXPECT_TRUE(text->richText().formatAt(0).bold);
}

TEST_F(TemplateTest, AStyleGivesFontSizeAndColour)
{
    folder.write(
        u"Zeph.ini"_s,
        "[Colours]\r\nStyleName1=Loud\r\nStyleFontName1=Courier New\r\nStyleFontSize1=14\r\n"
        "StyleFontBold1=1\r\nStyleFontColour1=255\r\n");
    write(u"one"_s);
    text->selectAll();
    press(u"mnuStyleArray_0");
    EXPECT_EQ(
        text->richText().formatAt(0),
        (CharFormat{ .family = u"Courier New"_s, .pointSize = 14, .bold = true, .colour = 255 }));
    Q_EMIT form->actions().menu(u"mnuStyles")->aboutToShow();
    EXPECT_EQ(form->actions().action(u"mnuStyleArray_0")->text().toStdString(), "Loud");
}

TEST_F(TemplateTest, WhatAWordProcessorWroteSurvivesLoadingAndSaving)
{
    for (const char *name :
         { "wordpad_bullets.rtf", "wordpad_fonts_and_colours.rtf", "libreoffice_bullets.rtf" }) {
        QFile sample(QStringLiteral(ZEPH_SOURCE_DIR "/tests/data/rtf/")
                     + QString::fromLatin1(name));
        ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
        const QByteArray bytes = sample.readAll();
        const auto original = readRtf(bytes);
        ASSERT_TRUE(original);
        const QString path = folder.write(u"Templates/A.rtf"_s, bytes);
        ASSERT_TRUE(form->OpenReadMe(path));
        press(u"mnuFileSave");
        EXPECT_EQ(*readRtf(folder.read(u"Templates/A.rtf"_s)), *original) << name;
    }
}

TEST_F(TemplateTest, EverySuppliedTemplateSurvivesLoadingAndSaving)
{
    const QDir supplied(QStringLiteral(ZEPH_SOURCE_DIR "/data/Templates"));
    const QStringList names = supplied.entryList(QDir::Files);
    ASSERT_GE(names.size(), 6);
    for (const QString &name : names) {
        QFile file(supplied.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        ASSERT_TRUE(form->OpenReadMe(folder.write(u"Templates/"_s + name, bytes)));
        EXPECT_FALSE(form->HasTemplateTextChanged());
        press(u"mnuFileSave");
        const QByteArray saved = folder.read(u"Templates/"_s + name);
        if (name.endsWith(u".rtf")) {
            EXPECT_EQ(*readRtf(saved), *readRtf(bytes)) << name.toStdString();
        } else {
            EXPECT_EQ(saved, bytes);
        }
    }
}

TEST_F(TemplateTest, ColouringPaintsStatementsAndKeepsEverythingElse)
{
    settings.of<ColourSettings>().BTNColour = 0xB00000;
    settings.of<ColourSettings>().RemStatements = 0x808080;
    press(u"mnuViewColour");
    EXPECT_EQ(status.text().toStdString(), "There's no text to highlight.");
    write(u"BTN S1 a\nRem b"_s);
    text->select(7, 1);
    press(u"mnuFormatArray1_0");
    press(u"mnuViewColour");
    const RichText now = text->richText();
    EXPECT_EQ(now.formatAt(1).colour, ColorRef(0xB00000));
    EXPECT_EQ(now.formatAt(12).colour, ColorRef(0x808080));
    EXPECT_TRUE(now.formatAt(7).bold);
    EXPECT_EQ(now.text.toStdString(), "BTN S1 a\nRem b");
}

TEST_F(TemplateTest, HidingTheToolbarIsKept)
{
    press(u"mnuViewToolBar");
    EXPECT_TRUE(form->findChild<QToolBar *>(u"Toolbar1"_s)->isHidden());
    EXPECT_TRUE(folder.read(u"Zeph.ini"_s).contains("[Template Editor]\r\nHideAppsToolBar=1"));
    makeForm();
    EXPECT_TRUE(form->findChild<QToolBar *>(u"Toolbar1"_s)->isHidden());
    EXPECT_FALSE(isChecked(u"mnuViewToolBar"));
}

TEST_F(TemplateTest, PrintingGoesToThePrinter)
{
    printers.setFile(folder.file(u"out.pdf"_s));
    write(u"mine"_s);
    press(u"mnuFilePrint");
    EXPECT_TRUE(folder.exists(u"out.pdf"_s));
    EXPECT_EQ(status.text().toStdString(), "Finished printing Untitled.rtf");
}

TEST_F(TemplateTest, ThePasteTakesNoPicturesOrTables)
{
    auto *data = new QMimeData;
    data->setHtml(u"<table><tr><td>cell</td></tr></table><img src='x'/>"_s);
    data->setText(u"cell"_s);
    QGuiApplication::clipboard()->setMimeData(data);
    press(u"mnuEditPaste");
    EXPECT_EQ(text->richText().text.toStdString(), "cell");
    EXPECT_EQ(text->document()->blockCount(), 1);
}

TEST_F(TemplateTest, WithoutAComposerItsEntryIsOff)
{
    EXPECT_FALSE(form->actions().action(u"mnuComposerPlugin")->isEnabled());
}

namespace {

const QString lossTitle = u"Some of it would be lost"_s;
const QByteArray withPicture = "{\\rtf1{\\header top}{\\pict\\pngblip 00}text\\par}";

} // namespace

TEST_F(TemplateTest, StrikeAndHyperlinksComeBackFromASave)
{
    const QString path = folder.write(u"Templates/A.rtf"_s,
                                      "{\\rtf1 {\\strike out} {\\field{\\*\\fldinst HYPERLINK "
                                      "\"http://x/\"}{\\fldrslt link}}\\par}");
    ASSERT_TRUE(form->OpenReadMe(path));
    write(u"new "_s);
    press(u"mnuFileSave");
    const auto saved = readRtf(folder.read(u"Templates/A.rtf"_s));
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->text.toStdString(), "new out link");
    EXPECT_TRUE(saved->formatAt(4).strike);
    EXPECT_EQ(saved->formatAt(8).link, u"http://x/");
    EXPECT_FALSE(saved->formatAt(7).strike);
}

TEST_F(TemplateTest, StrikeOutIsAFormatLikeBold)
{
    write(u"word"_s);
    text->select(0, 2);
    press(u"mnuFormatArray1_3");
    EXPECT_TRUE(text->richText().formatAt(1).strike);
    EXPECT_FALSE(text->richText().formatAt(2).strike);
    EXPECT_TRUE(isChecked(u"mnuFormatArray1_3"));
    press(u"mnuFormatArray1_3");
    EXPECT_FALSE(text->richText().formatAt(1).strike);
}

TEST_F(TemplateTest, WhatCannotBeKeptIsNamedBeforeTheFirstSaveAndACopyIsTheDefault)
{
    const QString path = folder.write(u"Templates/A.rtf"_s, withPicture);
    ASSERT_TRUE(form->OpenReadMe(path));
    write(u"new "_s);
    dialogs.answer(lossTitle, BoxButton::Yes);
    dialogs.answerFile(templates(u"A (copy).rtf"_s));
    press(u"mnuFileSave");
    const Box &box = dialogs.boxes().last();
    EXPECT_EQ(box.text.toStdString(),
              "A.rtf has things that I can't keep: pictures and headers or footers. If I save over "
              "it they are gone. A copy leaves the file as it is.");
    EXPECT_EQ(box.captions, (QStringList{ u"Save as a &copy"_s, u"Save &over it"_s, u"Cancel"_s }));
    EXPECT_EQ(box.defaultButton, BoxButton::Yes);
    EXPECT_EQ(dialogs.files().last().name, u"A (copy).rtf");
    EXPECT_EQ(folder.read(u"Templates/A.rtf"_s), withPicture);
    EXPECT_EQ(readRtf(folder.read(u"Templates/A (copy).rtf"_s))->text.toStdString(), "new text");
    // The copy has nothing more to lose.
    write(u"more "_s);
    press(u"mnuFileSave");
    EXPECT_EQ(form->path(), templates(u"A (copy).rtf"_s));
}

TEST_F(TemplateTest, SavingOverWhatCannotBeKeptIsAskedAboutOnce)
{
    const QString path = folder.write(u"Templates/A.rtf"_s, withPicture);
    ASSERT_TRUE(form->OpenReadMe(path));
    write(u"new "_s);
    dialogs.answer(lossTitle, BoxButton::Cancel);
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/A.rtf"_s), withPicture);
    EXPECT_TRUE(form->HasTemplateTextChanged());
    dialogs.answer(lossTitle, BoxButton::No);
    press(u"mnuFileSave");
    EXPECT_EQ(readRtf(folder.read(u"Templates/A.rtf"_s))->text.toStdString(), "new text");
    write(u"more "_s);
    press(u"mnuFileSave");
    EXPECT_EQ(dialogs.boxes().size(), 2);
}

TEST_F(TemplateTest, SaveAsOntoTheSameFileAsksToo)
{
    const QString path = folder.write(u"Templates/A.rtf"_s, withPicture);
    ASSERT_TRUE(form->OpenReadMe(path));
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(lossTitle, BoxButton::Cancel);
    press(u"mnuFileSaveAs");
    EXPECT_EQ(folder.read(u"Templates/A.rtf"_s), withPicture);
}

TEST_F(TemplateTest, APlainTextKeepsItsLineEnds)
{
    const QString path = folder.write(u"Templates/A.txt"_s, "one\ntwo\r\nthree\nfour");
    ASSERT_TRUE(form->OpenReadMe(path));
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/A.txt"_s), "one\ntwo\r\nthree\nfour");
    text->select(int(text->toPlainText().size()), 0);
    write(u"\nfive"_s);
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/A.txt"_s), "one\ntwo\r\nthree\nfour\nfive");
    // A new file has Windows' line ends again.
    press(u"mnuFileNew");
    write(u"a\nb"_s);
    dialogs.answerFile(templates(u"B.txt"_s));
    press(u"mnuFileSave");
    EXPECT_EQ(folder.read(u"Templates/B.txt"_s), "a\r\nb");
}

TEST_F(TemplateTest, AFileAboveFiveMegabytesIsOpenedAfterAQuestionOnly)
{
    // A window that was never shown has no width, and every letter a line of its own.
    form->show();
    const QByteArray line = "a line of a readme\r\n";
    const QString path =
        folder.write(u"Templates/A.txt"_s, line.repeated(5'000'001 / line.size() + 1));
    dialogs.answer(u"That's a big one"_s, BoxButton::No);
    EXPECT_FALSE(form->OpenReadMe(path));
    EXPECT_EQ(dialogs.boxes().last().text.toStdString(),
              "A.txt has 5 MB. Opening it may take a while. Shall I go on?");
    EXPECT_EQ(text->toPlainText(), QString());
    dialogs.answer(u"That's a big one"_s, BoxButton::Yes);
    EXPECT_TRUE(form->OpenReadMe(path));
    EXPECT_EQ(text->document()->blockCount(), 5'000'001 / line.size() + 2);
    const QString small =
        folder.write(u"Templates/B.txt"_s, QByteArray(999, 'x').append('\n').repeated(5000));
    EXPECT_TRUE(form->OpenReadMe(small)) << "5,000,000 bytes are not more";
}

TEST_F(TemplateTest, TheOpeningOfALargeFileCanBeCancelled)
{
    const QByteArray line = "a {\\b line} of a readme\\par\r\n";
    const QString path =
        folder.write(u"Templates/A.rtf"_s, "{\\rtf1 " + line.repeated(600'000) + "}");
    write(u"mine"_s);
    dialogs.answer(u" Save Untitled.rtf now?"_s, BoxButton::No);
    dialogs.answer(u"That's a big one"_s, BoxButton::Yes);
    QTimer pilot;
    bool cancelled = false;
    QObject::connect(&pilot, &QTimer::timeout, &pilot, [&cancelled] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *progress = qobject_cast<QProgressDialog *>(window);
            if (progress && progress->isVisible()) {
                progress->cancel();
                cancelled = true;
            }
        }
    });
    pilot.start(1);
    EXPECT_FALSE(form->OpenReadMe(path));
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(text->toPlainText().toStdString(), "mine");
    EXPECT_EQ(form->path(), templates(u"Untitled.rtf"_s));
}

TEST_F(TemplateTest, AWordOf400KilobytesOpensInUnderTwoSeconds)
{
    form->show();
    const QString path = folder.write(u"Templates/A.txt"_s, QByteArray(400'000, 'x'));
    const double start = test::cpuSeconds();
    ASSERT_TRUE(form->OpenReadMe(path));
    QCoreApplication::processEvents();
    EXPECT_LT(test::cpuSeconds() - start, 2);
}

TEST_F(TemplateTest, TheWindowOpensBesideTheMainOneAndRemembersItsPlace)
{
    QWidget main;
    main.setGeometry(0, 0, 200, 300);
    const Context context{ paths, settings, status, dialogs, launcher, clock, keyboard };
    {
        TemplateForm first(context, printers, macros, &main);
        const int room = first.screen()->availableGeometry().right() - 200;
        EXPECT_TRUE(first.pos().x() >= 200 || first.width() > room)
            << "else as far as there is room";
        first.resize(500, 350);
        first.move(40, 60);
        first.show();
        EXPECT_TRUE(first.close());
    }
    settings.of<TemplateSettings>() = {};
    TemplateForm second(context, printers, macros, &main);
    EXPECT_EQ(second.size(), QSize(500, 350));
    EXPECT_EQ(second.pos(), QPoint(40, 60));
    second.show();
    second.showMaximized();
    QCoreApplication::processEvents();
    EXPECT_TRUE(second.close());
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.text(u"Template Editor", u"TemplateWidthAtStartup"), u"7500")
        << "not maximised";
    EXPECT_EQ(store.text(u"Template Editor", u"TemplateLeftAtStartup"), u"600");
}
