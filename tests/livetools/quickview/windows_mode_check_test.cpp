// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/windows_mode_check.h"

#include "settings/settings.h"
#include "tests/support/fixture.h"
#include "toolchain/toolchain_settings.h"

#include <QFile>
#include <QSignalSpy>

using namespace zeph;

namespace {

struct ModeCheck : test::WorldTest {
    std::unique_ptr<WindowsModeCheck> check;
    QList<bool> answers;
    int requests = 0;

    void SetUp() override
    {
        settings.of<ToolchainSettings>().CheckForCompletionTime = 5;
        settings.of<ToolchainSettings>().RegainControlAfter = 100;
        installTool();
        check = std::make_unique<WindowsModeCheck>(context());
        QObject::connect(check.get(), &WindowsModeCheck::finished, check.get(),
                         [this](bool isWindows) { answers.append(isWindows); });
        QObject::connect(check.get(), &WindowsModeCheck::requestWanted, check.get(),
                         [this] { ++requests; });
    }
    void installTool() const { folder.write(u"HOTASConfig.exe"_s, "MZ"); }
    void report(const QByteArray &modeStatus, int buttons) const
    {
        folder.write(u"HOTAS.ini"_s,
                     "[TMMODE]\r\nStatus=" + modeStatus
                         + "\r\nButtons=" + QByteArray::number(buttons) + "\r\n");
    }
    void waitForAnswer() const
    {
        QSignalSpy spy(check.get(), &WindowsModeCheck::finished);
        spy.wait(2000);
    }
};

} // namespace

TEST_F(ModeCheck, InWindowsModeNothingIsAsked)
{
    report("OKAY", 0);
    check->start();
    EXPECT_EQ(answers, QList<bool>{ true });
    EXPECT_EQ(requests, 0);
}

TEST_F(ModeCheck, TheToolsAnswerIsWaitedFor)
{
    report("OKAY", 1);
    check->start();
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_TRUE(check->isRunning());
    report("OKAY", 0);
    waitForAnswer();
    EXPECT_EQ(answers, QList<bool>{ true });
    EXPECT_FALSE(check->isRunning());
}

TEST_F(ModeCheck, ARefusalFailsAtOnce)
{
    report("OKAY", 1);
    check->start();
    report("ERROR", -1);
    waitForAnswer();
    EXPECT_EQ(answers, QList<bool>{ false });
}

TEST_F(ModeCheck, AnAnswerThatNamesAnotherModeFails)
{
    report("OKAY", 1);
    check->start();
    report("OKAY", 1);
    waitForAnswer();
    EXPECT_EQ(answers, QList<bool>{ false });
}

TEST_F(ModeCheck, AnEarlierErrorIsNotTakenForTheAnswer)
{
    report("ERROR", 0);
    check->start();
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(answers.isEmpty());
    report("OKAY", 0);
    waitForAnswer();
    EXPECT_EQ(answers, QList<bool>{ true });
}

TEST_F(ModeCheck, AToolThatNeverAnswersIsGivenUp)
{
    report("OKAY", 1);
    check->start();
    waitForAnswer();
    EXPECT_EQ(answers, QList<bool>{ false });
}

TEST_F(ModeCheck, WithoutTheToolItFailsAtOnce)
{
    QFile::remove(folder.file(u"HOTASConfig.exe"_s));
    report("OKAY", 1);
    check->start();
    EXPECT_EQ(answers, QList<bool>{ false });
    EXPECT_EQ(requests, 0);
}

TEST_F(ModeCheck, ACancelledOneGivesNoAnswer)
{
    report("OKAY", 1);
    check->start();
    check->cancel();
    report("OKAY", 0);
    QSignalSpy spy(check.get(), &WindowsModeCheck::finished);
    EXPECT_FALSE(spy.wait(50));
    EXPECT_FALSE(check->isRunning());
}
