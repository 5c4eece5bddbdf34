// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/games_menu.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "menus/menu_actions.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

using namespace zeph;

namespace {

struct GamesMenuTest : test::RunningWorld {
    QMenu &menu() { return *app->editor().actions().menu(u"mnuGames"); }
    QStringList shown()
    {
        QStringList names;
        for (const QAction *action : menu().actions()) {
            if (action->isVisible()) {
                names.append(action->objectName());
            }
        }
        return names;
    }
    QAction *entry(const QString &name) { return entryOf(app->editor(), name); }
    QString stored(const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(u"Games", key, u"(absent)"_s);
    }
};

/// Two games that do nothing to the Cougar.
const QByteArray twoGames =
    "[Games]\r\nGameArrayNum=2\r\nGameName1=Falcon & Co\r\nGamePath1=f.exe\r\n"
    "GameJFmode1=9\r\nGameName2=Eaw\r\nGamePath2=e.exe\r\nGameJFmode2=9\r\n";

} // namespace

TEST_F(GamesMenuTest, WithoutGamesTheDividerAndTheSortEntryAreHidden)
{
    start();
    EXPECT_EQ(shown(), QStringList({ u"mnuGamesAdd"_s, u"mnuGamesEdit"_s }));
}

TEST_F(GamesMenuTest, GamesStandAfterAddAndBeforeSortAndEdit)
{
    start(twoGames);
    EXPECT_EQ(shown(),
              QStringList({ u"mnuGamesAdd"_s, u"mnuGamesDivider"_s, u"mnuGameArray_1"_s,
                            u"mnuGameArray_2"_s, u"mnuGamesSortDivider"_s, u"mnuGamesSort"_s,
                            u"mnuGamesEdit"_s }));
    EXPECT_EQ(entry(u"mnuGameArray_1"_s)->text(), u"Falcon && Co");
}

TEST_F(GamesMenuTest, TheMenuIsCalledAsTheSettingsSay)
{
    start();
    EXPECT_EQ(menu().title(), u"&Games");
    app.reset();
    writeStore("GamesCaption=Check si&x\r\n");
    app = application();
    ASSERT_TRUE(app->start());
    EXPECT_EQ(menu().title(), u"Check si&x");
}

TEST_F(GamesMenuTest, AnEmptyCaptionFallsBack)
{
    writeStore("GamesCaption=\r\n");
    app = application();
    ASSERT_TRUE(app->start());
    EXPECT_EQ(menu().title(), u"&Games");
}

TEST_F(GamesMenuTest, AChosenGameMovesUpStartsAndTheMainWindowIsMinimised)
{
    start(twoGames);
    entry(u"mnuGameArray_2"_s)->trigger();
    EXPECT_EQ(entry(u"mnuGameArray_1"_s)->text(), u"Eaw");
    EXPECT_EQ(stored(u"GameName1"_s), u"Eaw");
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches[0].program, u"e.exe");
    EXPECT_TRUE(app->mum().isMinimized());
}

TEST_F(GamesMenuTest, ChoosingAGameSavesBothChangedDocumentsWithoutAsking)
{
    folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    folder.write(u"a.tmm"_s, "Fire = a\r\n");
    start(twoGames);
    Editor &editor = app->editor();
    editor.opening().OpenPreviouslySavedFiles(folder.file(u"a.tmj"_s));
    editor.view().control(DocumentKind::Joystick).insertPlainText(u"Rem j\n"_s);
    editor.view().control(DocumentKind::Macro).insertPlainText(u"Rem m\n"_s);
    ASSERT_TRUE(editor.joystick().isModified() && editor.macro().isModified());
    entry(u"mnuGameArray_1"_s)->trigger();
    EXPECT_FALSE(editor.joystick().isModified());
    EXPECT_FALSE(editor.macro().isModified());
    EXPECT_TRUE(folder.read(u"a.tmj"_s).startsWith("Rem j\r\n"));
    EXPECT_TRUE(folder.read(u"a.tmm"_s).startsWith("Rem m\r\n"));
    EXPECT_EQ(editor.selected().kind(), DocumentKind::Joystick);
}

TEST_F(GamesMenuTest, ATextThatIsNotOnTheDiskStaysGuarded)
{
    start(twoGames);
    app->editor().view().control(DocumentKind::Joystick).insertPlainText(u"Rem j\n"_s);
    dialogs.answerFile({});
    entry(u"mnuGameArray_1"_s)->trigger();
    EXPECT_TRUE(app->editor().joystick().isModified());
    EXPECT_EQ(launcher.launches.size(), 1);
}

TEST_F(GamesMenuTest, AddAsksForTheGameWithTheCurrentFileSuggested)
{
    const QString file = folder.write(u"a.tmj"_s, "BTN S2 a\r\n");
    start(twoGames);
    app->editor().opening().OpenFavouriteFile(file);
    QTimer::singleShot(0, &app->mum(), [] {
        QWidget *window = QApplication::activeModalWidget();
        window->findChild<QLineEdit *>(u"GameName"_s)->setText(u"Mig"_s);
        window->findChild<QLineEdit *>(u"GamePath"_s)->setText(u"mig.exe -w"_s);
        window->findChild<QAbstractButton *>(u"cmdOK"_s)->click();
    });
    entry(u"mnuGamesAdd"_s)->trigger();
    EXPECT_EQ(entry(u"mnuGameArray_1"_s)->text(), u"Mig");
    EXPECT_EQ(stored(u"GameArrayNum"_s), u"3");
    EXPECT_EQ(stored(u"GamePath1"_s), u"mig.exe -w");
    EXPECT_EQ(stored(u"GameJF1"_s), u"a.tmj");
    EXPECT_EQ(stored(u"GameJFmode1"_s), u"0");
}

TEST_F(GamesMenuTest, SortSortsTheMenu)
{
    start(twoGames);
    entry(u"mnuGamesSort"_s)->trigger();
    EXPECT_EQ(entry(u"mnuGameArray_1"_s)->text(), u"Eaw");
}
