// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/favourites.h"

#include "platform/fakes/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct Favourites : testing::Test {
    test::TempFolder folder;
    ScriptedDialogs dialogs;
    QStringList opened;

    ProfileFile store(const QByteArray &bytes)
    {
        return ProfileFile(folder.write(u"Zeph.ini"_s, "[Favourites]\n" + bytes));
    }
    bool open(const Favourite &favourite)
    {
        return openFavourite(favourite, dialogs, [this](const QString &path) { opened += path; });
    }
    void TearDown() override { EXPECT_EQ(dialogs.unexpected(), QStringList()); }
};

} // namespace

TEST_F(Favourites, AreReadInTheirOrder)
{
    const auto list = readFavourites(store("FavArrayNum=2\nFavName1=A\nFavJFPath1=a.tmj\n"
                                           "FavMFPath1=a.tmm\nFavName2=B\n"));
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].joystickPath, u"a.tmj");
    EXPECT_EQ(list[1].name, u"B");
    EXPECT_EQ(list[1].macroPath, u"None");
}

TEST_F(Favourites, OneIsOpenedAtStartOnlyWhenWantedAndThere)
{
    const QByteArray entry = "FavArrayNum=1\nFavName1=A\n";
    EXPECT_TRUE(autoloadFavourite(store(entry + "FavLoadOnStart=1\nFavNameToLoad=A\n")));
    EXPECT_FALSE(autoloadFavourite(store(entry + "FavLoadOnStart=0\nFavNameToLoad=A\n")));
    EXPECT_FALSE(autoloadFavourite(store(entry + "FavLoadOnStart=1\nFavNameToLoad=B\n")));
    EXPECT_FALSE(autoloadFavourite(store(entry + "FavLoadOnStart=1\n")));
}

TEST_F(Favourites, NoneAsMacroPathOpensTheJoystickFileAloneAndShowsNoMessage)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    EXPECT_FALSE(open({ u"A"_s, joystick, u"None"_s }));
    EXPECT_EQ(opened, QStringList{ joystick });
}

TEST_F(Favourites, TwoTimesNoneOpensNothing)
{
    EXPECT_FALSE(open({ u"A"_s, u"None"_s, u"None"_s }));
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(Favourites, MissingFilesAreToldByNameAndTheOtherOneOpens)
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

TEST_F(Favourites, BothFilesOpenTheMacroFileFirst)
{
    const QString joystick = folder.write(u"a.tmj"_s, "BTN S2 a");
    const QString macro = folder.write(u"a.tmm"_s, "Fire = a");
    EXPECT_TRUE(open({ u"A"_s, joystick, macro }));
    EXPECT_EQ(opened, QStringList({ macro, joystick }));
}
