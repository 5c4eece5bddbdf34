// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/list_rules.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct NameCase {
    const char *what;
    QString typed;
    QStringList names;
    qsizetype place;
    QString expected;
};

const NameCase nameCases[] = {
    { "a free name is taken", u"Eaw"_s, { u"A"_s, u"B"_s }, 0, u"Eaw"_s },
    { "blanks around it go", u"  Eaw "_s, { u"A"_s }, 0, u"Eaw"_s },
    { "another's name gets a number", u"B"_s, { u"A"_s, u"B"_s }, 0, u"B (2)"_s },
    { "the first free number", u"B"_s, { u"A"_s, u"B"_s, u"B (2)"_s }, 0, u"B (3)"_s },
    { "another case is another name", u"b"_s, { u"A"_s, u"B"_s }, 0, u"b"_s },
    { "no name is no name", u"  "_s, { u"A"_s, u"B"_s }, 1, u"B"_s },
    { "a letter that the store lacks", u"\u0416"_s, { u"A"_s, u"B"_s }, 1, u"B"_s },
    { "its own stays, twice there or not", u"A"_s, { u"A"_s, u"A"_s }, 1, u"A"_s },
};

Favourites three()
{
    return { { { u"A"_s, u"a.tmj"_s, u"a.tmm"_s },
               { u"B"_s, u"b.tmj"_s, u"b.tmm"_s },
               { u"C"_s, u"c.tmj"_s, u"None"_s } },
             true,
             u"B"_s };
}

Game game(const QString &name, qint16 mode = 0)
{
    return { name, u"g.exe"_s, u"C:\\g"_s, u"g.tmj"_s, mode };
}

} // namespace

TEST(ListRules, ANameIsNeverEmptyNeverTwiceAndAlwaysStorable)
{
    for (const NameCase &test : nameCases) {
        EXPECT_EQ(nameWhileTyping(test.typed, test.names, test.place), test.expected) << test.what;
    }
}

TEST(ListRules, ANumberAfterTheLongestNameKeepsItStorable)
{
    const QString longest(499, u'x');
    const QString name = uniqueName(longest, { longest });
    EXPECT_EQ(name, QString(495, u'x') + u" (2)"_s);
}

TEST(ListRules, AfterARemovalTheNextOneIsSelectedAndAfterTheLastTheLast)
{
    EXPECT_EQ(placeAfterRemoval(0, 2), 0);
    EXPECT_EQ(placeAfterRemoval(1, 2), 1);
    EXPECT_EQ(placeAfterRemoval(2, 2), 1);
    EXPECT_EQ(placeAfterRemoval(0, 0), -1);
}

TEST(FavouritesRules, ARenamedDefaultForAutoloadStaysIt)
{
    const Favourites edited = editedFavourites(three(), 1, { u"Bee"_s, u"b.tmj"_s, u"b.tmm"_s });
    EXPECT_EQ(edited.nameToLoad, u"Bee");
    EXPECT_TRUE(edited.loadOnStart);
    EXPECT_EQ(edited.list[1].name, u"Bee");
}

TEST(FavouritesRules, ADefaultRenamedToAnothersNameStaysItUnderItsNumber)
{
    const Favourites edited = editedFavourites(three(), 1, { u"A"_s, u"b.tmj"_s, u"b.tmm"_s });
    EXPECT_EQ(edited.list[1].name, u"A (2)");
    EXPECT_EQ(edited.nameToLoad, u"A (2)");
    EXPECT_EQ(defaultPlace(edited), 1);
}

TEST(FavouritesRules, RenamingAnotherLeavesTheDefaultAlone)
{
    EXPECT_EQ(editedFavourites(three(), 0, { u"Z"_s, {}, {} }).nameToLoad, u"B");
}

TEST(FavouritesRules, AnEmptiedPathIsNoFileAndAnUnstorableOneIsNotTaken)
{
    const Favourites edited = editedFavourites(three(), 0, { u"A"_s, {}, u"C:\\\u0416.tmm"_s });
    EXPECT_EQ(edited.list[0], (Favourite{ u"A"_s, u"None"_s, u"a.tmm"_s }));
}

TEST(FavouritesRules, ANewOneIsMadeFromTheFieldsAndGoesOnTop)
{
    const Favourites grown = withNewFavourite(three(), { u"A"_s, u"x.tmj"_s, {} });
    ASSERT_EQ(grown.list.size(), 4);
    EXPECT_EQ(grown.list[0], (Favourite{ u"A (2)"_s, u"x.tmj"_s, u"None"_s }));
    EXPECT_EQ(grown.nameToLoad, u"B");
    EXPECT_EQ(withNewFavourite({}, {}).list,
              (QList<Favourite>{ { u"New favourite"_s, u"None"_s, u"None"_s } }));
}

TEST(FavouritesRules, AFullListTakesNoNewOneSinceItsLastWouldFallOff)
{
    Favourites full;
    for (int i = 0; i < 50; ++i) {
        full = withNewFavourite(full, {});
    }
    ASSERT_EQ(full.list.size(), 50);
    EXPECT_EQ(withNewFavourite(full, { u"one more"_s, {}, {} }), full);
}

TEST(FavouritesRules, RemovingTheDefaultForAutoloadClearsBoth)
{
    const Favourites left = withoutFavourite(three(), 1);
    EXPECT_EQ(left.list.size(), 2);
    EXPECT_FALSE(left.loadOnStart);
    EXPECT_EQ(left.nameToLoad, QString());
}

TEST(FavouritesRules, RemovingAnotherLeavesAutoloadingAlone)
{
    const Favourites left = withoutFavourite(three(), 0);
    EXPECT_TRUE(left.loadOnStart);
    EXPECT_EQ(left.nameToLoad, u"B");
}

TEST(FavouritesRules, ADefaultThatIsNotOnTheListIsNobodysPlace)
{
    Favourites favourites = three();
    favourites.nameToLoad = u"gone"_s;
    EXPECT_EQ(defaultPlace(favourites), -1);
    favourites.nameToLoad.clear();
    favourites.list[0].name.clear();
    EXPECT_EQ(defaultPlace(favourites), -1);
    EXPECT_EQ(withDefault(favourites, 2).nameToLoad, u"C");
}

TEST(FavouritesRules, TheAutoloadTickTellsWhetherItIsIdle)
{
    EXPECT_EQ(autoloadCaption(true).remove(u'&'), u"Autoload information is ignored");
    EXPECT_EQ(autoloadCaption(false).remove(u'&'), u"AutoLoad when application starts");
}

TEST(GamesRules, AnEditedGameHasItsFieldsAndAModeThatNobodyKnows)
{
    const QList<Game> before = { game(u"A"_s, 7), game(u"B"_s) };
    const Game typed = { u"B"_s, u" g.exe -w "_s, {}, u"\u0416.tmj"_s, 7 };
    const QList<Game> edited = editedGames(before, 0, typed);
    EXPECT_EQ(edited[0], (Game{ u"B (2)"_s, u"g.exe -w"_s, {}, u"g.tmj"_s, 7 }));
    EXPECT_EQ(edited[1], before[1]);
}

TEST(GamesRules, ANewGameGoesOnTopInWindowsModeWithTheFileForAllGames)
{
    const QList<Game> grown = withNewGame({ game(u"New game"_s) }, u"/zeph/Files/"_s);
    ASSERT_EQ(grown.size(), 2);
    EXPECT_EQ(grown[0],
              (Game{ u"New game (2)"_s, {}, {}, u"/zeph/Files/TM Default for games.tmj"_s, 1 }));
}

TEST(GamesRules, AFullListTakesNoNewGameSinceItsLastWouldFallOff)
{
    QList<Game> full;
    for (int i = 0; i < 30; ++i) {
        full = withNewGame(full, {});
    }
    ASSERT_EQ(full.size(), 30);
    EXPECT_EQ(withNewGame(full, {}), full);
}
