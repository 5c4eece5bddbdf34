// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/game_launch.h"

#include "tests/support/compiler_bench.h"
#include "toolchain/games/games.h"
#include "toolchain/toolchain_settings.h"

using namespace zeph;

namespace {

class GameLaunchTest : public test::CompilerBench
{
protected:
    GameLaunchTest()
    {
        folder.write(u"Files/TM Default for games.tmj"_s, "BTN S2 a");
        folder.write(u"Falcon/falcon.exe"_s, "game");
        game = { u"Falcon"_s, folder.file(u"Falcon/falcon.exe"_s) + u" -g2"_s,
                 folder.file(u"Falcon"_s), folder.write(u"Files/F4.TMJ"_s, "BTN S2 a"), 0 };
        joystick.rename(folder.file(u"Files/f4.tmj"_s));
        joystick.setText(u"USE ZEPH RUN_APP "_s + app);
        lineWritten = u"7"_s;
        errorWritten = u"ERROR 1002: no such button"_s;
        detectMode();
    }

    /// Launches the game as the second of two, with a changed joystick file open.
    void launch()
    {
        joystick.setState(Document::Modified);
        Games games(paths.iniPath);
        games.update(game);
        games.update({ u"Other"_s, {}, {}, {}, 1 });
        GameLaunch(context, parts(), games).mnuGameArray_Click(2);
        top = games.list().first();
    }
    Launch started() const { return launcher.launches.value(launcher.launches.size() - 1); }
    /// The program ends while that program is waited for.
    void endWith(const QString &program)
    {
        launcher.onStart = [this, program](const Launch &launch) {
            if (launch.program == program) {
                QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
            }
            return start(launch);
        };
    }

    Game game;
    Game top;
    const QString save = u"save f4.tmj"_s;
    const QString gameStarts = u"start falcon.exe"_s;
};

const QString tooLong = u"Now this is taking rather a long time Maverick, isn't it?!"_s;

} // namespace

TEST_F(GameLaunchTest, SavesMovesTheGameToTheTopDownloadsAndStartsIt)
{
    launch();
    EXPECT_EQ(top, game);
    EXPECT_EQ(done,
              QStringList({ save, compilerStarts, u"mode"_s, u"back"_s, appStarts, gameStarts,
                            u"minimise"_s }));
    EXPECT_EQ(status.text(), u"Compiled successfully. Launching game ...");
    const Launch compiler = launcher.launches.value(0);
    EXPECT_EQ(compiler.program, paths.compiler());
    EXPECT_EQ(compiler.arguments, u"/ZEPH /CE \""_s + game.GameJF + u'"');
    EXPECT_EQ(compiler.folder, paths.hotasFolder);
    EXPECT_EQ(started().program, folder.file(u"Falcon/falcon.exe"_s));
    EXPECT_EQ(started().arguments, u"-g2");
    EXPECT_EQ(started().folder, game.GameDIRPath);
    EXPECT_EQ(started().style, WindowStyle::NormalFocus);
    EXPECT_EQ(handshake->StatusCaption(), u"Downloading F4.TMJ");
}

TEST_F(GameLaunchTest, BothChangedDocumentsAreSavedAndTheSelectedOneStays)
{
    macro.setState(Document::Modified);
    launch();
    EXPECT_EQ(done.mid(0, 2), QStringList({ save, u"save a.tmm"_s }));
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Macro);
}

TEST_F(GameLaunchTest, ADocumentThatCouldNotBeSavedStaysModifiedAndTheGameStarts)
{
    saver.works = false;
    launch();
    EXPECT_TRUE(joystick.isModified());
    EXPECT_TRUE(done.contains(gameStarts));
}

TEST_F(GameLaunchTest, AFileOutsideTheFilesFolderIsNamedWhole)
{
    game.GameJF = folder.write(u"Elsewhere/f4.tmj"_s, "BTN S2 a");
    launch();
    EXPECT_EQ(handshake->StatusCaption(), u"Downloading "_s + game.GameJF);
}

TEST_F(GameLaunchTest, TheEmptiedSectionWaitsForTheVerdictOfThisDownload)
{
    writeCompiler(u"Status"_s, u"ERROR"_s);
    launch();
    EXPECT_TRUE(done.contains(gameStarts));
}

TEST_F(GameLaunchTest, PanelOneAsksForPatienceDuringTheWait)
{
    QString during;
    const auto writes = afterTick;
    afterTick = [this, writes, &during](int count) {
        during = status.text();
        writes(count);
    };
    launch();
    EXPECT_EQ(during, u" Waiting for compiler to download your file. Please be patient ....");
}

TEST_F(GameLaunchTest, Mode1IgnoresTheJoystickFileAndStartsAfterTheModeWait)
{
    game.GameJFmode = 1;
    game.GameJF = u"/nowhere/a.tmj"_s;
    launch();
    EXPECT_EQ(done, QStringList({ save, configStarts, appStarts, gameStarts, u"minimise"_s }));
}

TEST_F(GameLaunchTest, Mode2DownloadsTheFileForAllGames)
{
    game.GameJFmode = 2;
    game.GameJF = u"/nowhere/a.tmj"_s;
    launch();
    EXPECT_EQ(launcher.launches.value(0).arguments,
              u"/ZEPH /CE \""_s + folder.file(u"Files/TM Default for games.tmj"_s) + u'"');
    EXPECT_TRUE(done.contains(gameStarts));
}

TEST_F(GameLaunchTest, AnyOtherModeJustStartsTheGame)
{
    game.GameJFmode = 3;
    launch();
    EXPECT_EQ(done, QStringList({ save, appStarts, gameStarts, u"minimise"_s }));
}

TEST_F(GameLaunchTest, TheStoredProfileGoesFirstWhenAxesAreReset)
{
    settings.of<ToolchainSettings>().UseResetProfile = true;
    launch();
    EXPECT_EQ(done.mid(0, 3), QStringList({ save, configStarts, compilerStarts }));
    done.clear();
    game.GameJFmode = 1;
    launch();
    EXPECT_EQ(done.mid(0, 3), QStringList({ save, configStarts, configStarts }));
    EXPECT_TRUE(launcher.launches[0].arguments.contains(u"/P\"Default.tmc\""));
    EXPECT_TRUE(launcher.launches[4].arguments.contains(u"/P\"Default.tmc\""));
    EXPECT_EQ(launcher.launches[5].arguments, u"/MODE /ZEPH /AW /BW");
}

TEST_F(GameLaunchTest, NumLockIsTurnedOnAfterAGoodDownloadOnly)
{
    settings.of<ToolchainSettings>().NumlockDownloadMode = true;
    launch();
    EXPECT_LT(done.indexOf(u"start ZephNUMLon.exe"_s), done.indexOf(appStarts));
    EXPECT_TRUE(done.contains(u"start ZephNUMLon.exe"_s));
    done.clear();
    game.GameJFmode = 1;
    launch();
    EXPECT_FALSE(done.contains(u"start ZephNUMLon.exe"_s));
}

TEST_F(GameLaunchTest, AMissingFileEndsTheLaunch)
{
    game.GameJF = u"/nowhere/a.tmj"_s;
    settings.of<ToolchainSettings>().UseResetProfile = true;
    dialogs.answer(u"Aborting game launch"_s, BoxButton::Ok);
    launch();
    EXPECT_EQ(done, QStringList{ save });
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Stop);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"I'm afraid I couldn't find /nowhere/a.tmj, which is the joystick file I need to "
              u"download to the Cougar according to the way you've setup your options for this "
              u"game. I'll exit now and suggest you go to the Preferences Window and edit your "
              u"Game's settings to rectify the problem.");
}

TEST_F(GameLaunchTest, AQuoteInTheFilesNameIsToldAndNeitherCompilerNorGameStarts)
{
    if (!test::canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    game.GameJF = folder.write(u"Files/f\"4.tmj"_s, "BTN S2 a");
    dialogs.answer(u"That name has a quote in it"_s, BoxButton::Ok);
    launch();
    EXPECT_EQ(done, QStringList{ save });
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(game.GameJF));
}

TEST_F(GameLaunchTest, AnErrorIsShownInTheOpenFileAndTheGameIsNotStarted)
{
    statusWritten = u"ERROR"_s;
    launch();
    EXPECT_EQ(done,
              QStringList({ save, compilerStarts, u"mode"_s, u"back"_s,
                            u"help ERROR 1002: no such button"_s,
                            u"highlight 7 ERROR 1002: no such button"_s }));
    EXPECT_EQ(status.text(), u"Compiler error on line 7: ERROR 1002: no such button");
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Joystick);
}

TEST_F(GameLaunchTest, ALaunchWhoseCompileFailsOpensTheFailedFileAndNeverStartsTheGame)
{
    statusWritten = u"ERROR"_s;
    joystick.rename(folder.file(u"Files/Other.tmj"_s));
    launch();
    EXPECT_EQ(done.value(4), u"open F4.TMJ");
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Joystick);
    EXPECT_FALSE(done.contains(gameStarts));
    EXPECT_FALSE(done.contains(u"minimise"_s));
}

TEST_F(GameLaunchTest, AnErrorWithoutALineHighlightsNone)
{
    statusWritten = u"ERROR"_s;
    lineWritten = u"0"_s;
    launch();
    EXPECT_EQ(status.text(), u"Compiler error: ERROR 1002: no such button");
    EXPECT_EQ(done.last(), u"help ERROR 1002: no such button");
}

TEST_F(GameLaunchTest, WithStatusBarErrorsTheLineIsShownWithoutTheWindow)
{
    statusWritten = u"ERROR"_s;
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    launch();
    EXPECT_EQ(done.last(), u"highlight 7 ERROR 1002: no such button");
    EXPECT_FALSE(done.contains(u"help ERROR 1002: no such button"_s));
}

TEST_F(GameLaunchTest, AfterTheWaitGaveUpYesStartsTheGameWithTheStatusUnread)
{
    statusWritten.clear();
    afterTick = [this](int) {
        // Too late: written after the last look at it.
        if (handshake->CompilerFinished() == 2) {
            writeCompiler(u"Status"_s, u"ERROR"_s);
        }
    };
    dialogs.answer(tooLong, BoxButton::Yes);
    launch();
    EXPECT_EQ(status.text(), u"Done");
    EXPECT_EQ(
        done,
        QStringList({ save, compilerStarts, u"mode"_s, appStarts, gameStarts, u"minimise"_s }));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const Box &box = dialogs.boxes()[0];
    EXPECT_EQ(box.buttons, QList<BoxButton>({ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
    EXPECT_EQ(
        box.text,
        u"I'm going to pass control back to you now, as I'm worried that there may be a problem "
        u"with the download and the Compiler's communication with your Cougar - it's just taking "
        u"too long for my liking. I could be wrong of course, but I'd prefer to play it safe, and "
        u"I presume you do too.\n\nIf you know for certain that there isn't a problem with your "
        u"Cougar or your files, then you can simply wait for the compiler to finish, and continue "
        u"to launch your game. Would you like me to continue with running your game now?");
}

TEST_F(GameLaunchTest, AfterTheWaitGaveUpNoEndsTheLaunchWithTheEditorInFront)
{
    statusWritten.clear();
    dialogs.answer(tooLong, BoxButton::No);
    launch();
    EXPECT_EQ(status.text(), u"Control returned to you");
    EXPECT_EQ(done.last(), u"back");
    EXPECT_FALSE(done.contains(gameStarts));
}

TEST_F(GameLaunchTest, ACompilerThatCannotStartIsToldAndTheGameStillStarts)
{
    refused = u"HOTASCompiler.exe"_s;
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    launch();
    EXPECT_TRUE(done.contains(gameStarts));
    EXPECT_EQ(done.last(), u"minimise");
}

TEST_F(GameLaunchTest, TheEndOfTheProgramDuringTheModeWaitStartsNothing)
{
    game.GameJFmode = 1;
    endWith(paths.config());
    launch();
    EXPECT_EQ(done.last(), configStarts);
}

TEST_F(GameLaunchTest, TheEndOfTheProgramDuringTheDownloadStartsNothing)
{
    endWith(paths.compiler());
    launch();
    EXPECT_EQ(done, QStringList({ save, compilerStarts }));
}

TEST_F(GameLaunchTest, AWebAddressOpensInTheBrowserWithNoWorkingDirectory)
{
    for (const auto *address : { u"www.example.com/game", u"http://example.com" }) {
        game.GameJFmode = 3;
        game.GamePath = QString::fromUtf16(address);
        joystick.setText({});
        launch();
    }
    EXPECT_EQ(launcher.opened, QStringList({ u"www.example.com/game"_s, u"http://example.com"_s }));
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(done.mid(0, 3), QStringList({ save, u"back"_s, u"minimise"_s }));
}

TEST_F(GameLaunchTest, AGameThatCannotStartShowsNoBoxAndTheLineTellsWhy)
{
    game.GameJFmode = 3;
    refused = u"falcon.exe"_s;
    launch();
    EXPECT_EQ(status.text(),
              folder.file(u"Falcon/falcon.exe"_s) + u": No such file or directory"_s);
    EXPECT_EQ(done.last(), u"minimise");
}

TEST_F(GameLaunchTest, AMissingWorkingDirectoryLeavesTheRootAsTheFolder)
{
    game.GameJFmode = 3;
    game.GameDIRPath = u"/nowhere/at all"_s;
    launch();
    EXPECT_EQ(started().folder, folder.root());
    game.GameDIRPath.clear();
    launch();
    EXPECT_EQ(started().folder, paths.hotasFolder);
}
