// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/user_lists.h"

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "lists/custom_apps.h"
#include "lists/favourites_menu.h"
#include "menus/menu_actions.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

using namespace zeph;

namespace {

const QString joystickQuestion =
    u"Do you want me to create a Favourite without your current joystick file?"_s;
const QString macroQuestion =
    u"Do you want me to create a Favourite without your current macro file?"_s;

struct UserListsTest : test::RunningWorld {
    Editor &editor() { return app->editor(); }
    QAction *entry(const QString &name) { return entryOf(editor(), name); }
    bool isShown(const QString &name)
    {
        const QAction *found = entry(name);
        return found && found->isVisible();
    }
    void click(const QString &name)
    {
        ASSERT_TRUE(isShown(name)) << name.toStdString();
        entry(name)->trigger();
    }
    QString stored(const QString &section, const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(section, key, u"(absent)"_s);
    }
    QByteArray path(const QString &name) const { return folder.file(name).toLocal8Bit(); }

    /// Answers the window that asks for a favourite's name, with OK or Cancel.
    void answerName(const QString &name, const QString &press = u"cmdOK"_s)
    {
        QTimer::singleShot(0, &app->mum(), [name, press] {
            QWidget *window = QApplication::activeModalWidget();
            window->findChild<QLineEdit *>(u"TextFavouriteName"_s)->setText(name);
            window->findChild<QAbstractButton *>(press)->click();
        });
    }
};

} // namespace

TEST_F(UserListsTest, WithoutRecentFilesTheListsAreDisabledAndTheClearEntryIsHidden)
{
    start();
    EXPECT_FALSE(entry(u"mnuJFList"_s)->isEnabled());
    EXPECT_FALSE(entry(u"mnuMFList"_s)->isEnabled());
    EXPECT_FALSE(isShown(u"mnuPreviousClearAllJ"_s));
}

TEST_F(UserListsTest, OpenedAndSavedFilesGoIntoTheListOfTheirKind)
{
    start("[PreviousJoystickFiles]\r\nJFArrayNum=1\r\nJFPath1=C:\\old & new.tmj\r\n");
    const QString a = folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"a.tmm"_s, "Fire = a\r\n");
    editor().opening().OpenPreviouslySavedFiles(a);
    EXPECT_EQ(entry(u"mnuJFArray_1"_s)->text(), a);
    EXPECT_EQ(entry(u"mnuJFArray_2"_s)->text(), u"C:\\old && new.tmj");
    EXPECT_EQ(entry(u"mnuMFArray_1"_s)->text(), folder.file(u"a.tmm"_s));
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFArrayNum"_s), u"2");
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFPath1"_s), u"a.tmj");
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFPath2"_s), u"C:\\old & new.tmj");
    EXPECT_EQ(stored(u"PreviousMacroFiles"_s, u"MFArrayNum"_s), u"1");
    EXPECT_EQ(stored(u"PreviousMacroFiles"_s, u"MFPath1"_s), u"a.tmm");

    dialogs.answerFile(folder.file(u"b.tmj"_s));
    editor().saving().mnuFileSaveAs_Click();
    EXPECT_EQ(entry(u"mnuJFArray_1"_s)->text(), folder.file(u"b.tmj"_s));
    EXPECT_EQ(entry(u"mnuJFArray_2"_s)->text(), a);
}

TEST_F(UserListsTest, AnAutosaveCountsButNotThatOfATextWithoutAName)
{
    start();
    editor().opening().OpenFavouriteFile(folder.write(u"a.tmj"_s, "BTN S2 a\r\n"));
    click(u"mnuPreviousClearAllJ"_s);
    editor().view().control(DocumentKind::Joystick).insertPlainText(u"x"_s);
    editor().view().control(DocumentKind::Macro).insertPlainText(u"y"_s);
    editor().guards().autoSave.AutoSaveFile();
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFPath1"_s), u"a.tmj");
    EXPECT_TRUE(folder.exists(u"Files/Untitled.tmm"_s));
    EXPECT_FALSE(isShown(u"mnuMFArray_1"_s));
}

TEST_F(UserListsTest, ATextThatCameBackWithoutAFileIsNotListed)
{
    start();
    editor().opening().showRecovered(DocumentKind::Joystick, folder.file(u"gone.tmj"_s), u"x"_s);
    EXPECT_FALSE(isShown(u"mnuJFArray_1"_s));
    editor().opening().showRecovered(DocumentKind::Joystick, folder.write(u"a.tmj"_s, "a"), u"x"_s);
    EXPECT_TRUE(isShown(u"mnuJFArray_1"_s));
}

TEST_F(UserListsTest, A31stRecentFilePushesTheOldestOut)
{
    QByteArray list = "[PreviousJoystickFiles]\r\nJFArrayNum=30\r\n";
    for (int i = 1; i <= 30; ++i) {
        list += "JFPath" + QByteArray::number(i) + "=" + QByteArray::number(i) + ".tmj\r\n";
    }
    start(list);
    editor().opening().OpenFavouriteFile(folder.write(u"new.tmj"_s, "BTN S2 a\r\n"));
    EXPECT_EQ(entry(u"mnuJFArray_1"_s)->text(), folder.file(u"new.tmj"_s));
    EXPECT_EQ(entry(u"mnuJFArray_30"_s)->text(), folder.file(u"29.tmj"_s));
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFArrayNum"_s), u"30");
    EXPECT_EQ(stored(u"PreviousJoystickFiles"_s, u"JFPath30"_s), u"29.tmj");
}

TEST_F(UserListsTest, ARecentFileOpensWithItsPartnerAndMovesToTheTop)
{
    folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"a.tmm"_s, "Fire = a\r\n");
    start("[PreviousJoystickFiles]\r\nJFArrayNum=2\r\nJFPath1=x.tmj\r\nJFPath2=" + path(u"a.tmj"_s)
          + "\r\n");
    click(u"mnuJFArray_2"_s);
    EXPECT_EQ(editor().joystick().path(), folder.file(u"a.tmj"_s));
    EXPECT_EQ(editor().macro().path(), folder.file(u"a.tmm"_s));
    EXPECT_EQ(entry(u"mnuJFArray_1"_s)->text(), folder.file(u"a.tmj"_s));
    EXPECT_EQ(entry(u"mnuJFArray_2"_s)->text(), folder.file(u"x.tmj"_s));
}

TEST_F(UserListsTest, ARecentFileThatIsGoneIsTold)
{
    start("[PreviousMacroFiles]\r\nMFArrayNum=1\r\nMFPath1=/nowhere/a.tmm\r\n");
    dialogs.answer(u"Can't find file"_s, BoxButton::Ok);
    click(u"mnuMFArray_1"_s);
    EXPECT_TRUE(dialogs.boxes().last().text.startsWith(u"There's a problem here ..."));
    EXPECT_TRUE(dialogs.boxes().last().text.endsWith(
        u"/nowhere/a.tmm which probably means you've deleted it or moved it. Sorry!"));
}

TEST_F(UserListsTest, ClearAllEmptiesEntriesKeysAndCountAndHidesItself)
{
    start("[PreviousMacroFiles]\r\nMFArrayNum=2\r\nMFPath1=a.tmm\r\nMFPath2=b.tmm\r\n");
    click(u"mnuPreviousClearAllM"_s);
    EXPECT_FALSE(isShown(u"mnuMFArray_1"_s));
    EXPECT_FALSE(isShown(u"mnuPreviousClearAllM"_s));
    EXPECT_EQ(stored(u"PreviousMacroFiles"_s, u"MFArrayNum"_s), u"0");
    EXPECT_EQ(stored(u"PreviousMacroFiles"_s, u"MFPath1"_s), u"");
    EXPECT_EQ(stored(u"PreviousMacroFiles"_s, u"MFPath2"_s), u"");
}

TEST_F(UserListsTest, AFavouriteOpensItsFiles)
{
    folder.write(u"a.tmj"_s, "BTN S2 Fire\r\n");
    folder.write(u"b.tmm"_s, "Fire = a\r\n");
    start("[Favourites]\r\nFavArrayNum=1\r\nFavName1=Eagle\r\nFavJFPath1=" + path(u"a.tmj"_s)
          + "\r\nFavMFPath1=" + path(u"b.tmm"_s) + "\r\n");
    click(u"mnuFavArray_1"_s);
    EXPECT_EQ(editor().joystick().path(), folder.file(u"a.tmj"_s));
    EXPECT_EQ(editor().macro().path(), folder.file(u"b.tmm"_s));
}

TEST_F(UserListsTest, AFavouriteWithNoneAsMacroPathOpensTheJoystickFileAloneWithoutAMessage)
{
    folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"a.tmm"_s, "Fire = a\r\n");
    start("[Favourites]\r\nFavArrayNum=1\r\nFavName1=Eagle\r\nFavJFPath1=" + path(u"a.tmj"_s)
          + "\r\nFavMFPath1=None\r\n");
    click(u"mnuFavArray_1"_s);
    EXPECT_EQ(editor().joystick().path(), folder.file(u"a.tmj"_s));
    EXPECT_EQ(editor().macro().name(), u"Untitled.tmm");
}

TEST_F(UserListsTest, TheCurrentFilesBecomeAFavourite)
{
    folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"a.tmm"_s, "Fire = a\r\n");
    start("[Favourites]\r\nFavArrayNum=1\r\nFavName1=Eagle\r\nFavJFPath1=None\r\n");
    editor().opening().OpenPreviouslySavedFiles(folder.file(u"a.tmj"_s));
    answerName(u" Hawk & Dove "_s);
    click(u"mnuFavouritesAddCurrent"_s);
    EXPECT_EQ(entry(u"mnuFavArray_1"_s)->text(), u"Hawk && Dove");
    EXPECT_EQ(entry(u"mnuFavArray_2"_s)->text(), u"Eagle");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavArrayNum"_s), u"2");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavName1"_s), u"Hawk & Dove");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavJFPath1"_s), u"a.tmj");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavMFPath1"_s), u"a.tmm");
}

TEST_F(UserListsTest, AFavouriteOfTwoUnsavedFilesHoldsNoneTwiceAndOpensNothing)
{
    start();
    EXPECT_FALSE(isShown(u"mnuSortFavourites"_s));
    dialogs.answer(joystickQuestion, BoxButton::Yes);
    dialogs.answer(macroQuestion, BoxButton::Yes);
    answerName(u"Nothing"_s);
    click(u"mnuFavouritesAddCurrent"_s);
    for (const Box &box : dialogs.boxes()) {
        EXPECT_EQ(box.defaultButton, BoxButton::No);
    }
    EXPECT_TRUE(
        dialogs.boxes()[0].text.startsWith(u"Your joystick file hasn't been saved as yet."));
    EXPECT_EQ(stored(u"Favourites"_s, u"FavJFPath1"_s), u"None");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavMFPath1"_s), u"None");
    click(u"mnuFavArray_1"_s);
    EXPECT_EQ(editor().joystick().name(), u"Untitled.tmj");
    EXPECT_TRUE(isShown(u"mnuSortFavourites"_s));
}

TEST_F(UserListsTest, NoToOneOfTheQuestionsLetsTheUserSaveFirst)
{
    start();
    dialogs.answer(joystickQuestion, BoxButton::No);
    click(u"mnuFavouritesAddCurrent"_s);
    dialogs.answer(joystickQuestion, BoxButton::Yes);
    dialogs.answer(macroQuestion, BoxButton::No);
    click(u"mnuFavouritesAddCurrent"_s);
    EXPECT_EQ(stored(u"Favourites"_s, u"FavArrayNum"_s), u"(absent)");
}

TEST_F(UserListsTest, AnEmptyNameOrCancelMakesNoFavourite)
{
    start();
    for (const auto &[name, press] :
         { std::pair(u"  "_s, u"cmdOK"_s), std::pair(u"Hawk"_s, u"cmdCancel"_s) }) {
        dialogs.answer(joystickQuestion, BoxButton::Yes);
        dialogs.answer(macroQuestion, BoxButton::Yes);
        answerName(name, press);
        click(u"mnuFavouritesAddCurrent"_s);
    }
    EXPECT_FALSE(isShown(u"mnuFavArray_1"_s));
}

TEST_F(UserListsTest, FavouritesAreSortedByName)
{
    start("[Favourites]\r\nFavArrayNum=2\r\nFavName1=b\r\nFavName2=A\r\n");
    click(u"mnuSortFavourites"_s);
    EXPECT_EQ(entry(u"mnuFavArray_1"_s)->text(), u"A");
    EXPECT_EQ(stored(u"Favourites"_s, u"FavName2"_s), u"b");
}

TEST_F(UserListsTest, CustomApplicationsInUseShowOnMenuAndToolbarAndStart)
{
    const QString program = folder.write(u"chat"_s, "program");
    start("[Apps]\r\nCustomAppName2=Talk & chat\r\nCustomAppPath2=" + program.toLocal8Bit()
          + " -q\r\nCustomAppUse2=1\r\nCustomAppName3=Off\r\nCustomAppPath3=x\r\n");
    EXPECT_FALSE(isShown(u"mnuCustomApp_1"_s));
    EXPECT_FALSE(isShown(u"mnuCustomApp_3"_s));
    EXPECT_EQ(entry(u"mnuCustomApp_2"_s)->text(), u"Talk && chat");
    QCoreApplication::processEvents();
    auto *button = app->mum().findChild<QToolButton *>(u"Toolbar2_18"_s);
    EXPECT_FALSE(button->isHidden());
    EXPECT_EQ(button->accessibleName(), u"Talk & chat");
    EXPECT_TRUE(app->mum().findChild<QToolButton *>(u"Toolbar2_19"_s)->isHidden());
    button->click();
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches[0].program, program);
    EXPECT_EQ(launcher.launches[0].arguments, u"-q");
    EXPECT_EQ(launcher.launches[0].folder, folder.root());
}

TEST_F(UserListsTest, ACustomApplicationThatCannotStartIsTold)
{
    const QString program = folder.write(u"chat"_s, "program");
    start("[Apps]\r\nCustomAppName1=Chat\r\nCustomAppPath1=" + program.toLocal8Bit()
          + "\r\nCustomAppUse1=1\r\n");
    launcher.onStart = [](const Launch &launch) {
        return Expected<void, QString>(Unexpected<QString>(launch.program + u": no luck"_s));
    };
    dialogs.answer(u"I couldn't start that buddy"_s, BoxButton::Ok);
    click(u"mnuCustomApp_1"_s);
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes().last().text, program + u": no luck"_s);
}

TEST_F(UserListsTest, ACustomApplicationThatIsMissingIsGreyAndSaysSo)
{
    start("[Apps]\r\nCustomAppName1=Chat\r\nCustomAppPath1=/nowhere/chat\r\nCustomAppUse1=1\r\n");
    EXPECT_TRUE(entry(u"mnuCustomApp_1"_s)->isVisible());
    EXPECT_FALSE(entry(u"mnuCustomApp_1"_s)->isEnabled());
    EXPECT_EQ(entry(u"mnuCustomApp_1"_s)->statusTip(), u"/nowhere/chat is missing");
}
