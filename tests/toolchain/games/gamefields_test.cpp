// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/gamefields.h"

#include "platform/fakes/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>

using namespace zeph;

namespace {

struct EnterGame : testing::Test {
    Paths paths;
    ScriptedDialogs dialogs;
    std::unique_ptr<EnterGameName> window;

    EnterGame() { paths.appFolder = nativeSeparators(u"/zeph"_s); }
    void open(const QString &suggested = u"/zeph/Files/a.tmj"_s)
    {
        window = std::make_unique<EnterGameName>(paths, dialogs, suggested);
    }
    QLineEdit &field(const QString &name) const { return *window->findChild<QLineEdit *>(name); }
    QAbstractButton &button(const QString &name) const
    {
        return *window->findChild<QAbstractButton *>(name);
    }
    void TearDown() override { EXPECT_EQ(dialogs.unexpected(), QStringList()); }
};

} // namespace

TEST_F(EnterGame, WithASuggestedFileTheModeIsToDownloadIt)
{
    open();
    EXPECT_EQ(window->windowTitle(),
              u"Enter game details - click on the help buttons for information");
    EXPECT_EQ(window->game().GameJF, u"/zeph/Files/a.tmj");
    EXPECT_EQ(window->game().GameJFmode, 0);
}

TEST_F(EnterGame, WithoutASuggestionTheFieldHoldsTheFileForAllGamesAndTheModeIs1)
{
    open({});
    EXPECT_EQ(window->game().GameJF, nativeSeparators(u"/zeph/Files/TM Default for games.tmj"_s));
    EXPECT_EQ(window->game().GameJFmode, 1);
}

TEST_F(EnterGame, TheTwoTicksAreExclusiveAndBothCanBeOff)
{
    open();
    QAbstractButton &windows = button(u"CheckWindowsMode"_s);
    QAbstractButton &standard = button(u"CheckDefaultFile"_s);
    EXPECT_EQ(windows.text().remove(u'&'), u"Place stick into Windows (DirectX) mode");
    EXPECT_EQ(standard.text().remove(u'&'), u"Use TM Default.tmj joystick file with this game");
    windows.click();
    EXPECT_EQ(window->game().GameJFmode, 1);
    EXPECT_FALSE(field(u"GameJF"_s).isEnabled());
    standard.click();
    EXPECT_FALSE(windows.isChecked());
    EXPECT_EQ(window->game().GameJFmode, 2);
    windows.click();
    EXPECT_FALSE(standard.isChecked());
    windows.click();
    EXPECT_EQ(window->game().GameJFmode, 0);
    EXPECT_TRUE(field(u"GameJF"_s).isEnabled());
}

TEST_F(EnterGame, BrowsingTheGameFillsADirectoryThatIsStillTheSample)
{
    open();
    EXPECT_EQ(field(u"GameDIRPath"_s).text(), QString());
    ASSERT_TRUE(field(u"GameDIRPath"_s).placeholderText().startsWith(u"eg"));
    dialogs.answerFile(u"/games/Falcon 4/falcon4.exe"_s);
    button(u"cmdBrowsePath"_s).click();
    EXPECT_EQ(window->game().GamePath, u"/games/Falcon 4/falcon4.exe");
    EXPECT_EQ(field(u"GameDIRPath"_s).text(), u"/games/Falcon 4");
    ASSERT_EQ(dialogs.files().size(), 1);
    EXPECT_EQ(dialogs.files()[0].filter, u"Executables (*.exe)|*.exe|All files (*.*)|*.*");

    dialogs.answerFile(u"/other/b.exe"_s);
    button(u"cmdBrowsePath"_s).click();
    EXPECT_EQ(field(u"GameDIRPath"_s).text(), u"/games/Falcon 4");
}

TEST_F(EnterGame, CancelledBrowsingChangesNothing)
{
    open();
    dialogs.answerFile({});
    dialogs.answerFile({});
    dialogs.answerFolder({});
    for (const auto *name : { u"cmdBrowsePath", u"cmdBrowseJF", u"cmdBrowseDIR" }) {
        button(QString::fromUtf16(name)).click();
    }
    EXPECT_EQ(window->game(), (Game{ {}, {}, {}, u"/zeph/Files/a.tmj"_s, 0 }));
}

TEST_F(EnterGame, TheOtherFieldsAreBrowsedForToo)
{
    open();
    dialogs.answerFolder(u"/games/f4"_s);
    button(u"cmdBrowseDIR"_s).click();
    EXPECT_EQ(window->game().GameDIRPath, u"/games/f4");
    EXPECT_EQ(dialogs.folderTitles(), QStringList{ u"Select your game's working directory"_s });
    dialogs.answerFile(u"/x.tmj"_s);
    button(u"cmdBrowseJF"_s).click();
    EXPECT_EQ(window->game().GameJF, u"/x.tmj");
    ASSERT_EQ(dialogs.files().size(), 1);
    EXPECT_EQ(dialogs.files()[0].filter, u"Joystick file (*.tmj)|*.tmj|All files (*.*)|*.*");
    EXPECT_EQ(dialogs.files()[0].folder, paths.filesFolder());
}

TEST_F(EnterGame, AnUntouchedSampleIsNoDirectory)
{
    open();
    EXPECT_EQ(window->game().GameDIRPath, QString());
}

TEST_F(EnterGame, TheHelpButtonsExplain)
{
    open();
    dialogs.answer(u"Important information ... "_s, BoxButton::Ok);
    button(u"cmdHelpPath"_s).click();
    dialogs.answer(u"About the working directory ... "_s, BoxButton::Ok);
    button(u"cmdHelpDIR"_s).click();
    EXPECT_EQ(dialogs.boxes().size(), 2);
}

TEST_F(EnterGame, OkNeedsANameAndACommandThatTheStoreCanHold)
{
    open();
    QAbstractButton &ok = button(u"cmdOK"_s);
    EXPECT_FALSE(ok.isEnabled());
    field(u"GameName"_s).setText(u" Falcon "_s);
    EXPECT_FALSE(ok.isEnabled());
    field(u"GamePath"_s).setText(u"www.falcon.org"_s);
    EXPECT_TRUE(ok.isEnabled());
    EXPECT_EQ(window->game().GameName, u"Falcon");
    field(u"GameName"_s).setText(u"\u0416"_s);
    EXPECT_FALSE(ok.isEnabled());
}
