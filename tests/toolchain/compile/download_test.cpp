// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download.h"

#include "tests/support/compiler_bench.h"
#include "toolchain/compile/compile.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"

using namespace zeph;
using zeph::test::hangOn;
using zeph::test::success;

namespace {

const QString unknown = u"Unknown result"_s;
const QString longTime = u"Now this is taking rather a long time Maverick, isn't it?!"_s;
const QString locks = u"lock"_s;
const QString unlocks = u"unlock"_s;
const QString mode = u"mode"_s;
const QString tester = u"tester"_s;
const QString focus = u"focus"_s;

class DownloadTest : public test::CompilerBench
{
protected:
    DownloadTest()
    {
        settings.of<DefaultOptions>().DownloadMode = true;
        settings.of<ToolchainSettings>().RunKeyTest = false;
        joystick.setText(u"BTN S1 x\nUSE ZEPH RUN_APP "_s + app);
        detectMode();
    }

    void download() { Download(context, parts()).DownloadTMJ(); }
};

} // namespace

TEST_F(DownloadTest, SelectsTheJoystickTabAndEndsWithAnEmptyText)
{
    joystick.setText({});
    joystick.setState(Document::Modified);
    dialogs.answer(u"Nothing to transfer ..."_s, BoxButton::Ok);
    download();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"The Joystick file is empty, so there's not much point in me sending that off to "
              u"your joystick. Load up a joystick file, or create one, or just put your feet up "
              u"and watch TV.");
    EXPECT_EQ(done, QStringList());
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Joystick);
}

TEST_F(DownloadTest, AFileThatAnotherProgramHasChangedIsNotSent)
{
    saver.leftOpen = true;
    download();
    EXPECT_FALSE(done.contains(compilerStarts));
}

TEST_F(DownloadTest, AChangedFileIsSavedWithoutAQuestion)
{
    joystick.setState(Document::Modified);
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(
        done,
        (QStringList{ u"save A.TMJ"_s, locks, compilerStarts, mode, appStarts, focus, unlocks }));
}

TEST_F(DownloadTest, AFileThatCouldNotBeSavedIsAskedAboutAndNoEndsTheDownload)
{
    saver.works = false;
    joystick.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::No);
    download();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const Box &box = dialogs.boxes()[0];
    EXPECT_EQ(box.text,
              u"The joystick file isn't saved, so you won't be sending the currently edited file "
              u"to your Thrustmaster hardware. Do you want to continue anyway?");
    EXPECT_EQ(box.buttons, (QList<BoxButton>{ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_FALSE(joystick.isLocked());
}

TEST_F(DownloadTest, YesGoesOnWithTheOldFileOnTheDisk)
{
    saver.works = false;
    joystick.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::Yes);
    dialogs.answer(success, BoxButton::Ok);
    download();
    ASSERT_EQ(done.count(compilerStarts), 1);
    EXPECT_TRUE(launcher.launches[0].arguments.endsWith(u'"' + joystick.path() + u'"'));
    EXPECT_TRUE(joystick.isModified());
}

TEST_F(DownloadTest, AChangedMacroFileIsAskedAboutAndNoEndsTheDownload)
{
    macro.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::No);
    download();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    const Box &box = dialogs.boxes()[0];
    EXPECT_EQ(box.text,
              u"The macro file isn't saved, so when I download the joystick file, there's a danger "
              u"that the download might fail or not give the correct response. This will be "
              u"because the compiler is using the macros from the saved file, not the one "
              u"currently open. Do you want to continue anyway?");
    EXPECT_EQ(box.buttons, (QList<BoxButton>{ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(box.defaultButton, BoxButton::No);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(DownloadTest, AnEmptyMacroTextWithItsChangedFlagSetGivesNoWarning)
{
    macro.setState(Document::Modified);
    macro.setText({});
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done.count(compilerStarts), 1);
}

TEST_F(DownloadTest, TheStoredProfileGoesFirstWhenAxesAreReset)
{
    settings.of<ToolchainSettings>().UseResetProfile = true;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_TRUE(launcher.launches[0].arguments.contains(u"/P\"Default.tmc\""));
    EXPECT_EQ(
        done,
        (QStringList{ configStarts, locks, compilerStarts, mode, appStarts, focus, unlocks }));
}

TEST_F(DownloadTest, TheProgramsEndDuringTheProfileEndsTheDownload)
{
    settings.of<ToolchainSettings>().UseResetProfile = true;
    QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
    download();
    EXPECT_EQ(done, QStringList{ configStarts });
}

TEST_F(DownloadTest, EnablesProgrammedModeByTheTick)
{
    for (const auto &[ticked, name] :
         { std::pair(1, u"/ZEPH /CE \""), std::pair(0, u"/ZEPH /CD \"") }) {
        settings.of<DefaultOptions>().DownloadMode = int(ticked);
        dialogs.answer(success, BoxButton::Ok);
        download();
        const Launch &launch = launcher.launches[launcher.launches.size() - 2];
        EXPECT_EQ(launch.program, paths.compiler());
        EXPECT_EQ(launch.arguments, QString::fromUtf16(name) + joystick.path() + u'"');
        EXPECT_EQ(launch.folder, paths.hotasFolder);
        EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
        ticks = 0;
    }
}

TEST_F(DownloadTest, TellsThatItWaitsAndLocksTheTextBeforeTheCompilerStarts)
{
    joystick.setText(u"BTN S1 x"_s);
    launcher.onStart = [this](const Launch &launch) {
        EXPECT_EQ(status.text(),
                  u" Waiting for compiler to download your file. Please be patient ....");
        EXPECT_EQ(handshake->StatusCaption(), u"Downloading A.tmj");
        EXPECT_TRUE(joystick.isLocked());
        return start(launch);
    };
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(launcher.launches.size(), 1);
    EXPECT_FALSE(joystick.isLocked());
}

TEST_F(DownloadTest, SuccessIsToldWithBothTimes)
{
    QStringList panels;
    QObject::connect(&status, &StatusLine::textChanged, &status,
                     [&](const QString &text) { panels += text; });
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(
        panels,
        (QStringList{ u" Waiting for compiler to download your file. Please be patient ...."_s,
                      u"Done"_s, u"Compiled successfully. (Memory used: 4%)"_s }));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Information);
    EXPECT_EQ(dialogs.boxes()[0].text,
              joystick.path()
                  + u" compiled successfully.\n\nCompile time: 0.5s.\nDownload time: 1.25s.\n"
                    u"Memory used: 4%"_s);
}

TEST_F(DownloadTest, WithTheStatusBarAloneASuccessComesWithoutABox)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    download();
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 4%)");
    EXPECT_EQ(done, (QStringList{ locks, compilerStarts, mode, appStarts, focus, unlocks }));
}

TEST_F(DownloadTest, TheNumLockHelperComesBeforeTheSuccessIsTold)
{
    settings.of<ToolchainSettings>().NumlockDownloadMode = true;
    const QString numLock = u"start ZephNUMLon.exe"_s;
    launcher.onStart = [&, this](const Launch &launch) {
        const auto started = start(launch);
        if (done.last() == numLock) {
            EXPECT_EQ(status.text(), u"Done");
            EXPECT_TRUE(dialogs.boxes().isEmpty());
        }
        return started;
    };
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done,
              (QStringList{ locks, compilerStarts, mode, numLock, appStarts, focus, unlocks }));
}

TEST_F(DownloadTest, TheKeyTesterOpensAfterTheApplicationsWithTheTextEditable)
{
    settings.of<ToolchainSettings>().RunKeyTest = true;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done,
              (QStringList{ locks, compilerStarts, mode, appStarts, unlocks, tester, focus }));
}

TEST_F(DownloadTest, WithoutProgrammedModeNoKeyTesterOpensWhateverItsTick)
{
    settings.of<ToolchainSettings>().RunKeyTest = true;
    settings.of<DefaultOptions>().DownloadMode = false;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done.count(tester), 0);
}

TEST_F(DownloadTest, AnErrorOpensItsHelpAndShowsItsLineInAnEditableText)
{
    settings.of<ToolchainSettings>().RunKeyTest = true;
    settings.of<ToolchainSettings>().NumlockDownloadMode = true;
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    download();
    EXPECT_EQ(status.text(), u"Compiler error at line 5: ERROR 1013: bad macro");
    EXPECT_EQ(done,
              (QStringList{ locks, compilerStarts, mode, u"help ERROR 1013: bad macro"_s, unlocks,
                            u"highlight 5 ERROR 1013: bad macro"_s }));
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(DownloadTest, AnErrorWithoutALineOpensItsHelpOnlyAndFreesTheText)
{
    statusWritten = u"ERROR"_s;
    download();
    EXPECT_EQ(status.text(), u"Compiler error: ERROR 1013: bad macro");
    EXPECT_EQ(
        done,
        (QStringList{ locks, compilerStarts, mode, u"help ERROR 1013: bad macro"_s, unlocks }));
}

TEST_F(DownloadTest, WithTheStatusBarAloneAFailureShowsNoWindowYetItsLine)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    download();
    EXPECT_EQ(done,
              (QStringList{ locks, compilerStarts, mode, unlocks,
                            u"highlight 5 ERROR 1013: bad macro"_s }));
}

TEST_F(DownloadTest, ASilentCompilerIsToldTwiceAndTheTextGetsTheFocus)
{
    statusWritten.clear();
    dialogs.answer(longTime, BoxButton::Ok);
    dialogs.answer(unknown, BoxButton::Ok);
    QTimer::singleShot(0, &mainWindow, [this] { documents.select(DocumentKind::Macro); });
    download();
    ASSERT_EQ(dialogs.boxes().size(), 2);
    EXPECT_EQ(dialogs.boxes()[0].title, longTime);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(u" with the download and the Compiler's "));
    EXPECT_EQ(dialogs.boxes()[1].title, unknown);
    EXPECT_EQ(dialogs.boxes()[1].text,
              u"I didn't get any response from the Compiler when asking it how the download went. "
              u"There may be a problem. I'm going to exit the download function and return control "
              u"to you.");
    EXPECT_EQ(status.text(), u"Control returned to you");
    EXPECT_EQ(done, (QStringList{ locks, compilerStarts, mode, unlocks, focus }));
    EXPECT_EQ(documents.selected().kind(), DocumentKind::Joystick);
}

TEST_F(DownloadTest, AVerdictThatComesWithTheTimeOutIsTold)
{
    statusWritten.clear();
    afterTick = [this](int count) {
        if (count == 46) {
            statusWritten = u"OKAY"_s;
            writeVerdict();
        }
    };
    dialogs.answer(longTime, BoxButton::Ok);
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 4%)");
}

TEST_F(DownloadTest, OverTwoSecondsTheStatusWindowShowsAndClosesAtTheEnd)
{
    bool shown = false;
    afterTick = [&](int count) {
        if (count == 3) {
            shown = handshake->StatusWindowShown();
            writeVerdict();
        }
    };
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    bool shownAtTheMode = true;
    QObject::connect(&status, &StatusLine::changed, &status, [&](StatusPanel panel) {
        if (panel == StatusPanel::Mode) {
            shownAtTheMode = handshake->StatusWindowShown();
        }
    });
    download();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(shownAtTheMode) << "it closes before the mode is shown";
    EXPECT_FALSE(handshake->StatusWindowShown());
}

TEST_F(DownloadTest, ACompilerThatDoesNotStartIsToldOnceAndFreesTheText)
{
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    refused = u"HOTASCompiler.exe"_s;
    download();
    EXPECT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(status.text(), u"Control returned to you");
    EXPECT_EQ(done, (QStringList{ locks, compilerStarts, unlocks }));
}

TEST_F(DownloadTest, TheVerdictIsAboutTheFileThatWasSent)
{
    const QString sent = joystick.path();
    QTimer::singleShot(0, &mainWindow, [this] { joystick.rename(u"/another.tmj"_s); });
    dialogs.answer(success, BoxButton::Ok);
    download();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.startsWith(sent));
}

TEST_F(DownloadTest, AFailureAfterTheWaitFreesTheText)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    launcher.onStart = [this](const Launch &launch) {
        if (launch.program == app) {
            throw std::runtime_error("no good");
        }
        return start(launch);
    };
    Download command(context, parts());
    EXPECT_THROW(command.DownloadTMJ(), std::runtime_error);
    EXPECT_FALSE(joystick.isLocked());
}

TEST_F(DownloadTest, TwentyFivePressesInOneWaitMakeOneDownloadAndStartOneApplication)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    Download command(context, parts());
    afterTick = [&](int count) {
        if (count == 1) {
            for (int i = 0; i < 24; ++i) {
                command.DownloadTMJ();
            }
            EXPECT_EQ(status.text(), u" I'm still busy with the download: once is enough");
        } else if (count == 2) {
            writeVerdict();
        }
    };
    command.DownloadTMJ();
    EXPECT_EQ(done.count(compilerStarts), 1);
    EXPECT_EQ(done.count(appStarts), 1);
    EXPECT_FALSE(joystick.isLocked());
}

TEST_F(DownloadTest, ACompileDuringADownloadRunsAfterItWithAVerdictOfItsOwn)
{
    settings.of<ToolchainSettings>().HOTASStatusBarErrors = true;
    Download command(context, parts());
    Compile compile(context, parts());
    afterTick = [&](int count) {
        if (count == 1) {
            compile.mnuAppsCompile_Click();
            EXPECT_EQ(done.count(compilerStarts), 1) << "it would empty the download's section";
        } else {
            writeVerdict();
        }
    };
    command.DownloadTMJ();
    QCoreApplication::processEvents();
    EXPECT_EQ(done,
              (QStringList{ locks, compilerStarts, mode, appStarts, focus, unlocks,
                            u"minimise tools"_s, compilerStarts, focus }));
}

TEST_F(DownloadTest, ANameWithADoubleQuoteIsToldSinceACommandLineLosesIt)
{
    if (!test::canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    joystick.rename(folder.write(u"My \"best\".tmj"_s, "x"));
    dialogs.answer(u"That name has a quote in it"_s, BoxButton::Ok);
    download();
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_FALSE(joystick.isLocked());
}

TEST_F(DownloadTest, AProfilesNameWithADoubleQuoteIsToldAndTheDownloadGoesOn)
{
    if (!test::canHoldQuotes) {
        GTEST_SKIP() << "no file has such a name here";
    }
    settings.of<ToolchainSettings>().UseResetProfile = true;
    settings.of<ToolchainSettings>().ResetProfile = u"a\"b"_s;
    folder.write(u"Profiles/a\"b.tmc"_s, "x");
    dialogs.answer(u"That name has a quote in it"_s, BoxButton::Ok);
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done.count(configStarts), 0);
    EXPECT_EQ(done.count(compilerStarts), 1);
}

TEST_F(DownloadTest, AnErrorIsAboutTheFilesThatWereSentWhateverIsOpenByThen)
{
    const SentFiles sent = sentFiles(documents);
    statusWritten = u"ERROR"_s;
    lineWritten = u"40000"_s;
    QTimer::singleShot(0, &mainWindow, [this] { macro.rename(u"/another.tmm"_s); });
    download();
    EXPECT_EQ(scene.shown.file().path, sent.macro.path);
    EXPECT_EQ(scene.shown.file().name, u"a.tmm");
    EXPECT_EQ(scene.shown.line, 40000);
}

TEST_F(DownloadTest, ClosingTheProgramDuringTheWaitTellsNothing)
{
    auto command = std::make_unique<Download>(context, parts());
    statusWritten.clear();
    QTimer::singleShot(0, &mainWindow, [&] {
        command.reset();
        handshake.reset();
    });
    command->DownloadTMJ();
    EXPECT_EQ(done, (QStringList{ locks, compilerStarts }));
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}
