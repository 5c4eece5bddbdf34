// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/favourites.h"

#include "tests/support/fixture.h"

using namespace zeph;

namespace {

struct FavouritesTest : test::WorldTest {
    QStringList opened;
    QString refused = u"none"_s;

    ProfileFile store(const QByteArray &bytes)
    {
        return ProfileFile(folder.write(u"Zeph.ini"_s, "[Favourites]\n" + bytes));
    }
    bool open(const Favourite &favourite)
    {
        return openFavourite(favourite, dialogs, [this](const QString &path) {
            opened += path;
            return !path.endsWith(refused);
        });
    }
    static bool autoload(const ProfileFile &store)
    {
        return autoloadFavourite(readFavourites(store)).has_value();
    }
};

} // namespace

TEST_F(FavouritesTest, AreReadInTheirOrder)
{
    const auto list = readFavourites(store("FavArrayNum=2\nFavName1=A\nFavJFPath1=a.tmj\n"
                                           "FavMFPath1=a.tmm\nFavName2=B\n"))
                          .list;
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].joystickPath, folder.file(u"a.tmj"_s));
    EXPECT_EQ(list[1].name, u"B");
    EXPECT_EQ(list[1].macroPath, u"None");
}

TEST_F(FavouritesTest, OneIsOpenedAtStartOnlyWhenWantedAndThere)
{
    const QByteArray entry = "FavArrayNum=1\nFavName1=A\n";
    EXPECT_TRUE(autoload(store(entry + "FavLoadOnStart=1\nFavNameToLoad=A\n")));
    EXPECT_FALSE(autoload(store(entry + "FavLoadOnStart=0\nFavNameToLoad=A\n")));
    EXPECT_FALSE(autoload(store(entry + "FavLoadOnStart=1\nFavNameToLoad=B\n")));
    EXPECT_FALSE(autoload(store(entry + "FavLoadOnStart=1\n")));
}

TEST_F(FavouritesTest, NoneAsMacroPathOpensTheJoystickFileAloneAndShowsNoMessage)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    EXPECT_FALSE(open({ u"A"_s, joystick, u"None"_s }));
    EXPECT_EQ(opened, QStringList{ joystick });
}

TEST_F(FavouritesTest, TwoTimesNoneOpensNothing)
{
    EXPECT_FALSE(open({ u"A"_s, u"None"_s, u"None"_s }));
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(FavouritesTest, MissingFilesAreToldByNameAndTheOtherOneOpens)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    const QString gone = folder.file(u"gone.tmm"_s);
    dialogs.answer(u"Macro file not found buddy"_s, BoxButton::Ok);
    EXPECT_FALSE(open({ u"Dogfight"_s, joystick, gone }));
    EXPECT_EQ(opened, QStringList{ joystick });
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.endsWith(
        u". Currently your settings say that it should be located here: "_s + gone
        + u". You need to open up the Preferences Window at some time and edit the file locations "
          "for Dogfight"_s));
}

TEST_F(FavouritesTest, BothFilesOpenTheMacroFileFirst)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    const QString macro = folder.write(u"a.tmm"_s, "Fire = a");
    EXPECT_TRUE(open({ u"A"_s, joystick, macro }));
    EXPECT_EQ(opened, QStringList({ macro, joystick }));
}

TEST_F(FavouritesTest, AFileThatTheUserKeepsOutIsNotOpenedAndTheOtherOneIs)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    const QString macro = folder.write(u"a.tmm"_s, "Fire = a");
    refused = u"a.tmm"_s;
    EXPECT_FALSE(open({ u"A"_s, joystick, macro }));
    EXPECT_EQ(opened, QStringList({ macro, joystick }));
}

TEST_F(FavouritesTest, OneOfTheSameNameIsReplacedAndMovesToTheFront)
{
    Favourites favourites{ { { u"A"_s, u"a"_s, u"a"_s }, { u"B"_s, u"b"_s, u"b"_s } }, false, {} };
    updateFavourites(favourites, { u"B"_s, u"new"_s, u"None"_s });
    const QList<Favourite> expected = { { u"B"_s, u"new"_s, u"None"_s },
                                        { u"A"_s, u"a"_s, u"a"_s } };
    EXPECT_EQ(favourites.list, expected);
}

TEST_F(FavouritesTest, A51stPushesTheLastOneOut)
{
    Favourites favourites;
    for (int i = 1; i <= 51; ++i) {
        updateFavourites(favourites, { QString::number(i), u"None"_s, u"None"_s });
    }
    ASSERT_EQ(favourites.list.size(), 50);
    EXPECT_EQ(favourites.list.first().name, u"51");
    EXPECT_EQ(favourites.list.last().name, u"2");
}

TEST_F(FavouritesTest, AreSortedByNameInAnyCase)
{
    Favourites favourites;
    for (const auto *name : { u"b", u"C", u"A" }) {
        updateFavourites(favourites, { QString::fromUtf16(name), {}, {} });
    }
    SortFavourites(favourites);
    EXPECT_EQ(favourites.list[0].name, u"A");
    EXPECT_EQ(favourites.list[1].name, u"b");
}

TEST_F(FavouritesTest, WhatIsWrittenComesBackWithTheChoiceForTheStart)
{
    const ProfileFile file = store("FavLoadOnStart=1\nFavNameToLoad=B\n");
    Favourites favourites = readFavourites(file);
    updateFavourites(favourites, { u"B"_s, u"C:\\b.tmj"_s, u"None"_s });
    ASSERT_TRUE(writeFavourites(file, favourites));
    EXPECT_EQ(readFavourites(file).list, favourites.list);
    EXPECT_EQ(file.text(u"Favourites", u"FavArrayNum"), u"1");
    EXPECT_EQ(file.text(u"Favourites", u"FavMFPath1"), u"None");
    EXPECT_TRUE(autoload(file));
}

TEST_F(FavouritesTest, TheKeysOfRemovedOnesLeaveTheStore)
{
    const ProfileFile file = store("FavArrayNum=2\nFavName1=A\nFavName2=B\nFavJFPath2=b.tmj\n");
    Favourites favourites = readFavourites(file);
    favourites.list.removeFirst();
    ASSERT_TRUE(writeFavourites(file, favourites));
    EXPECT_EQ(readFavourites(file), favourites);
    EXPECT_EQ(file.text(u"Favourites", u"FavName2", u"(absent)"_s), u"(absent)");
    EXPECT_EQ(file.text(u"Favourites", u"FavJFPath2", u"(absent)"_s), u"(absent)");
}

TEST_F(FavouritesTest, NoPathIsNoneHoweverItIsWritten)
{
    for (const auto *path : { u"", u"  ", u"None", u"none", u" NONE " }) {
        EXPECT_EQ(pathOrNone(QString::fromUtf16(path)), u"None");
    }
    EXPECT_EQ(pathOrNone(u" C:\\None.tmj "_s), u"C:\\None.tmj");
}
