// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/game_launch.h"

#include "documents/document.h"
#include "tests/toolchain/toolchain_bench.h"
#include "toolchain/games/games.h"

using namespace zeph;

namespace {

class GameLaunchTest : public test::ToolchainBench
{
protected:
    GameLaunchTest()
    {
        paths.iniPath = folder.file(u"Zeph.ini"_s);
        folder.write(u"Files/TM Default for games.tmj"_s, "BTN S2 a");
        folder.write(u"Falcon/falcon.exe"_s, "game");
        game = { u"Falcon"_s, folder.file(u"Falcon/falcon.exe"_s) + u" -g2"_s,
                 folder.file(u"Falcon"_s), folder.write(u"Files/F4.TMJ"_s, "BTN S2 a"), 0 };
        joystick.rename(u"f4.tmj"_s);
        afterTick = [this](int count) {
            if (count == 1 && !statusWritten.isEmpty()) {
                writeCompiler(u"LineNumber"_s, lineWritten);
                writeCompiler(u"ErrorCode"_s, u"ERROR 1002: no such button"_s);
                writeCompiler(u"Status"_s, statusWritten);
            }
        };
        launcher.onStart = [this](const Launch &launch) -> Expected<void, QString> {
            done += u"start "_s + nameOf(launch.program);
            hasten();
            if (refused == nameOf(launch.program)) {
                return Unexpected<QString>(launch.program + u": No such file or directory"_s);
            }
            return {};
        };
    }

    GamesHost host()
    {
        const auto note = [this](const QString &what) {
            return [this, what] {
                done += what;
            };
        };
        GamesHost result;
        result.joystick = [this]() -> const Document & {
            return joystick;
        };
        result.saveChanged = note(u"save"_s);
        result.resetsAxes = [this] {
            return resetsAxes;
        };
        result.ensuresNumLock = [this] {
            return ensuresNumLock;
        };
        result.ApplyDefaultProfile = [this] {
            done += u"profile"_s;
            return !ends;
        };
        result.changeToPureWindows = [this] {
            done += u"pure Windows"_s;
            return !ends;
        };
        result.TurnNumLockOn = note(u"NumLock"_s);
        result.GetAppsToRun = note(u"apps"_s);
        result.showCougarModeIfDetecting = note(u"mode"_s);
        result.OpenPreviouslySavedFiles = [this](const QString &path) {
            done += u"open "_s + nameOf(path);
        };
        result.selectJoystickTab = note(u"joystick tab"_s);
        result.showCompilerHelp = [this](const CompilerVerdict &verdict) {
            done += u"help "_s + verdict.ErrorCode;
        };
        result.HighlightErrorLine = [this](int line, const QString &text) {
            done += u"highlight %1 %2"_s.arg(line).arg(text);
        };
        result.bringMainWindowBack = note(u"back"_s);
        result.minimiseMainWindow = note(u"minimise"_s);
        return result;
    }

    /// Launches the game as the second of two.
    void launch()
    {
        Games games(paths.iniPath);
        games.update(game);
        games.update({ u"Other"_s, {}, {}, {}, 1 });
        GameLaunch(context, *handshake, games, host()).mnuGameArray_Click(2);
        top = games.list().first();
    }
    Launch started() const { return launcher.launches.value(launcher.launches.size() - 1); }

    Game game;
    Game top;
    Document joystick;
    bool resetsAxes = false;
    bool ensuresNumLock = false;
    bool ends = false;
    QString statusWritten = u"OKAY"_s;
    QString lineWritten = u"7"_s;
    QString refused;
    QStringList done;
};

const QString tooLong = u"Now this is taking rather a long time Maverick, isn't it?!"_s;

} // namespace

TEST_F(GameLaunchTest, SavesMovesTheGameToTheTopDownloadsAndStartsIt)
{
    launch();
    EXPECT_EQ(top, game);
    EXPECT_EQ(done,
              QStringList({ u"save"_s, u"start HOTASCompiler.exe"_s, u"mode"_s, u"back"_s,
                            u"apps"_s, u"start falcon.exe"_s, u"minimise"_s }));
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
    EXPECT_TRUE(done.contains(u"start falcon.exe"_s));
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
    EXPECT_EQ(done,
              QStringList({ u"save"_s, u"pure Windows"_s, u"apps"_s, u"start falcon.exe"_s,
                            u"minimise"_s }));
}

TEST_F(GameLaunchTest, Mode2DownloadsTheFileForAllGames)
{
    game.GameJFmode = 2;
    game.GameJF = u"/nowhere/a.tmj"_s;
    launch();
    EXPECT_EQ(launcher.launches.value(0).arguments,
              u"/ZEPH /CE \""_s + folder.file(u"Files/TM Default for games.tmj"_s) + u'"');
    EXPECT_TRUE(done.contains(u"start falcon.exe"_s));
}

TEST_F(GameLaunchTest, AnyOtherModeJustStartsTheGame)
{
    game.GameJFmode = 3;
    launch();
    EXPECT_EQ(done, QStringList({ u"save"_s, u"apps"_s, u"start falcon.exe"_s, u"minimise"_s }));
}

TEST_F(GameLaunchTest, TheStoredProfileGoesFirstWhenAxesAreReset)
{
    resetsAxes = true;
    launch();
    EXPECT_EQ(done.mid(0, 3),
              QStringList({ u"save"_s, u"profile"_s, u"start HOTASCompiler.exe"_s }));
    done.clear();
    game.GameJFmode = 1;
    launch();
    EXPECT_EQ(done.mid(0, 3), QStringList({ u"save"_s, u"profile"_s, u"pure Windows"_s }));
}

TEST_F(GameLaunchTest, NumLockIsTurnedOnAfterAGoodDownloadOnly)
{
    ensuresNumLock = true;
    launch();
    EXPECT_LT(done.indexOf(u"NumLock"_s), done.indexOf(u"apps"_s));
    EXPECT_TRUE(done.contains(u"NumLock"_s));
    done.clear();
    game.GameJFmode = 1;
    launch();
    EXPECT_FALSE(done.contains(u"NumLock"_s));
}

TEST_F(GameLaunchTest, AMissingFileEndsTheLaunch)
{
    game.GameJF = u"/nowhere/a.tmj"_s;
    resetsAxes = true;
    dialogs.answer(u"Aborting game launch"_s, BoxButton::Ok);
    launch();
    EXPECT_EQ(done, QStringList{ u"save"_s });
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Stop);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"I'm afraid I couldn't find /nowhere/a.tmj, which is the joystick file I need to "
              u"download to the Cougar according to the way you've setup your options for this "
              u"game. I'll exit now and suggest you go to the Preferences Window and edit your "
              u"Game's settings to rectify the problem.");
}

TEST_F(GameLaunchTest, AnErrorIsShownInTheOpenFileAndTheGameIsNotStarted)
{
    statusWritten = u"ERROR"_s;
    launch();
    EXPECT_EQ(done,
              QStringList({ u"save"_s, u"start HOTASCompiler.exe"_s, u"mode"_s, u"back"_s,
                            u"joystick tab"_s, u"help ERROR 1002: no such button"_s,
                            u"highlight 7 ERROR 1002: no such button"_s }));
    EXPECT_EQ(status.text(), u"Compiler error on line 7: ERROR 1002: no such button");
}

TEST_F(GameLaunchTest, ALaunchWhoseCompileFailsOpensTheFailedFileAndNeverStartsTheGame)
{
    statusWritten = u"ERROR"_s;
    joystick.rename(u"Other.tmj"_s);
    launch();
    EXPECT_EQ(done.value(4), u"open F4.TMJ");
    EXPECT_EQ(done.value(5), u"joystick tab");
    EXPECT_FALSE(done.contains(u"start falcon.exe"_s));
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
    settings.HOTASStatusBarErrors = 1;
    launch();
    EXPECT_EQ(done.last(), u"highlight 7 ERROR 1002: no such button");
    EXPECT_FALSE(done.contains(u"help ERROR 1002: no such button"_s));
}

TEST_F(GameLaunchTest, AfterTheWaitGaveUpYesStartsTheGameWithTheStatusUnread)
{
    statusWritten.clear();
    afterTick = [this](int) {
        // Too late: written behind the last look at it.
        if (handshake->CompilerFinished() == 2) {
            writeCompiler(u"Status"_s, u"ERROR"_s);
        }
    };
    dialogs.answer(tooLong, BoxButton::Yes);
    launch();
    EXPECT_EQ(status.text(), u"Done");
    EXPECT_EQ(done,
              QStringList({ u"save"_s, u"start HOTASCompiler.exe"_s, u"mode"_s, u"apps"_s,
                            u"start falcon.exe"_s, u"minimise"_s }));
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
    EXPECT_FALSE(done.contains(u"start falcon.exe"_s));
}

TEST_F(GameLaunchTest, ACompilerThatCannotStartIsToldAndTheGameStillStarts)
{
    refused = u"HOTASCompiler.exe"_s;
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    launch();
    EXPECT_TRUE(done.contains(u"start falcon.exe"_s));
    EXPECT_EQ(done.last(), u"minimise");
}

TEST_F(GameLaunchTest, TheEndOfTheProgramDuringTheModeWaitStartsNothing)
{
    game.GameJFmode = 1;
    ends = true;
    launch();
    EXPECT_EQ(done.last(), u"pure Windows");
}

TEST_F(GameLaunchTest, TheEndOfTheProgramDuringTheDownloadStartsNothing)
{
    afterTick = [this](int) {
        QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
    };
    launch();
    EXPECT_EQ(done, QStringList({ u"save"_s, u"start HOTASCompiler.exe"_s }));
}

TEST_F(GameLaunchTest, AWebAddressOpensInTheBrowserWithNoWorkingDirectory)
{
    for (const auto *address : { u"www.example.com/game", u"http://example.com" }) {
        game.GameJFmode = 3;
        game.GamePath = QString::fromUtf16(address);
        launch();
    }
    EXPECT_EQ(launcher.opened, QStringList({ u"www.example.com/game"_s, u"http://example.com"_s }));
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_EQ(done.mid(0, 4), QStringList({ u"save"_s, u"apps"_s, u"back"_s, u"minimise"_s }));
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
    EXPECT_EQ(started().folder, u"/");
    game.GameDIRPath.clear();
    launch();
    EXPECT_EQ(started().folder, paths.hotasFolder);
}
