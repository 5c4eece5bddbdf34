// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/download.h"

#include "tests/toolchain/compile/compiler_bench.h"

using namespace zeph;
using zeph::test::hangOn;
using zeph::test::success;

namespace {

const QString unknown = u"Unknown result"_s;
const QString longTime = u"Now this is taking rather a long time Maverick, isn't it?!"_s;
const QString tab = u"joystick tab"_s;
const QString locks = u"lock"_s;
const QString unlocks = u"unlock"_s;
const QString mode = u"mode"_s;
const QString apps = u"apps"_s;
const QString tester = u"tester"_s;
const QString focus = u"focus"_s;

class DownloadTest : public test::CompilerBench
{
protected:
    DownloadTest()
    {
        settings.DownloadMode = 1;
        settings.RunKeyTest = 0;
    }

    DownloadHost host()
    {
        DownloadHost result{ compilerHost(), {}, {}, {}, {}, {}, {}, {} };
        result.lockJoystickText = [this](bool on) {
            EXPECT_NE(on, locked) << "locks and unlocks come in turns";
            locked = on;
            done += on ? locks : unlocks;
        };
        result.resetsAxes = [this] {
            return resetsAxes;
        };
        result.ApplyDefaultProfile = [this] {
            done += u"profile"_s;
            return profileReturns;
        };
        result.showCougarMode = note(mode);
        result.TurnNumLockOn = note(u"NumLock"_s);
        result.GetAppsToRun = [this](const QString &text) {
            EXPECT_EQ(text, joystickText);
            done += apps;
        };
        result.openKeyTester = note(tester);
        return result;
    }

    void download() { Download(context, *handshake, host()).DownloadTMJ(); }

    bool locked = false;
    bool resetsAxes = false;
    bool profileReturns = true;
};

} // namespace

TEST_F(DownloadTest, SelectsTheJoystickTabAndEndsWithAnEmptyText)
{
    joystickText.clear();
    joystick.setState(Document::Modified);
    dialogs.answer(u"Nothing to transfer ..."_s, BoxButton::Ok);
    download();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"The Joystick file is empty, so there's not much point in me sending that off to "
              u"your joystick. Load up a joystick file, or create one, or just put your feet up "
              u"and watch TV.");
    EXPECT_EQ(done, QStringList{ tab });
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(DownloadTest, AChangedFileIsSavedWithoutAQuestion)
{
    joystick.setState(Document::Modified);
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done, (QStringList{ tab, u"save"_s, locks, mode, apps, focus, unlocks }));
}

TEST_F(DownloadTest, AFileThatCouldNotBeSavedIsAskedAboutAndNoEndsTheDownload)
{
    saveWorks = false;
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
    EXPECT_FALSE(locked);
}

TEST_F(DownloadTest, YesGoesOnWithTheOldFileOnTheDisk)
{
    saveWorks = false;
    joystick.setState(Document::Modified);
    dialogs.answer(hangOn, BoxButton::Yes);
    dialogs.answer(success, BoxButton::Ok);
    download();
    ASSERT_EQ(launcher.launches.size(), 1);
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
    macroText.clear();
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(launcher.launches.size(), 1);
}

TEST_F(DownloadTest, TheStoredProfileGoesFirstWhenAxesAreReset)
{
    resetsAxes = true;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done, (QStringList{ tab, u"profile"_s, locks, mode, apps, focus, unlocks }));
}

TEST_F(DownloadTest, TheProgramsEndDuringTheProfileEndsTheDownload)
{
    resetsAxes = true;
    profileReturns = false;
    download();
    EXPECT_EQ(done, (QStringList{ tab, u"profile"_s }));
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(DownloadTest, EnablesProgrammedModeByTheTick)
{
    for (const auto &[ticked, name] :
         { std::pair(1, u"/ZEPH /CE \""), std::pair(0, u"/ZEPH /CD \"") }) {
        settings.DownloadMode = qint16(ticked);
        dialogs.answer(success, BoxButton::Ok);
        download();
        const Launch &launch = launcher.launches.constLast();
        EXPECT_EQ(launch.program, paths.compiler());
        EXPECT_EQ(launch.arguments, QString::fromUtf16(name) + joystick.path() + u'"');
        EXPECT_EQ(launch.folder, paths.hotasFolder);
        EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
        ticks = 0;
    }
}

TEST_F(DownloadTest, TellsThatItWaitsAndLocksTheTextBeforeTheCompilerStarts)
{
    launcher.onStart = [this](const Launch &) {
        EXPECT_EQ(status.text(),
                  u" Waiting for compiler to download your file. Please be patient ....");
        EXPECT_EQ(handshake->StatusCaption(), u"Downloading A.tmj");
        EXPECT_TRUE(locked);
        hasten();
        return Expected<void, QString>();
    };
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(launcher.launches.size(), 1);
    EXPECT_FALSE(locked);
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
    settings.HOTASStatusBarErrors = 1;
    download();
    EXPECT_EQ(status.text(), u"Compiled successfully. (Memory used: 4%)");
    EXPECT_EQ(done, (QStringList{ tab, locks, mode, apps, focus, unlocks }));
}

TEST_F(DownloadTest, TheNumLockHelperComesBeforeTheSuccessIsTold)
{
    settings.NumlockDownloadMode = 1;
    auto prepared = host();
    prepared.TurnNumLockOn = [this] {
        done += u"NumLock"_s;
        EXPECT_EQ(status.text(), u"Done");
        EXPECT_TRUE(dialogs.boxes().isEmpty());
    };
    dialogs.answer(success, BoxButton::Ok);
    Download(context, *handshake, prepared).DownloadTMJ();
    EXPECT_EQ(done, (QStringList{ tab, locks, mode, u"NumLock"_s, apps, focus, unlocks }));
}

TEST_F(DownloadTest, TheKeyTesterOpensBehindTheApplicationsWithTheTextEditable)
{
    settings.RunKeyTest = 1;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done, (QStringList{ tab, locks, mode, apps, unlocks, tester, focus }));
}

TEST_F(DownloadTest, WithoutProgrammedModeNoKeyTesterOpensWhateverItsTick)
{
    settings.RunKeyTest = 1;
    settings.DownloadMode = 0;
    dialogs.answer(success, BoxButton::Ok);
    download();
    EXPECT_EQ(done.count(tester), 0);
}

TEST_F(DownloadTest, AnErrorOpensItsHelpAndShowsItsLineInAnEditableText)
{
    settings.RunKeyTest = 1;
    settings.NumlockDownloadMode = 1;
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    download();
    EXPECT_EQ(status.text(), u"Compiler error at line 5: ERROR 1013: bad macro");
    EXPECT_EQ(done,
              (QStringList{ tab, locks, mode, u"help ERROR 1013: bad macro"_s, unlocks,
                            u"highlight 5 ERROR 1013: bad macro"_s }));
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(DownloadTest, AnErrorWithoutALineOpensItsHelpOnlyAndFreesTheText)
{
    statusWritten = u"ERROR"_s;
    download();
    EXPECT_EQ(status.text(), u"Compiler error: ERROR 1013: bad macro");
    EXPECT_EQ(done, (QStringList{ tab, locks, mode, u"help ERROR 1013: bad macro"_s, unlocks }));
}

TEST_F(DownloadTest, WithTheStatusBarAloneAFailureShowsNoWindowYetItsLine)
{
    settings.HOTASStatusBarErrors = 1;
    statusWritten = u"ERROR"_s;
    lineWritten = u"5"_s;
    download();
    EXPECT_EQ(done,
              (QStringList{ tab, locks, mode, unlocks, u"highlight 5 ERROR 1013: bad macro"_s }));
}

TEST_F(DownloadTest, ASilentCompilerIsToldTwiceAndTheTextGetsTheFocus)
{
    statusWritten.clear();
    dialogs.answer(longTime, BoxButton::Ok);
    dialogs.answer(unknown, BoxButton::Ok);
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
    EXPECT_EQ(done, (QStringList{ tab, locks, mode, unlocks, tab, focus }));
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
    settings.HOTASStatusBarErrors = 1;
    bool shownAtTheMode = true;
    auto prepared = host();
    prepared.showCougarMode = [&] {
        shownAtTheMode = handshake->StatusWindowShown();
    };
    Download(context, *handshake, prepared).DownloadTMJ();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(shownAtTheMode) << "it closes before the mode is shown";
    EXPECT_FALSE(handshake->StatusWindowShown());
}

TEST_F(DownloadTest, ACompilerThatDoesNotStartIsToldOnceAndFreesTheText)
{
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    launcher.onStart = [](const Launch &) -> Expected<void, QString> {
        return Unexpected<QString>(u"no permission"_s);
    };
    download();
    EXPECT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(status.text(), u"Control returned to you");
    EXPECT_EQ(done, (QStringList{ tab, locks, unlocks }));
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

TEST_F(DownloadTest, AFailureBehindTheWaitFreesTheText)
{
    settings.HOTASStatusBarErrors = 1;
    auto prepared = host();
    prepared.GetAppsToRun = [](const QString &) {
        throw std::runtime_error("no good");
    };
    Download command(context, *handshake, prepared);
    EXPECT_THROW(command.DownloadTMJ(), std::runtime_error);
    EXPECT_FALSE(locked);
}

TEST_F(DownloadTest, ASecondDownloadDuringTheFirstTellsTheSameVerdictForBoth)
{
    settings.HOTASStatusBarErrors = 1;
    Download command(context, *handshake, host());
    afterTick = [&](int count) {
        if (count == 1) {
            command.DownloadTMJ();
        } else if (count == 2) {
            writeVerdict();
        }
    };
    command.DownloadTMJ();
    EXPECT_EQ(launcher.launches.size(), 2);
    EXPECT_EQ(done.count(apps), 2);
    EXPECT_EQ(done.count(locks), 1);
    EXPECT_EQ(done.last(), unlocks);
}

TEST_F(DownloadTest, ASecondDownloadThatDoesNotStartLeavesTheFirstOnesTextLocked)
{
    settings.HOTASStatusBarErrors = 1;
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    Download command(context, *handshake, host());
    afterTick = [&](int count) {
        if (count == 1) {
            launcher.onStart = [](const Launch &) -> Expected<void, QString> {
                return Unexpected<QString>(u"no permission"_s);
            };
            command.DownloadTMJ();
            EXPECT_TRUE(locked);
        } else if (count == 2) {
            writeVerdict();
        }
    };
    command.DownloadTMJ();
    EXPECT_FALSE(locked);
    EXPECT_EQ(done.count(apps), 1);
}

TEST_F(DownloadTest, ClosingTheProgramDuringTheWaitTellsNothing)
{
    auto command = std::make_unique<Download>(context, *handshake, host());
    statusWritten.clear();
    QTimer::singleShot(0, &mainWindow, [&] {
        command.reset();
        handshake.reset();
    });
    command->DownloadTMJ();
    EXPECT_EQ(done, (QStringList{ tab, locks }));
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}
