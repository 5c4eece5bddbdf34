// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/gamespage.h"

#include "tests/preferences/lists.h"
#include "toolchain/games/games.h"

#include <QLabel>

using namespace zeph;

namespace {

struct GamesPageTest : test::ListsPageTest {
    std::unique_ptr<Games> games;

    void open(const QByteArray &section)
    {
        writeStore("[Games]\r\n" + section);
        games = std::make_unique<Games>(paths.iniPath);
        page = std::make_unique<GamesPage>(context(), *games);
    }
    void openThree()
    {
        open("GameArrayNum=3\r\nGameName1=Mig\r\nGamePath1=C:\\mig.exe -w\r\n"
             "GameDIRPath1=C:\\mig\r\nGameJF1=C:\\mig.tmj\r\nGameJFmode1=9\r\n"
             "GameName2=Falcon\r\nGamePath2=C:\\f.exe\r\nGameJFmode2=1\r\n"
             "GameName3=Eaw\r\nGamePath3=www.eaw.org\r\nGameJFmode3=2\r\n");
    }
    QListWidget &list() { return *find<QListWidget>(u"ListGames"_s); }
    QList<Game> collected()
    {
        page->collect();
        return games->list();
    }
    void TearDown() override { page.reset(); }
};

} // namespace

TEST_F(GamesPageTest, ShowsTheGamesAndTheFieldsOfTheFirst)
{
    openThree();
    EXPECT_EQ(names(list()), QStringList({ u"Mig"_s, u"Falcon"_s, u"Eaw"_s }));
    EXPECT_EQ(text(u"GameName"_s), u"Mig");
    EXPECT_EQ(text(u"GamePath"_s), u"C:\\mig.exe -w");
    EXPECT_EQ(text(u"GameDIRPath"_s), u"C:\\mig");
    EXPECT_EQ(text(u"GameJF"_s), u"C:\\mig.tmj");
}

TEST_F(GamesPageTest, TheTicksFollowTheModeOfTheSelectedGame)
{
    openThree();
    EXPECT_FALSE(isOn(u"CheckWindowsMode"_s) || isOn(u"CheckDefaultFile"_s));
    list().setCurrentRow(1);
    EXPECT_TRUE(isOn(u"CheckWindowsMode"_s));
    EXPECT_FALSE(isOn(u"CheckDefaultFile"_s));
    EXPECT_FALSE(find<QWidget>(u"GameJF"_s)->isEnabled());
    list().setCurrentRow(2);
    EXPECT_FALSE(isOn(u"CheckWindowsMode"_s));
    EXPECT_TRUE(isOn(u"CheckDefaultFile"_s));
    list().setCurrentRow(0);
    EXPECT_TRUE(find<QWidget>(u"GameJF"_s)->isEnabled());
}

TEST_F(GamesPageTest, AModeThatNobodyKnowsStaysUntilATickIsTouched)
{
    openThree();
    EXPECT_FALSE(find<QLabel>(u"LabelGameMode"_s)->isHidden());
    type(u"GameName"_s, u"Mig 29"_s);
    list().setCurrentRow(1);
    EXPECT_TRUE(find<QLabel>(u"LabelGameMode"_s)->isHidden());
    list().setCurrentRow(0);
    EXPECT_EQ(collected()[0].GameJFmode, 9);
    press(u"CheckDefaultFile"_s);
    EXPECT_EQ(collected()[0].GameJFmode, 2);
    press(u"CheckWindowsMode"_s);
    EXPECT_FALSE(isOn(u"CheckDefaultFile"_s));
    EXPECT_EQ(collected()[0].GameJFmode, 1);
    press(u"CheckWindowsMode"_s);
    EXPECT_EQ(collected()[0].GameJFmode, 0);
}

TEST_F(GamesPageTest, WithAnEmptyListTheFieldsAreGrey)
{
    open("GameArrayNum=0\r\n");
    for (const auto *name : { u"GameName", u"GamePath", u"GameDIRPath", u"GameJF", u"cmdBrowsePath",
                              u"cmdBrowseDIR", u"cmdBrowseJF", u"CheckWindowsMode",
                              u"CheckDefaultFile", u"cmdGamesRemove", u"cmdGamesSort" }) {
        EXPECT_FALSE(find<QWidget>(QString::fromUtf16(name))->isEnabled())
            << QString::fromUtf16(name).toStdString();
    }
    EXPECT_TRUE(find<QWidget>(u"cmdGamesAdd"_s)->isEnabled());
    EXPECT_EQ(collected(), QList<Game>());
}

TEST_F(GamesPageTest, TheListsCaptionFollowsTheNameAndAllFieldsAreCollected)
{
    openThree();
    list().setCurrentRow(1);
    type(u"GameName"_s, u"Falcon 4"_s);
    EXPECT_EQ(list().item(1)->text(), u"Falcon 4");
    type(u"GamePath"_s, u"C:\\f4.exe -g2"_s);
    type(u"GameDIRPath"_s, u"C:\\f4"_s);
    type(u"GameJF"_s, u"C:\\f4.tmj"_s);
    const Game expected = { u"Falcon 4"_s, u"C:\\f4.exe -g2"_s, u"C:\\f4"_s, u"C:\\f4.tmj"_s, 1 };
    EXPECT_EQ(collected()[1], expected);
    EXPECT_EQ(Games(paths.iniPath).list(), games->list());
}

TEST_F(GamesPageTest, AnothersNameGetsANumberWhichTheLeftFieldShows)
{
    openThree();
    type(u"GameName"_s, u"Eaw"_s);
    EXPECT_EQ(list().item(0)->text(), u"Eaw (2)");
    leave(u"GameName"_s);
    EXPECT_EQ(text(u"GameName"_s), u"Eaw (2)");
    type(u"GameName"_s, QString());
    leave(u"GameName"_s);
    EXPECT_EQ(text(u"GameName"_s), u"Eaw (2)");
    EXPECT_EQ(collected()[0].GameName, u"Eaw (2)");
}

TEST_F(GamesPageTest, ALetterThatTheStoreLacksIsToldAndNotTaken)
{
    openThree();
    type(u"GamePath"_s, u"C:\\\u0416.exe"_s);
    EXPECT_FALSE(find<QLabel>(u"LabelGameUnstorable"_s)->isHidden());
    EXPECT_EQ(collected()[0].GamePath, u"C:\\mig.exe -w");
}

TEST_F(GamesPageTest, AddMakesAGameThatBrowsingFillsWithItsFolder)
{
    openThree();
    press(u"cmdGamesAdd"_s);
    EXPECT_EQ(names(list()).first(), u"New game");
    EXPECT_EQ(find<QLineEdit>(u"GameName"_s)->selectedText(), u"New game");
    EXPECT_EQ(text(u"GameJF"_s), paths.filesFolder() + u"TM Default for games.tmj"_s);
    EXPECT_TRUE(isOn(u"CheckWindowsMode"_s));
    dialogs.answerFile(u"/games/x/x.exe"_s);
    press(u"cmdBrowsePath"_s);
    EXPECT_EQ(collected()[0].GamePath, u"/games/x/x.exe");
    EXPECT_EQ(collected()[0].GameDIRPath, u"/games/x");
    EXPECT_EQ(collected().size(), 4);
}

TEST_F(GamesPageTest, FolderAndJoystickFileAreBrowsedFor)
{
    openThree();
    dialogs.answerFolder(u"/games/mig"_s);
    press(u"cmdBrowseDIR"_s);
    EXPECT_EQ(dialogs.folderTitles(), QStringList{ u"Select your game's working directory"_s });
    dialogs.answerFile(u"/x.tmj"_s);
    press(u"cmdBrowseJF"_s);
    EXPECT_EQ(collected()[0].GameDIRPath, u"/games/mig");
    EXPECT_EQ(collected()[0].GameJF, u"/x.tmj");
    EXPECT_EQ(collected()[0].GameJFmode, 9);
}

TEST_F(GamesPageTest, TheDeleteKeyRemovesAndTheStoreForgetsTheGame)
{
    openThree();
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    list().setCurrentRow(2);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(names(list()), QStringList({ u"Mig"_s, u"Falcon"_s }));
    EXPECT_EQ(text(u"GameName"_s), u"Falcon");
    page->collect();
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.integer(u"Games", u"GameArrayNum", 0), 2);
    EXPECT_EQ(store.text(u"Games", u"GameName3", u"(absent)"_s), u"(absent)");
}

TEST_F(GamesPageTest, RemovingTheLastOneGreysTheFields)
{
    open("GameArrayNum=1\r\nGameName1=Mig\r\nGamePath1=mig.exe\r\n");
    press(u"cmdGamesRemove"_s);
    EXPECT_FALSE(find<QWidget>(u"GameName"_s)->isEnabled());
    EXPECT_EQ(text(u"GamePath"_s), QString());
    EXPECT_EQ(collected(), QList<Game>());
}

TEST_F(GamesPageTest, SortKeepsTheSelectedOneSelected)
{
    openThree();
    press(u"cmdGamesSort"_s);
    EXPECT_EQ(names(list()), QStringList({ u"Eaw"_s, u"Falcon"_s, u"Mig"_s }));
    EXPECT_EQ(list().currentRow(), 2);
    EXPECT_EQ(text(u"GameName"_s), u"Mig");
}

TEST_F(GamesPageTest, A30thGameIsTheLastThatHasRoom)
{
    open("GameArrayNum=29\r\n");
    press(u"cmdGamesAdd"_s);
    EXPECT_EQ(list().count(), 30);
    EXPECT_FALSE(find<QWidget>(u"cmdGamesAdd"_s)->isEnabled());
}

TEST_F(GamesPageTest, MnemonicsAreUniqueAndLeaveTheTabsTheirs)
{
    openThree();
    checkMnemonics();
}
