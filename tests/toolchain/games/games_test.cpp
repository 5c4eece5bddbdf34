// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/games.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

using namespace zeph;

namespace {

struct GamesTest : testing::Test {
    test::TempFolder folder;
    QString ini = folder.file(u"Zeph.ini"_s);

    static Game named(const QString &name)
    {
        return { name, u"C:\\"_s + name + u".exe -w"_s, u"C:\\games"_s, u"C:\\a.tmj"_s, 0 };
    }
    static QStringList names(const Games &games)
    {
        QStringList result;
        for (const Game &game : games.list()) {
            result.append(game.GameName);
        }
        return result;
    }
};

} // namespace

TEST_F(GamesTest, AreReadInTheirOrder)
{
    folder.write(u"Zeph.ini"_s,
                 "[Games]\r\nGameArrayNum=2\r\nGameName1=Falcon\r\nGamePath1=C:\\f.exe -g2\r\n"
                 "GameDIRPath1=C:\\f\r\nGameJF1=C:\\f.tmj\r\nGameJFmode1=2\r\nGameName2=Eaw\r\n");
    const Games games(ini);
    ASSERT_EQ(games.list().size(), 2);
    EXPECT_EQ(games.list()[0],
              (Game{ u"Falcon"_s, u"C:\\f.exe -g2"_s, u"C:\\f"_s, u"C:\\f.tmj"_s, 2 }));
    EXPECT_EQ(games.list()[1], (Game{ u"Eaw"_s, {}, {}, {}, 0 }));
}

TEST_F(GamesTest, AModeThatDoesNotFitIsNoneOfTheModes)
{
    folder.write(u"Zeph.ini"_s,
                 "[Games]\nGameArrayNum=2\nGameName1=a\nGameJFmode1=65537\nGameName2=b\n"
                 "GameJFmode2=-65535\n");
    const Games games(ini);
    EXPECT_EQ(games.list()[0].GameJFmode, 32767);
    EXPECT_EQ(games.list()[1].GameJFmode, -32768);
}

TEST_F(GamesTest, ANewOneGoesOnTopAndAllIsStored)
{
    Games games(ini);
    const QSignalSpy changed(&games, &Games::changed);
    games.update(named(u"A"_s));
    games.update(named(u"B"_s));
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(names(games), QStringList({ u"B"_s, u"A"_s }));
    const ProfileFile store(ini);
    EXPECT_EQ(store.text(u"Games", u"GameArrayNum"), u"2");
    EXPECT_EQ(store.text(u"Games", u"GameName1"), u"B");
    EXPECT_EQ(store.text(u"Games", u"GamePath2"), u"C:\\A.exe -w");
    EXPECT_EQ(store.text(u"Games", u"GameDIRPath2"), u"C:\\games");
    EXPECT_EQ(store.text(u"Games", u"GameJF2"), u"C:\\a.tmj");
    EXPECT_EQ(store.text(u"Games", u"GameJFmode2"), u"0");
    EXPECT_EQ(Games(ini).list(), games.list());
}

TEST_F(GamesTest, OneOfTheSameNameIsReplacedAndMovesToTheTop)
{
    Games games(ini);
    for (const auto *name : { u"C", u"B", u"A" }) {
        games.update(named(QString::fromUtf16(name)));
    }
    Game again = named(u"C"_s);
    again.GameJFmode = 1;
    games.update(again);
    EXPECT_EQ(names(games), QStringList({ u"C"_s, u"A"_s, u"B"_s }));
    EXPECT_EQ(games.list()[0], again);
}

TEST_F(GamesTest, A31stPushesTheLastOneOut)
{
    Games games(ini);
    for (int i = 1; i <= 31; ++i) {
        games.update(named(QString::number(i)));
    }
    ASSERT_EQ(games.list().size(), 30);
    EXPECT_EQ(games.list().first().GameName, u"31");
    EXPECT_EQ(games.list().last().GameName, u"2");
    EXPECT_EQ(Games(ini).list(), games.list());
}

TEST_F(GamesTest, AreSortedByNameInAnyCaseAndStored)
{
    Games games(ini);
    for (const auto *name : { u"b", u"C", u"A" }) {
        games.update(named(QString::fromUtf16(name)));
    }
    games.SortGamesAlphabetically();
    EXPECT_EQ(names(games), QStringList({ u"A"_s, u"b"_s, u"C"_s }));
    EXPECT_EQ(Games(ini).list(), games.list());
}

TEST_F(GamesTest, ReplacedOnesAreStoredAtOnceAndTheKeysOfOthersGo)
{
    Games games(ini);
    for (const auto *name : { u"C", u"B", u"A" }) {
        games.update(named(QString::fromUtf16(name)));
    }
    const QSignalSpy changed(&games, &Games::changed);
    games.replace({ named(u"C"_s) });
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(names(games), QStringList{ u"C"_s });
    EXPECT_EQ(Games(ini).list(), games.list());
    const ProfileFile store(ini);
    EXPECT_EQ(store.text(u"Games", u"GameName2", u"(absent)"_s), u"(absent)");
    EXPECT_EQ(store.text(u"Games", u"GameJFmode3", u"(absent)"_s), u"(absent)");
}

TEST_F(GamesTest, OfMoreThan30ReplacedOnesTheFirstStay)
{
    QList<Game> many;
    for (int i = 1; i <= 31; ++i) {
        many.append(named(QString::number(i)));
    }
    Games games(ini);
    games.replace(many);
    EXPECT_EQ(games.list(), many.first(30));
}
