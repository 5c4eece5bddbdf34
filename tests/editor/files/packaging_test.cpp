// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/packaging.h"

#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "menus/menu_actions.h"
#include "tests/support/editor_fixture.h"
#include "tests/support/zips.h"
#include "text/package.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

using namespace zeph;
using test::AnyZip;
using test::contentOf;
using test::run;

namespace {

class PackagingTest : public test::EditorTest
{
protected:
    PackagingTest()
    {
        paths.hotasFolder = folder.file(u"Hotas/"_s);
        editor->show();
    }

    QDialog *form()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return editor->findChild<QDialog *>(u"Frm_CreatePackage"_s);
    }
    QDialog *open()
    {
        EXPECT_TRUE(editor->actions().action(u"mnuFileCreateDistribution")->isEnabled());
        editor->actions().action(u"mnuFileCreateDistribution")->trigger();
        return form();
    }
    static QLineEdit *field(QWidget *form, int index)
    {
        return form->findChild<QLineEdit *>(u"TextPackage_"_s + QString::number(index));
    }
    static void press(QWidget *form, const QString &name)
    {
        form->findChild<QAbstractButton *>(name)->click();
    }
    static void tick(QWidget *form, bool zip)
    {
        form->findChild<QAbstractButton *>(u"CheckForZip"_s)->setChecked(zip);
    }
    /// A pair with a picture, a readme and a profile, open in the Editor.
    void openSetup()
    {
        file(u"sheet.bmp"_s, "picture");
        file(u"read.txt"_s, "text");
        folder.write(u"Hotas/Profiles/Smooth.tmc"_s, "profile");
        const QString macros = file(u"My jet.tmm"_s, "a = b\r\n");
        const QString joystick = file(u"My jet.tmj"_s,
                                      "USE ZEPH GRAPHIC sheet.bmp\r\nUSE ZEPH README read.txt\r\n"
                                      "USE PROFILE Smooth (AUTO)\r\nBTN S1 a\r\n");
        editor->opening().OpenFavouriteFile(macros);
        editor->opening().OpenFavouriteFile(joystick);
    }
    QString packed(const QString &name) const { return folder.file(u"Distribute/"_s + name); }
    QString unpacked(const QString &name) const { return folder.file(u"Files/"_s + name); }
    void openZip(const QByteArray &bytes)
    {
        dialogs.answerFile(folder.write(u"their.zip"_s, bytes));
        editor->actions().action(u"mnuOpenZip")->trigger();
    }
};

} // namespace

TEST_F(PackagingTest, TheFieldsAreFilledFromTheFilesAndWhatTheySay)
{
    openSetup();
    QDialog *package = open();
    ASSERT_TRUE(package);
    EXPECT_EQ(package->windowTitle(), u"Create distribution package");
    const QStringList expected{ u""_s,
                                unpacked(u"My jet.tmj"_s),
                                unpacked(u"My jet.tmm"_s),
                                unpacked(u"sheet.bmp"_s),
                                unpacked(u"read.txt"_s),
                                folder.file(u"Hotas/Profiles/Smooth.tmc"_s) };
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(field(package, i)->text(), expected[i]);
    }
}

TEST_F(PackagingTest, FilesThatWereNeverSavedAreNotFilledIn)
{
    type(DocumentKind::Joystick, u"BTN S1 a"_s);
    QDialog *package = open();
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(field(package, i)->text(), u"");
    }
}

TEST_F(PackagingTest, ChangesThatAreNotSavedAreToldInTheForm)
{
    openSetup();
    EXPECT_TRUE(open()->findChild<QLabel *>(u"lblHint"_s)->isHidden());
    form()->reject();
    type(DocumentKind::Joystick, u"x"_s);
    const auto *hint = open()->findChild<QLabel *>(u"lblHint"_s);
    EXPECT_FALSE(hint->isHidden());
    EXPECT_EQ(hint->text(), u"Not saved: My jet.tmj. The package gets what is on disk.");
}

TEST_F(PackagingTest, APackageNeedsAName)
{
    openSetup();
    QDialog *package = open();
    dialogs.answer(u"One snippet of information missing"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    EXPECT_EQ(dialogs.boxes().first().text,
              u"You haven't provided me with a name for the distribution folder to put your files "
              "into. I'd be honoured, nay delighted, if you would provide this for me.");
    EXPECT_TRUE(package->isVisible());
    EXPECT_FALSE(QDir(packed(u""_s)).exists());
}

TEST_F(PackagingTest, ANameThatLeadsElsewhereIsRefused)
{
    QDialog *package = open();
    for (const QString &name : { u"../../out"_s, u"a/b"_s, u"C:\\x"_s, u".."_s, u"nul"_s }) {
        field(package, 0)->setText(name);
        dialogs.answer(u"That name won't do"_s, BoxButton::Ok);
        press(package, u"cmdCreate"_s);
    }
    EXPECT_FALSE(QDir(packed(u""_s)).exists());
}

TEST_F(PackagingTest, TheFilesAreCopiedAndAZipOfThemIsMade)
{
    openSetup();
    QDialog *package = open();
    field(package, 0)->setText(u"My package"_s);
    tick(package, true);
    dialogs.answer(u"Package successfully created"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    const QString at = packed(u"My package/"_s);
    EXPECT_EQ(dialogs.boxes().first().text,
              u"Your files for distribution have been copied to \n"_s
                  + QDir::toNativeSeparators(at));
    EXPECT_EQ(contentOf(at + u"My jet.tmm"_s), "a = b\r\n");
    EXPECT_EQ(contentOf(at + u"sheet.bmp"_s), "picture");
    EXPECT_EQ(contentOf(at + u"Smooth.tmc"_s), "profile");
    EXPECT_EQ(run(u"unzip"_s, { u"-Z1"_s, at + u"My package.zip"_s }, at).output,
              u"My jet.tmj\nMy jet.tmm\nread.txt\nsheet.bmp\nSmooth.tmc\n");
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_FALSE(form());
}

TEST_F(PackagingTest, WithoutTheTickThereIsNoZip)
{
    openSetup();
    QDialog *package = open();
    field(package, 0)->setText(u"Plain"_s);
    tick(package, false);
    dialogs.answer(u"Package successfully created"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    EXPECT_EQ(QDir(packed(u"Plain"_s)).entryList(QDir::Files).size(), 5);
}

TEST_F(PackagingTest, TheArchiverIsToldToPackTheFolder)
{
    settings.of<EditorSettings>().WinZipFilePath = u"/opt/winzip32.exe"_s;
    openSetup();
    QDialog *package = open();
    field(package, 0)->setText(u"Jet"_s);
    tick(package, true);
    dialogs.answer(u"Package successfully created"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches.first().program, u"/opt/winzip32.exe");
    EXPECT_EQ(launcher.launches.first().arguments,
              QDir::toNativeSeparators(u"-min -a "_s + packed(u"Jet/Jet.zip"_s) + u' '
                                       + packed(u"Jet/*.*"_s)));
    EXPECT_FALSE(QFileInfo::exists(packed(u"Jet/Jet.zip"_s)));
}

TEST_F(PackagingTest, PathsWithBlanksAreQuotedForTheArchiver)
{
    const PackagePlan plan{ .folder = u"/a b/Distribute/x/"_s,
                            .zip = u"/a b/Distribute/x/x.zip"_s };
    EXPECT_EQ(winZipPackArguments(plan),
              QDir::toNativeSeparators(
                  u"-min -a \"/a b/Distribute/x/x.zip\" \"/a b/Distribute/x/*.*\""_s));
    EXPECT_EQ(winZipOpenArguments(u"/a/their.zip"_s, u"/a b/Files/"_s),
              QDir::toNativeSeparators(u"-min -e /a/their.zip \"/a b/Files\""_s));
}

TEST_F(PackagingTest, AFileThatIsGoneIsToldAndNothingIsMade)
{
    openSetup();
    QFile::remove(unpacked(u"sheet.bmp"_s));
    QDialog *package = open();
    field(package, 0)->setText(u"Jet"_s);
    dialogs.answer(u"Can't find file"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    EXPECT_TRUE(dialogs.boxes().first().text.contains(unpacked(u"sheet.bmp"_s)));
    EXPECT_FALSE(QDir(packed(u""_s)).exists());
    EXPECT_TRUE(package->isVisible());
}

TEST_F(PackagingTest, TwoFilesOfOneNameAreRefused)
{
    openSetup();
    QDialog *package = open();
    field(package, 0)->setText(u"Jet"_s);
    field(package, 3)->setText(folder.write(u"Other/READ.txt"_s, "another"));
    dialogs.answer(u"Two files of one name"_s, BoxButton::Ok);
    press(package, u"cmdCreate"_s);
    EXPECT_FALSE(QDir(packed(u""_s)).exists());
}

TEST_F(PackagingTest, EachBrowseButtonAsksWithItsFilter)
{
    QDialog *package = open();
    const QStringList filters{
        u"Joystick files (*.tmj)|*.tmj"_s,
        u"Macro files (*.tmm)|*.tmm"_s,
        u"Graphical files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif"_s,
        u"Text files (*.txt,*.rtf)|*.txt;*.rtf"_s,
        u"Calibration profiles (*.tmc)|*.tmc"_s,
    };
    for (int i = 0; i < 5; ++i) {
        dialogs.answerFile(u"/x/%1"_s.arg(i));
        press(package, u"CMD_locate_"_s + QString::number(i));
        EXPECT_EQ(dialogs.files().last().filter, filters[i]);
        EXPECT_EQ(field(package, i + 1)->text(), u"/x/%1"_s.arg(i));
    }
    EXPECT_EQ(dialogs.files()[0].folder, paths.filesFolder());
    EXPECT_EQ(dialogs.files()[4].folder, folder.file(u"Hotas/Profiles/"_s));
    dialogs.answerFile(std::nullopt);
    press(package, u"CMD_locate_0"_s);
    EXPECT_EQ(field(package, 1)->text(), u"/x/0");
}

TEST_F(PackagingTest, AZipIsUnpackedAmongTheFiles)
{
    AnyZip zip;
    zip.file("Their jet.tmj", "BTN S1 a\r\n").file("art/sheet.bmp", "picture");
    openZip(zip.bytes());
    EXPECT_EQ(dialogs.files().last().title, u"Select the zip file to open ...");
    EXPECT_EQ(dialogs.files().last().filter, u"WinZip package (*.zip)|*.zip");
    EXPECT_EQ(contentOf(unpacked(u"Their jet.tmj"_s)), "BTN S1 a\r\n");
    EXPECT_EQ(contentOf(unpacked(u"art/sheet.bmp"_s)), "picture");
    EXPECT_EQ(status.text(),
              u"2 files unpacked into "_s + QDir::toNativeSeparators(paths.filesFolder()));
}

TEST_F(PackagingTest, AFileOfMineIsOverwrittenOnlyWhenISaySo)
{
    file(u"a.tmj"_s, "mine");
    file(u"b.tmj"_s, "mine");
    file(u"c.tmj"_s, "mine");
    AnyZip zip;
    zip.file("a.tmj", "theirs").file("b.tmj", "theirs").file("c.tmj", "theirs");
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::No);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Cancel);
    openZip(zip.bytes());
    EXPECT_EQ(dialogs.boxes().first().text,
              u"a.tmj already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(dialogs.boxes().first().defaultButton, BoxButton::No);
    EXPECT_EQ(contentOf(unpacked(u"a.tmj"_s)), "mine");
    EXPECT_EQ(contentOf(unpacked(u"b.tmj"_s)), "theirs");
    EXPECT_EQ(contentOf(unpacked(u"c.tmj"_s)), "mine");
}

TEST_F(PackagingTest, AnOpenFileThatWasOverwrittenIsOpenedAgainWhenISaySo)
{
    openSetup();
    editor->documents().select(DocumentKind::Joystick);
    AnyZip zip;
    zip.file("My jet.tmj", "BTN S2 theirs\r\n").file("MY JET.tmm", "c = d\r\n");
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"Open My jet.tmj again?"_s, BoxButton::Yes);
    dialogs.answer(u"Open My jet.tmm again?"_s, BoxButton::Yes);
    openZip(zip.bytes());
    EXPECT_EQ(dialogs.boxes().last().text,
              u"My jet.tmm is open here, and its file has just been overwritten. Shall I open the "
              "new one instead of what you see?");
    EXPECT_EQ(dialogs.boxes().last().defaultButton, BoxButton::Yes);
    EXPECT_EQ(editor->joystick().text().trimmed(), u"BTN S2 theirs");
    EXPECT_EQ(editor->macro().text().trimmed(), u"c = d");
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    EXPECT_EQ(editor->macro().state(), Document::Saved);
    EXPECT_EQ(editor->documents().selected().kind(), DocumentKind::Joystick);
}

TEST_F(PackagingTest, AnOpenFileThatIKeepOnTheScreenCountsAsNotSaved)
{
    openSetup();
    const QString before = editor->joystick().text();
    AnyZip zip;
    zip.file("My jet.tmj", "BTN S2 theirs\r\n");
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"Open My jet.tmj again?"_s, BoxButton::No);
    openZip(zip.bytes());
    EXPECT_EQ(editor->joystick().text(), before);
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    EXPECT_EQ(editor->macro().state(), Document::Saved);
}

TEST_F(PackagingTest, ChangesThatOpeningAgainWouldLoseAreToldAndKeptByDefault)
{
    openSetup();
    type(DocumentKind::Joystick, u"Rem mine\n"_s);
    AnyZip zip;
    zip.file("My jet.tmj", "BTN S2 theirs\r\n");
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    dialogs.answer(u"Open My jet.tmj again?"_s, BoxButton::No);
    openZip(zip.bytes());
    EXPECT_TRUE(dialogs.boxes().last().text.endsWith(
        u" What you've changed since you last saved it would be gone."));
    EXPECT_EQ(dialogs.boxes().last().defaultButton, BoxButton::No);
    EXPECT_TRUE(editor->joystick().text().startsWith(u"Rem mine\n"));
}

TEST_F(PackagingTest, AFileOfTheSameNameElsewhereIsNotTheOneThatIsOpen)
{
    openSetup();
    AnyZip zip;
    zip.file("other/My jet.tmj", "BTN S2 theirs\r\n");
    openZip(zip.bytes());
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(PackagingTest, WhatIsRefusedIsTold)
{
    AnyZip zip;
    zip.file("../up.txt", "x").file("a.tmj", "theirs").link("link", "/etc");
    dialogs.answer(u"Not everything was unpacked"_s, BoxButton::Ok);
    openZip(zip.bytes());
    EXPECT_EQ(dialogs.boxes().first().text,
              u"These I wouldn't let out of the zip:\n../up.txt: it leads outside the folder\n"
              "link: it is a link, not a file");
    EXPECT_EQ(contentOf(unpacked(u"a.tmj"_s)), "theirs");
    EXPECT_FALSE(folder.exists(u"up.txt"_s));
}

TEST_F(PackagingTest, AFileThatIsNoZipIsTold)
{
    dialogs.answer(u"Can't open zip file"_s, BoxButton::Ok);
    dialogs.answerFile(folder.file(u"none.zip"_s));
    editor->actions().action(u"mnuOpenZip")->trigger();
    dialogs.answer(u"Can't open zip file"_s, BoxButton::Ok);
    openZip("no zip");
    EXPECT_EQ(status.text(), u"Zip file not opened");
}

TEST_F(PackagingTest, AZipThatIsDamagedFurtherOnIsToldAndWhatCameBeforeStays)
{
    AnyZip zip;
    zip.file("a.tmj", "theirs").file("b.tmj", "theirs");
    QByteArray bytes = zip.bytes();
    const QByteArray entryMark("PK\3\4");
    const qsizetype second = bytes.indexOf(entryMark, bytes.indexOf(entryMark) + 1);
    ASSERT_GT(second, 0);
    bytes.replace(second, 4, "XXXX");
    dialogs.answer(u"Damaged zip file"_s, BoxButton::Ok);
    openZip(bytes);
    EXPECT_EQ(contentOf(unpacked(u"a.tmj"_s)), "theirs");
    EXPECT_FALSE(QFileInfo::exists(unpacked(u"b.tmj"_s)));
}

TEST_F(PackagingTest, TheArchiverIsToldToOpenTheZip)
{
    settings.of<EditorSettings>().WinZipFilePath = u"/opt/winzip32.exe"_s;
    openZip("whatever");
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches.first().arguments,
              QDir::toNativeSeparators(u"-min -e "_s + folder.file(u"their.zip"_s) + u' '
                                       + paths.filesFolder()));
    EXPECT_EQ(status.text(), u"Opening WinZip package");
}

TEST_F(PackagingTest, AnArchiverThatDoesNotStartIsTold)
{
    settings.of<EditorSettings>().WinZipFilePath = u"/opt/winzip32.exe"_s;
    launcher.onStart = [](const Launch &) -> Expected<void, QString> {
        return Unexpected<QString>(u"gone"_s);
    };
    dialogs.answer(u"Can't start WinZip"_s, BoxButton::Ok);
    openZip("whatever");
}

TEST_F(PackagingTest, NoZipChosenIsNothingDone)
{
    status.setText(u"before"_s);
    dialogs.answerFile(std::nullopt);
    editor->actions().action(u"mnuOpenZip")->trigger();
    EXPECT_EQ(status.text(), u"before");
}
