// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/after_download.h"

#include "platform/core/paths.h"
#include "platform/core/stand_in.h"
#include "tests/support/toolchain_bench.h"
#include "toolchain/toolchain_settings.h"

using namespace zeph;

namespace {

class AfterDownloadTest : public test::ToolchainBench
{
protected:
    AfterDownload after{ context };
    QString first = folder.write(u"Tools/first app.exe"_s, "x");
    QString second = folder.write(u"Tools/second.exe"_s, "x");

    QString text() const
    {
        return u"USE ZEPH RUN_APP "_s + first
            + u" -a WINDOW_STYLE = 1\nBTN S1 a\nUSE ZEPH RUN_APP "_s + second + u'\n';
    }
};

} // namespace

TEST_F(AfterDownloadTest, StartsTheNamedApplicationsInTheFilesOrder)
{
    after.GetAppsToRun(text());
    ASSERT_EQ(launcher.launches.size(), 2);
    EXPECT_EQ(launcher.launches[0].program, first);
    EXPECT_EQ(launcher.launches[0].arguments, u"-a");
    EXPECT_EQ(launcher.launches[0].folder, folder.root());
    EXPECT_EQ(launcher.launches[0].style, WindowStyle::NormalFocus);
    EXPECT_EQ(launcher.launches[1].program, second);
    EXPECT_EQ(launcher.launches[1].arguments, u"");
    EXPECT_EQ(launcher.launches[1].style, WindowStyle::MinimisedNoFocus);
}

TEST_F(AfterDownloadTest, AnApplicationStartsInTheRootOfItsDrive)
{
    after.GetAppsToRun(
        u"USE ZEPH RUN_APP d:\\tools\\x.exe\nUSE ZEPH RUN_APP \"E:\\a b\\y.exe\" -z"_s);
    ASSERT_EQ(launcher.launches.size(), 2);
    EXPECT_EQ(launcher.launches[0].folder, nativeSeparators(u"d:/"_s));
    EXPECT_EQ(launcher.launches[1].program, u"E:\\a b\\y.exe");
    EXPECT_EQ(launcher.launches[1].folder, nativeSeparators(u"E:/"_s));
}

TEST_F(AfterDownloadTest, WithRunAppsWithDownloadSetNothingStartsWhateverTheFileSays)
{
    settings.of<ToolchainSettings>().RunAppsWithDownload = true;
    after.GetAppsToRun(text());
    EXPECT_TRUE(launcher.launches.isEmpty());
    EXPECT_FALSE(folder.exists(u"Temp/Original.txt"_s));
}

TEST_F(AfterDownloadTest, AnEmptyTextStartsNothing)
{
    after.GetAppsToRun({});
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(AfterDownloadTest, AWrongPathIsToldAndEndsTheRow)
{
    launcher.onStart = [this](const Launch &launch) -> Expected<void, QString> {
        return Unexpected<QString>(launch.program + u": No such file or directory"_s);
    };
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    after.GetAppsToRun(text());
    EXPECT_EQ(launcher.launches.size(), 1);
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(first + u": No such file or directory"_s));
}

TEST_F(AfterDownloadTest, LeavesAPlainCopyOfTheTextInTheTempFolder)
{
    folder.write(u"Temp/Original.txt"_s, "something much longer from an earlier run");
    after.GetAppsToRun(u"BTN S1 \u20AC\nBTN S2 b"_s);
    EXPECT_EQ(folder.read(u"Temp/Original.txt"_s), "BTN S1 \x80\r\nBTN S2 b");
}

TEST_F(AfterDownloadTest, TheInterfaceIsYieldedToBetweenTwoStarts)
{
    bool yielded = false;
    int before = -1;
    QObject::connect(
        &mainWindow, &QObject::objectNameChanged, &mainWindow,
        [&] {
            yielded = true;
            before = int(launcher.launches.size());
        },
        Qt::QueuedConnection);
    mainWindow.setObjectName(u"changed"_s);
    after.GetAppsToRun(text());
    EXPECT_TRUE(yielded);
    EXPECT_EQ(before, 1);
}

TEST_F(AfterDownloadTest, TheNumLockHelperRunsInTheProgramsFolder)
{
    const QString helper = folder.write(u"ZephNUMLon.exe"_s, "x");
    after.TurnNumLockOn();
    ASSERT_EQ(launcher.launches.size(), 1);
    EXPECT_EQ(launcher.launches[0].program, helper);
    EXPECT_EQ(launcher.launches[0].arguments, u"");
    EXPECT_EQ(launcher.launches[0].folder, paths.appFolder);
    EXPECT_EQ(launcher.launches[0].style, WindowStyle::NormalFocus);
}

TEST_F(AfterDownloadTest, AMissingNumLockHelperIsTold)
{
    dialogs.answer(u"Where is it?"_s, BoxButton::Ok);
    after.TurnNumLockOn();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"I couldn't find ZephNUMLon.exe - it should be in the same directory as Zeph.exe. "
              u"What have you done with it? ");
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(AfterDownloadTest, ANumLockHelperThatDoesNotStartIsToldWithTheReason)
{
    folder.write(u"ZephNUMLon.exe"_s, "x");
    launcher.onStart = [](const Launch &) -> Expected<void, QString> {
        return Unexpected<QString>(u"ZephNUMLon.exe: Permission denied"_s);
    };
    dialogs.answer(u"Zeph"_s, BoxButton::Ok);
    after.TurnNumLockOn();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.endsWith(u"ZephNUMLon.exe: Permission denied"));
}

TEST_F(AfterDownloadTest, TheFirstDownloadByAStandInTellsThatNothingReachedAStick)
{
    folder.write(u"HOTASCompiler.exe"_s, standInMark);
    const QString title = u"Nothing reached your stick"_s;
    dialogs.answer(title, BoxButton::Ok);
    after.tellStandIn();
    after.tellStandIn();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].title, title);
    EXPECT_FALSE(dialogs.boxes()[0].tick.isEmpty());
    EXPECT_TRUE(settings.of<ToolchainSettings>().TellStandIn) << "the next run tells it again";
}

TEST_F(AfterDownloadTest, TheTickKeepsItFromBeingToldAgain)
{
    paths.iniPath = folder.file(u"Zeph.ini"_s);
    folder.write(u"HOTASCompiler.exe"_s, standInMark);
    dialogs.tick = true;
    dialogs.answer(u"Nothing reached your stick"_s, BoxButton::Ok);
    after.tellStandIn();
    EXPECT_FALSE(settings.of<ToolchainSettings>().TellStandIn);
    AfterDownload(context).tellStandIn();
    EXPECT_EQ(dialogs.boxes().size(), 1);
}

TEST_F(AfterDownloadTest, ARealCompilerIsNoStandIn)
{
    folder.write(u"HOTASCompiler.exe"_s, "a real tool");
    after.tellStandIn();
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}
