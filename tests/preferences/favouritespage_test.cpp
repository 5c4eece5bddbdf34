// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/favouritespage.h"

#include "editor/editor_settings.h"
#include "lists/favourites_menu.h"
#include "tests/preferences/lists.h"

#include <QLabel>

using namespace zeph;

namespace {

struct FavouritesPageTest : test::ListsPageTest {
    std::unique_ptr<Editor> editor;
    FavouritesMenu *favourites = nullptr;

    void open(const QByteArray &section, bool restores = false)
    {
        writeStore("[Favourites]\r\n" + section);
        settings.of<EditorSettings>().RestoreStatus = restores;
        editor = std::make_unique<Editor>(context());
        favourites = new FavouritesMenu(context(), *editor);
        page = std::make_unique<FavouritesPage>(context(), *favourites);
    }
    void openThree(bool restores = false)
    {
        open("FavArrayNum=3\r\nFavLoadOnStart=1\r\nFavNameToLoad=Beta\r\n"
             "FavName1=Gamma\r\nFavJFPath1=C:\\g.tmj\r\nFavMFPath1=C:\\g.tmm\r\n"
             "FavName2=Beta\r\nFavJFPath2=C:\\b.tmj\r\nFavMFPath2=None\r\n"
             "FavName3=Alpha\r\nFavJFPath3=None\r\nFavMFPath3=C:\\a.tmm\r\n",
             restores);
    }
    QListWidget &list() { return *find<QListWidget>(u"ListFavourites"_s); }
    Favourites collected()
    {
        page->collect();
        return favourites->favourites();
    }
    void TearDown() override
    {
        page.reset();
        editor.reset();
    }
};

} // namespace

TEST_F(FavouritesPageTest, ShowsTheFavouritesAndTheFieldsOfTheFirst)
{
    openThree();
    EXPECT_EQ(names(list()), QStringList({ u"Gamma"_s, u"Beta"_s, u"Alpha"_s }));
    EXPECT_EQ(text(u"FavName"_s), u"Gamma");
    EXPECT_EQ(text(u"FavJFPath"_s), u"C:\\g.tmj");
    EXPECT_EQ(text(u"FavMFPath"_s), u"C:\\g.tmm");
    EXPECT_TRUE(isOn(u"FavLoadOnStart"_s));
    EXPECT_EQ(find<QLabel>(u"FavNameToLoad"_s)->text(), u"Beta");
}

TEST_F(FavouritesPageTest, TheFieldsFollowTheSelection)
{
    openThree();
    list().setCurrentRow(2);
    EXPECT_EQ(text(u"FavName"_s), u"Alpha");
    EXPECT_EQ(text(u"FavJFPath"_s), u"None");
    EXPECT_EQ(text(u"FavMFPath"_s), u"C:\\a.tmm");
    EXPECT_EQ(collected().list.size(), 3);
    EXPECT_EQ(collected().list[0].name, u"Gamma");
}

TEST_F(FavouritesPageTest, WithAnEmptyListTheFieldsAreGrey)
{
    open("FavArrayNum=0\r\n");
    for (const auto *name :
         { u"FavName", u"FavJFPath", u"FavMFPath", u"cmdBrowseFavJF", u"cmdBrowseFavMF",
           u"FavLoadOnStart", u"cmdMakeDefault", u"cmdFavouritesRemove", u"cmdFavouritesSort" }) {
        EXPECT_FALSE(find<QWidget>(QString::fromUtf16(name))->isEnabled())
            << QString::fromUtf16(name).toStdString();
    }
    EXPECT_TRUE(find<QWidget>(u"cmdFavouritesAdd"_s)->isEnabled());
    EXPECT_EQ(collected(), Favourites());
}

TEST_F(FavouritesPageTest, TheListsCaptionFollowsTheNameThatIsTyped)
{
    openThree();
    type(u"FavName"_s, u"Gam"_s);
    EXPECT_EQ(list().item(0)->text(), u"Gam");
    type(u"FavName"_s, u"Gamble"_s);
    EXPECT_EQ(list().item(0)->text(), u"Gamble");
    type(u"FavMFPath"_s, u"C:\\x.tmm"_s);
    const Favourite expected = { u"Gamble"_s, u"C:\\g.tmj"_s, u"C:\\x.tmm"_s };
    EXPECT_EQ(collected().list[0], expected);
}

TEST_F(FavouritesPageTest, TypingThroughAnothersNameKeepsBothAndEndsWithWhatIsTyped)
{
    openThree();
    type(u"FavName"_s, u"Beta"_s);
    EXPECT_EQ(list().item(0)->text(), u"Beta (2)");
    type(u"FavName"_s, u"Beta 5"_s);
    EXPECT_EQ(names(list()), QStringList({ u"Beta 5"_s, u"Beta"_s, u"Alpha"_s }));
    EXPECT_EQ(collected().nameToLoad, u"Beta");
}

TEST_F(FavouritesPageTest, ALeftFieldShowsTheNameThatIsKept)
{
    openThree();
    type(u"FavName"_s, u"Beta"_s);
    leave(u"FavName"_s);
    EXPECT_EQ(text(u"FavName"_s), u"Beta (2)");
    type(u"FavName"_s, u" "_s);
    EXPECT_EQ(list().item(0)->text(), u"Beta (2)");
    leave(u"FavName"_s);
    EXPECT_EQ(text(u"FavName"_s), u"Beta (2)");
}

TEST_F(FavouritesPageTest, ALetterThatTheStoreLacksIsToldAndNotTaken)
{
    openThree();
    auto *hint = find<QLabel>(u"LabelFavUnstorable"_s);
    EXPECT_TRUE(hint->isHidden());
    type(u"FavJFPath"_s, u"C:\\\u0416.tmj"_s);
    EXPECT_FALSE(hint->isHidden());
    EXPECT_EQ(collected().list[0].joystickPath, u"C:\\g.tmj");
    leave(u"FavJFPath"_s);
    EXPECT_EQ(text(u"FavJFPath"_s), u"C:\\g.tmj");
    EXPECT_TRUE(hint->isHidden());
}

TEST_F(FavouritesPageTest, AddMakesAnEntryFromTheFieldsAndWaitsForItsName)
{
    openThree();
    page->show();
    press(u"cmdFavouritesAdd"_s);
    EXPECT_EQ(names(list()), QStringList({ u"Gamma (2)"_s, u"Gamma"_s, u"Beta"_s, u"Alpha"_s }));
    EXPECT_EQ(find<QLineEdit>(u"FavName"_s)->selectedText(), u"Gamma (2)");
    EXPECT_EQ(page->focusWidget(), find<QLineEdit>(u"FavName"_s));
    const Favourite expected = { u"Gamma (2)"_s, u"C:\\g.tmj"_s, u"C:\\g.tmm"_s };
    EXPECT_EQ(collected().list[0], expected);
}

TEST_F(FavouritesPageTest, AddIntoAnEmptyListWakesTheFields)
{
    open({});
    press(u"cmdFavouritesAdd"_s);
    EXPECT_TRUE(find<QWidget>(u"FavName"_s)->isEnabled());
    EXPECT_EQ(text(u"FavJFPath"_s), u"None");
    type(u"FavName"_s, u"Mine"_s);
    const QList<Favourite> expected = { { u"Mine"_s, u"None"_s, u"None"_s } };
    EXPECT_EQ(collected().list, expected);
}

TEST_F(FavouritesPageTest, AFullListHasNoRoom)
{
    open("FavArrayNum=49\r\n");
    press(u"cmdFavouritesAdd"_s);
    EXPECT_EQ(list().count(), 50);
    EXPECT_FALSE(find<QWidget>(u"cmdFavouritesAdd"_s)->isEnabled());
    press(u"cmdFavouritesRemove"_s);
    EXPECT_TRUE(find<QWidget>(u"cmdFavouritesAdd"_s)->isEnabled());
}

TEST_F(FavouritesPageTest, RemovingTheAutoloadFavouriteClearsBoth)
{
    openThree();
    list().setCurrentRow(1);
    press(u"cmdFavouritesRemove"_s);
    EXPECT_EQ(names(list()), QStringList({ u"Gamma"_s, u"Alpha"_s }));
    EXPECT_EQ(text(u"FavName"_s), u"Alpha");
    EXPECT_FALSE(isOn(u"FavLoadOnStart"_s));
    EXPECT_EQ(find<QLabel>(u"FavNameToLoad"_s)->text(), u"none yet");
    EXPECT_FALSE(collected().loadOnStart);
    EXPECT_EQ(collected().nameToLoad, QString());
}

TEST_F(FavouritesPageTest, TheDeleteKeyRemovesInTheListAndNotInAField)
{
    openThree();
    page->show();
    QTest::keyClick(find<QLineEdit>(u"FavName"_s), Qt::Key_Delete);
    EXPECT_EQ(list().count(), 3);
    ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(names(list()), QStringList({ u"Beta"_s, u"Alpha"_s }));
}

TEST_F(FavouritesPageTest, SortKeepsTheSelectedOneSelected)
{
    openThree();
    press(u"cmdFavouritesSort"_s);
    EXPECT_EQ(names(list()), QStringList({ u"Alpha"_s, u"Beta"_s, u"Gamma"_s }));
    EXPECT_EQ(list().currentRow(), 2);
    EXPECT_EQ(text(u"FavName"_s), u"Gamma");
    EXPECT_EQ(collected().list[0].macroPath, u"C:\\a.tmm");
}

TEST_F(FavouritesPageTest, TheSelectedOneBecomesTheDefaultAndStandsOut)
{
    openThree();
    EXPECT_TRUE(list().item(1)->font().bold());
    press(u"cmdMakeDefault"_s);
    EXPECT_EQ(find<QLabel>(u"FavNameToLoad"_s)->text(), u"Gamma");
    EXPECT_TRUE(list().item(0)->font().bold());
    EXPECT_FALSE(list().item(1)->font().bold());
    EXPECT_EQ(collected().nameToLoad, u"Gamma");
}

TEST_F(FavouritesPageTest, ARenamedDefaultStaysTheDefault)
{
    openThree();
    list().setCurrentRow(1);
    type(u"FavName"_s, u"Alpha"_s);
    type(u"FavName"_s, u"Omega"_s);
    EXPECT_EQ(find<QLabel>(u"FavNameToLoad"_s)->text(), u"Omega");
    EXPECT_EQ(collected().nameToLoad, u"Omega");
    EXPECT_TRUE(collected().loadOnStart);
}

TEST_F(FavouritesPageTest, TheAutoloadTickIsCollected)
{
    openThree();
    press(u"FavLoadOnStart"_s);
    type(u"FavName"_s, u"Other"_s);
    EXPECT_FALSE(collected().loadOnStart);
    EXPECT_EQ(collected().nameToLoad, u"Beta");
}

TEST_F(FavouritesPageTest, TheAutoloadTicksCaptionTellsWhenItIsIgnored)
{
    openThree(true);
    const auto *tick = find<QCheckBox>(u"FavLoadOnStart"_s);
    EXPECT_EQ(tick->text().remove(u'&'), u"Autoload information is ignored");
    static_cast<FavouritesPage &>(*page).setRestores(false);
    EXPECT_EQ(tick->text().remove(u'&'), u"AutoLoad when application starts");
}

TEST_F(FavouritesPageTest, BrowseStartsWhereTheFileIsAndElseInTheFilesFolder)
{
    const QString there = folder.write(u"There/x.tmj"_s, "BTN S2 a");
    openThree();
    type(u"FavJFPath"_s, u"C:\\gone\\g.tmj"_s);
    dialogs.answerFile(there);
    press(u"cmdBrowseFavJF"_s);
    EXPECT_EQ(text(u"FavJFPath"_s), there);
    dialogs.answerFile({});
    press(u"cmdBrowseFavJF"_s);
    dialogs.answerFile(u"/m.tmm"_s);
    press(u"cmdBrowseFavMF"_s);
    ASSERT_EQ(dialogs.files().size(), 3);
    EXPECT_EQ(dialogs.files()[0].folder, paths.filesFolder());
    EXPECT_EQ(dialogs.files()[0].filter, u"Joystick file (*.tmj)|*.tmj|All files (*.*)|*.*");
    EXPECT_EQ(dialogs.files()[1].folder, folder.file(u"There/"_s));
    EXPECT_EQ(dialogs.files()[2].filter, u"Macro file (*.tmm)|*.tmm|All files (*.*)|*.*");
    const Favourite expected = { u"Gamma"_s, there, u"/m.tmm"_s };
    EXPECT_EQ(collected().list[0], expected);
}

TEST_F(FavouritesPageTest, CollectedOnesStandOnTheMenuAndSavingIsASecondStep)
{
    openThree();
    press(u"cmdFavouritesRemove"_s);
    page->collect();
    EXPECT_EQ(entryOf(*editor, u"mnuFavArray_1"_s)->text(), u"Beta");
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Favourites", u"FavName1"), u"Gamma");
    favourites->save();
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"Favourites", u"FavName1"), u"Beta");
}

TEST_F(FavouritesPageTest, MnemonicsAreUniqueAndLeaveTheTabsTheirs)
{
    openThree();
    checkMnemonics();
}
