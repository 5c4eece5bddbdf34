// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_files.h"

#include "layouts/files/layouts_settings.h"
#include "layouts/files/layoutsave.h"
#include "tests/layouts/files/sheet_maker.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace zeph;
using namespace zeph::test;

namespace {

const QString exists = u"A layout with that name already exists."_s;

class LayoutFilesTest : public WorldTest
{
protected:
    void SetUp() override { make(SheetKind::Joystick); }

    void make(SheetKind kind)
    {
        files = std::make_unique<LayoutFiles>(context(), kind, nullptr);
        sheet = SheetMaker(21).storedWithTexts(kind);
    }
    QString layout(const QString &name) const
    {
        return QDir::toNativeSeparators(paths.layoutsFolder() + name);
    }
    /// A path inside the program's folder as the list holds it.
    static QByteArray stored(const char *path)
    {
        return QDir::toNativeSeparators(QLatin1String(path)).toLatin1();
    }
    bool isThere(const QString &name) const { return QFileInfo::exists(layout(name)); }
    /// Plays the pilot in the next window that asks for a name.
    void enterName(const QString &name, const QString &button = u"cmdOK"_s)
    {
        QTimer::singleShot(0, files.get(), [this, name, button] {
            auto *window = qobject_cast<LayoutSave *>(QApplication::activeModalWidget());
            ASSERT_TRUE(window);
            shown = window->findChild<QLabel *>(u"LabelName"_s)->text();
            shownName = window->objectName();
            auto *combo = window->findChild<QComboBox *>(u"Combo1"_s);
            offered.clear();
            for (int i = 0; i < combo->count(); ++i) {
                offered.append(combo->itemText(i));
            }
            combo->setEditText(name);
            window->findChild<QPushButton *>(button)->click();
        });
    }
    void savePositions(const QString &name)
    {
        enterName(name);
        EXPECT_TRUE(files->SavePositions(sheet));
    }
    void saveWithText(const QString &name)
    {
        enterName(name);
        EXPECT_TRUE(files->SaveTextWithPositions(sheet));
    }
    QByteArray ini() const { return folder.read(u"Layouts.ini"_s); }

    std::unique_ptr<LayoutFiles> files;
    Sheet sheet;
    QString shown;
    QString shownName;
    QStringList offered;
};

} // namespace

TEST_F(LayoutFilesTest, PositionsAreSavedUnderTheNameEntered)
{
    QDir(paths.appFolder).mkpath(u"Layouts/Old one"_s);
    QDir(paths.appFolder).mkpath(u"Layouts/temp"_s);
    QSignalSpy changed(files.get(), &LayoutFiles::recentChanged);
    EXPECT_FALSE(files->isSaved(sheet));
    savePositions(u"  Falcon "_s);
    EXPECT_EQ(shownName, u"LayoutSave");
    EXPECT_EQ(shown, u"Enter a name for the layout to be saved as ...");
    EXPECT_EQ(offered, QStringList{ u"Old one"_s });
    EXPECT_TRUE(isThere(u"Falcon.jfl"_s));
    EXPECT_EQ(files->path(), layout(u"Falcon.jfl"_s));
    EXPECT_EQ(files->recent(), QStringList{ layout(u"Falcon.jfl"_s) });
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(files->isSaved(sheet));
    sheet.boxes[0].Left += 1;
    EXPECT_FALSE(files->isSaved(sheet));
}

TEST_F(LayoutFilesTest, AnEmptyNameEndsTheSaveWithoutAWord)
{
    enterName(u"   "_s);
    EXPECT_FALSE(files->SavePositions(sheet));
    enterName(u"Falcon"_s, u"cmdCancel"_s);
    EXPECT_FALSE(files->SaveTextWithPositions(sheet));
    EXPECT_FALSE(folder.exists(u"Layouts"_s));
    EXPECT_EQ(files->path(), QString());
}

TEST_F(LayoutFilesTest, PositionsAskBeforeTheyOverwrite)
{
    savePositions(u"Falcon"_s);
    const QByteArray before = folder.read(u"Layouts/Falcon.jfl"_s);
    sheet.boxes[0].Left += 1;
    dialogs.answer(exists, BoxButton::No);
    enterName(u"falcon"_s);
    EXPECT_FALSE(files->SavePositions(sheet));
    EXPECT_EQ(folder.read(u"Layouts/Falcon.jfl"_s), before);
    EXPECT_EQ(dialogs.boxes().last().text,
              u"You already have a layout saved with that name. Do you want me to overwrite it?");
    EXPECT_EQ(dialogs.boxes().last().buttons, (QList{ BoxButton::Yes, BoxButton::No }));
    dialogs.answer(exists, BoxButton::Yes);
    savePositions(u"Falcon"_s);
    EXPECT_NE(folder.read(u"Layouts/Falcon.jfl"_s), before);
}

TEST_F(LayoutFilesTest, WithTextItOverwritesWithoutAsking)
{
    saveWithText(u"Falcon"_s);
    EXPECT_EQ(shownName, u"LayoutSaveText");
    EXPECT_EQ(shown, u"Enter a name for the layout with text to be saved as:");
    EXPECT_EQ(files->path(), layout(u"Falcon/Joystick layout.jft"_s));
    sheet.boxes[2].text = RichText::plain(u"new"_s);
    saveWithText(u"Falcon"_s);
    EXPECT_EQ(offered, QStringList{ u"Falcon"_s });
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_EQ(loadLayout(SheetKind::Joystick, LayoutForm::WithText, files->path())->boxes[2].text,
              RichText::plain(u"new"_s));
}

TEST_F(LayoutFilesTest, AFailedSaveIsToldAndNothingIsCurrent)
{
    folder.write(u"Layouts"_s, "a file where the folder should be");
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    enterName(u"Falcon"_s);
    EXPECT_FALSE(files->SavePositions(sheet));
    EXPECT_EQ(files->path(), QString());
    EXPECT_FALSE(files->isSaved(sheet));
}

TEST_F(LayoutFilesTest, ALayoutWithTextComesBackWithItsFormats)
{
    saveWithText(u"Falcon"_s);
    const QString path = files->path();
    const Sheet other = SheetMaker(22).storedWithTexts(SheetKind::Joystick);
    dialogs.answerFile(path);
    QSignalSpy told(files.get(), &LayoutFiles::told);
    const auto opened = files->OpenTextWithPositions(other);
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->form, LayoutForm::WithText);
    EXPECT_EQ(opened->sheet, sheet);
    EXPECT_TRUE(files->isSaved(opened->sheet));
    EXPECT_EQ(dialogs.files().last().filter, u"Joystick layout and text (*.jft)|*.jft");
    EXPECT_EQ(dialogs.files().last().folder, paths.layoutsFolder());
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0][0], u"Opening layout file"_s);
}

TEST_F(LayoutFilesTest, PositionsLeaveTheTextsOfTheSheet)
{
    savePositions(u"Falcon"_s);
    const Sheet other = SheetMaker(22).storedWithTexts(SheetKind::Joystick);
    dialogs.answerFile(files->path());
    QSignalSpy told(files.get(), &LayoutFiles::told);
    const auto opened = files->OpenTextBoxPositions(other);
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->sheet.boxes[5].text, other.boxes[5].text);
    EXPECT_EQ(opened->sheet.boxes[5].Left, sheet.boxes[5].Left);
    EXPECT_EQ(dialogs.files().last().filter, u"Joystick layout (*.jfl)|*.jfl");
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[0][0], u"Opening textbox positions file"_s);
    EXPECT_EQ(told[1][0], u" OK .. ready!"_s);
}

TEST_F(LayoutFilesTest, PositionsLeaveUnsavedTextsUnsaved)
{
    savePositions(u"Falcon"_s);
    const QString path = files->path();
    const auto again = files->OpenTextBoxPositions(sheet, path);
    ASSERT_TRUE(again);
    EXPECT_TRUE(files->isSaved(again->sheet)) << "nothing has been typed since";
    sheet.boxes[14].text = RichText::plain(u"Custom 1: my notes"_s);
    const auto opened = files->OpenTextBoxPositions(sheet, path);
    ASSERT_TRUE(opened);
    EXPECT_FALSE(files->isSaved(opened->sheet)) << "no file has the notes";
    EXPECT_EQ(files->path(), path);
}

TEST_F(LayoutFilesTest, OpeningKeepsBoxesFromMovingButStoresNothingOfIt)
{
    savePositions(u"Falcon"_s);
    ASSERT_TRUE(files->OpenTextBoxPositions(sheet, files->path()));
    auto &values = settings.of<LayoutsSettings>();
    EXPECT_FALSE(values.repositions());
    ASSERT_TRUE(saveGroup(settings.group<LayoutsSettings>(), settingsFilesOf(paths)));
    EXPECT_TRUE(ini().contains("RepositionOnSizeChange=1"));
}

TEST_F(LayoutFilesTest, ADamagedLayoutIsToldWithFileAndLineAndLeavesTheSheet)
{
    saveWithText(u"Falcon"_s);
    const QString path = files->path();
    folder.write(u"Layouts/Falcon/Cougar Joystick Text3.rtf"_s, "{\\rtf1 a\nb");
    dialogs.answer(u"I couldn't open your layout buddy"_s, BoxButton::Ok);
    EXPECT_FALSE(files->OpenTextWithPositions(sheet, path));
    EXPECT_TRUE(dialogs.boxes().last().text.contains(u"Cougar Joystick Text3.rtf, line 2: "));
    folder.write(u"Layouts/bad.jfl"_s, "1 2\r\n1,2,True\r\n");
    dialogs.answer(u"I couldn't open your layout buddy"_s, BoxButton::Ok);
    EXPECT_FALSE(files->OpenTextBoxPositions(sheet, layout(u"bad.jfl"_s)));
    EXPECT_TRUE(dialogs.boxes().last().text.contains(u"bad.jfl, line 2: "));
    EXPECT_EQ(files->path(), path) << "still the last good one";
    EXPECT_EQ(files->recent().size(), 1);
    EXPECT_FALSE(settings.of<LayoutsSettings>().isRepositionOff);
}

TEST_F(LayoutFilesTest, CancelOpensNothing)
{
    dialogs.answerFile(std::nullopt);
    EXPECT_FALSE(files->OpenTextBoxPositions(sheet));
}

TEST_F(LayoutFilesTest, TheRecentListHasTheLastOneOnTopAndThirtyAtMost)
{
    for (int i = 1; i <= 31; ++i) {
        savePositions(QString::number(i));
    }
    EXPECT_EQ(files->recent().size(), 30);
    EXPECT_EQ(files->recent().first(), layout(u"31.jfl"_s));
    EXPECT_EQ(files->recent().last(), layout(u"2.jfl"_s)) << "the oldest has gone";
    ASSERT_TRUE(files->OpenTextBoxPositions(sheet, layout(u"20.jfl"_s)));
    EXPECT_EQ(files->recent().size(), 30);
    EXPECT_EQ(files->recent().first(), layout(u"20.jfl"_s));
    EXPECT_EQ(files->recent().count(layout(u"20.jfl"_s)), 1);
    EXPECT_TRUE(ini().contains("[Joystick layouts]\r\nNumbPrevJoystickLayouts=30\r\n"));
    EXPECT_TRUE(ini().contains("PreviousJoystickLO1=" + stored("Layouts/20.jfl") + "\r\n"));
    const QStringList before = files->recent();
    make(SheetKind::Joystick);
    EXPECT_EQ(files->recent(), before) << "the next window reads them again";
}

TEST_F(LayoutFilesTest, EachKindHasAListOfItsOwn)
{
    savePositions(u"a"_s);
    make(SheetKind::Throttle);
    EXPECT_TRUE(files->recent().isEmpty());
    savePositions(u"a"_s);
    make(SheetKind::Custom);
    saveWithText(u"a"_s);
    EXPECT_TRUE(ini().contains("[Throttle layouts]\r\nNumbPrevThrottleLayouts=1\r\n"
                               "PreviousThrottleLO1="
                               + stored("Layouts/a.ttl") + "\r\n"));
    EXPECT_TRUE(ini().contains("[Custom layouts]\r\nNumbPrevCustomLayouts=1\r\n"
                               "PreviousCustomLO1="
                               + stored("Layouts/a/Custom layout.clt") + "\r\n"));
}

TEST_F(LayoutFilesTest, ClearingTheListEmptiesItsSection)
{
    savePositions(u"a"_s);
    savePositions(u"b"_s);
    files->mnuClearLayouts_Click();
    EXPECT_TRUE(files->recent().isEmpty());
    EXPECT_EQ(ini(), "[Joystick layouts]\r\nNumbPrevJoystickLayouts=0\r\n");
}

TEST_F(LayoutFilesTest, ARecentLayoutThatIsGoneIsTold)
{
    savePositions(u"a"_s);
    QFile::remove(layout(u"a.jfl"_s));
    dialogs.answer(u"Can't find file"_s, BoxButton::Ok);
    EXPECT_FALSE(files->openRecent(1, sheet));
    EXPECT_EQ(dialogs.boxes().last().text,
              u"There's a problem here ... I couldn't find "_s + layout(u"a.jfl"_s)
                  + u" which probably means you've deleted it or moved it. Sorry!"_s);
}

TEST_F(LayoutFilesTest, ARecentLayoutOpensByItsLettersAfterAnOfferToSave)
{
    savePositions(u"a"_s);
    saveWithText(u"b"_s);
    const Sheet other = SheetMaker(23).storedWithTexts(SheetKind::Joystick);
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
    const auto withText = files->openRecent(1, other);
    ASSERT_TRUE(withText);
    EXPECT_EQ(withText->form, LayoutForm::WithText);
    EXPECT_EQ(dialogs.boxes().last().text,
              u"Before I open this layout, would you like to save the current layout?");
    dialogs.answer(u"Save layout?"_s, BoxButton::Yes);
    enterName(u"c"_s);
    const auto places = files->openRecent(2, other);
    ASSERT_TRUE(places);
    EXPECT_EQ(places->form, LayoutForm::Positions);
    EXPECT_EQ(files->path(), layout(u"a.jfl"_s)) << "not what took its place in the list";
    EXPECT_EQ(
        loadLayout(SheetKind::Joystick, LayoutForm::WithText, layout(u"c/Joystick layout.jft"_s)),
        other);
    dialogs.answer(u"Save layout?"_s, BoxButton::Cancel);
    EXPECT_FALSE(files->openRecent(1, other));
    dialogs.answer(u"Save layout?"_s, BoxButton::Yes);
    enterName({});
    EXPECT_FALSE(files->openRecent(1, other)) << "a save that did not happen opens nothing";
}

TEST_F(LayoutFilesTest, TheAutomaticLayoutOpensByItsLetters)
{
    saveWithText(u"a"_s);
    auto &values = settings.of<LayoutsSettings>();
    const Sheet other = SheetMaker(23).storedWithTexts(SheetKind::Joystick);
    EXPECT_FALSE(files->openAutomatic(other));
    values.AutoJLO = files->path();
    EXPECT_FALSE(files->openAutomatic(other)) << "it is not to be used";
    values.AutoJLOuse = true;
    ASSERT_TRUE(files->openAutomatic(other));
    EXPECT_EQ(files->openAutomatic(other)->sheet, sheet);
    values.AutoJLO = layout(u"gone.jfl"_s);
    EXPECT_FALSE(files->openAutomatic(other));
}

TEST_F(LayoutFilesTest, ClosingOffersToSaveWhatIsNotSaved)
{
    dialogs.answer(u"Save layout?"_s, BoxButton::Cancel);
    EXPECT_FALSE(files->mayClose(sheet));
    EXPECT_EQ(
        dialogs.boxes().last().text,
        u"Before I close down the Joystick Layout Editor, would you like to save the layout?");
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
    EXPECT_TRUE(files->mayClose(sheet));
    dialogs.answer(u"Save layout?"_s, BoxButton::Yes);
    enterName(u"a"_s);
    EXPECT_TRUE(files->mayClose(sheet));
    EXPECT_TRUE(files->mayClose(sheet)) << "saved: nothing is asked";
    make(SheetKind::Throttle);
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
    EXPECT_TRUE(files->mayClose(sheet));
    EXPECT_EQ(
        dialogs.boxes().last().text,
        u"Before I close down the Throttle Layout Editor, would you like to save the layout?");
}
