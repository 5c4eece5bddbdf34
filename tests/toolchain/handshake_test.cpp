// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/handshake.h"

#include "tests/support/toolchain_bench.h"
#include "toolchain/formdownloadstatus.h"
#include "toolchain/toolchain_settings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>

using namespace zeph;

namespace {

class HandshakeTest : public test::ToolchainBench
{
protected:
    ExchangeEnd run() { return handshake->runCompiler(anyLaunch()); }
    ExchangeEnd runMode() { return handshake->runModeRequest(anyLaunch()); }
    FormDownloadStatus *statusWindow() const
    {
        return mainWindow.findChild<FormDownloadStatus *>(u"FormDownloadStatus"_s);
    }
    QString caption() const
    {
        return statusWindow()->findChild<QLabel *>(u"LabelStatus"_s)->text();
    }
    int bar() const { return statusWindow()->findChild<QProgressBar *>(u"ProgressBar"_s)->value(); }
    void answerAfter(int tickCount)
    {
        afterTick = [this, tickCount](int count) {
            if (count == tickCount) {
                writeCompiler(u"Status"_s, u"OKAY"_s);
            }
        };
    }
};

} // namespace

TEST_F(HandshakeTest, EmptiesTheSectionBeforeTheStart)
{
    writeCompiler(u"Status"_s, u"OKAY"_s);
    writeCompiler(u"LineNumber"_s, u"9"_s);
    writeCompiler(u"Extra"_s, u"kept"_s);
    QStringList atStart;
    launcher.onStart = [&](const Launch &) {
        atStart = { compilerKey(u"Status"_s), compilerKey(u"LineNumber"_s),
                    compilerKey(u"Extra"_s) };
        hasten();
        return Expected<void, QString>();
    };
    answerAfter(1);
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(atStart, (QStringList{ u""_s, u"0"_s, u"kept"_s }));
    EXPECT_EQ(ticks, 2);
}

TEST_F(HandshakeTest, TheFirstPollComesOneIntervalAfterTheStart)
{
    settings.of<ToolchainSettings>().CheckForCompletionTime = 40;
    QElapsedTimer sinceStart;
    launcher.onStart = [&](const Launch &) {
        writeCompiler(u"Status"_s, u"OKAY"_s);
        sinceStart.start();
        return Expected<void, QString>();
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_GE(sinceStart.elapsed(), 36); // the toolkit's timers may be a twentieth early
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(downloadTimer->interval(), 40);
    EXPECT_EQ(handshake->CompilerFinished(), 1);
    EXPECT_EQ(handshake->CompilerElapsed(), 0);
    EXPECT_FALSE(downloadTimer->isActive());
}

TEST_F(HandshakeTest, AVerdictAfterOneAndAHalfIntervalsShowsNoWindow)
{
    answerAfter(1);
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(ticks, 2);
    EXPECT_EQ(handshake->CompilerElapsed(), 1000);
    EXPECT_FALSE(handshake->StatusWindowShown());
    EXPECT_EQ(statusWindow(), nullptr);
}

TEST_F(HandshakeTest, ASlowToolBringsTheWindowWhichStaysWhenTheWaitEnds)
{
    handshake->setStatusCaption(u"Compiling a.tmj"_s);
    QList<int> bars;
    afterTick = [&](int count) {
        bars.append(handshake->StatusWindowShown() ? bar() : -1);
        if (count == 3) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(bars, (QList<int>{ -1, 2, 3, 3 }));
    ASSERT_TRUE(handshake->StatusWindowShown());
    EXPECT_TRUE(statusWindow()->isVisible());
    EXPECT_FALSE(statusWindow()->isModal());
    EXPECT_EQ(statusWindow()->parentWidget(), &mainWindow);
    EXPECT_TRUE(caption().startsWith(u"Compiling a.tmj")) << caption().toStdString();
    EXPECT_EQ(statusWindow()->findChild<QProgressBar *>(u"ProgressBar"_s)->maximum(), 45);
    handshake->closeStatusWindow();
    EXPECT_FALSE(handshake->StatusWindowShown());
}

TEST_F(HandshakeTest, TheStatusWindowSaysWhenTheWaitHasEndedAndFollowsTheNextOne)
{
    handshake->setStatusCaption(u"Compiling a.tmj"_s);
    answerAfter(3);
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    const QRegularExpression ended(u"^Compiling a.tmj: ended at \\d\\d:\\d\\d:\\d\\d$"_s);
    EXPECT_TRUE(ended.match(caption()).hasMatch()) << caption().toStdString();

    ticks = 0;
    handshake->setStatusCaption(u"Downloading b.tmj"_s);
    afterTick = [&](int count) {
        EXPECT_EQ(caption(), u"Downloading b.tmj");
        EXPECT_EQ(bar(), count < 2 ? 0 : count);
        if (count == 2) {
            QTimer::singleShot(0, handshake.get(), [this] {
                afterTick = {};
                writeCompiler(u"Status"_s, u"OKAY"_s);
            });
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_TRUE(caption().startsWith(u"Downloading b.tmj: ended at ")) << caption().toStdString();
}

TEST_F(HandshakeTest, TheStatusWindowOfAGivenUpToolSaysThatItIsNotOver)
{
    handshake->setStatusCaption(u"Compiling a.tmj"_s);
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    EXPECT_TRUE(caption().startsWith(u"Compiling a.tmj: not over yet when I stopped waiting at "));
}

TEST_F(HandshakeTest, ClosingTheWindowEndsItAndALaterTickBringsANewOne)
{
    QList<bool> shown;
    afterTick = [&](int count) {
        if (count == 2) {
            statusWindow()->close();
        }
        shown.append(handshake->StatusWindowShown());
        if (count == 3) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(shown, (QList<bool>{ false, false, true, true }));
}

TEST_F(HandshakeTest, TheSettingHidesTheWindow)
{
    settings.of<ToolchainSettings>().HideDownloadStatusWindow = true;
    answerAfter(5);
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_FALSE(handshake->StatusWindowShown());
}

TEST_F(HandshakeTest, GivesUpAtTheTickThatReaches46Seconds)
{
    QList<qint32> elapsed;
    afterTick = [&](int) {
        elapsed.append(handshake->CompilerElapsed());
    };
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    ASSERT_EQ(ticks, 46);
    EXPECT_EQ(elapsed.at(44), 45000);
    EXPECT_EQ(elapsed.at(45), 0);
    EXPECT_EQ(handshake->CompilerFinished(), 2);
    EXPECT_FALSE(downloadTimer->isActive());
    EXPECT_EQ(bar(), 45);
}

TEST_F(HandshakeTest, WhatAGivenUpToolWritesLaterStaysUntilTheNextClear)
{
    settings.of<ToolchainSettings>().RegainControlAfter = 0;
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    writeCompiler(u"Status"_s, u"OKAY"_s);
    EXPECT_EQ(compilerKey(u"Status"_s), u"OKAY");
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    EXPECT_EQ(compilerKey(u"Status"_s), u"");
}

TEST_F(HandshakeTest, AMissingHotasIniIsWaitedOutLikeASilentTool)
{
    settings.of<ToolchainSettings>().RegainControlAfter = 3000;
    launcher.onStart = [this](const Launch &) {
        EXPECT_TRUE(QFile::remove(paths.hotasIni()));
        hasten();
        return Expected<void, QString>();
    };
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    EXPECT_EQ(ticks, 4);
}

TEST_F(HandshakeTest, ButtonsAndTimersStayAliveDuringTheWait)
{
    QTimer other;
    int beats = 0;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++beats; });
    other.start(1);
    QPushButton button;
    int presses = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++presses; });
    afterTick = [&](int count) {
        if (count == 1) {
            QMetaObject::invokeMethod(&button, "click", Qt::QueuedConnection);
        }
        if (count >= 5 && beats >= 3 && presses > 0) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(presses, 1);
}

TEST_F(HandshakeTest, ASecondCommandDuringAWaitRestartsTheOneSetOfVariables)
{
    QStringList order;
    afterTick = [&](int count) {
        if (count == 3) {
            EXPECT_EQ(handshake->CompilerElapsed(), 3000);
            order.append(u"second begins"_s);
            EXPECT_EQ(run(), ExchangeEnd::Verdict);
            order.append(u"second ends"_s);
        } else if (count == 4) {
            // Counted from the second start on.
            EXPECT_EQ(handshake->CompilerElapsed(), 1000);
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    order.append(u"first ends"_s);
    EXPECT_EQ(order, (QStringList{ u"second begins"_s, u"second ends"_s, u"first ends"_s }));
    EXPECT_EQ(ticks, 5);
    EXPECT_EQ(launcher.launches.size(), 2);
}

TEST_F(HandshakeTest, ASecondCommandThatIsGivenUpEndsTheFirstToo)
{
    settings.of<ToolchainSettings>().RegainControlAfter = 2000;
    ExchangeEnd second = ExchangeEnd::Verdict;
    afterTick = [&](int count) {
        if (count == 2) {
            second = run();
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::GivenUp);
    EXPECT_EQ(second, ExchangeEnd::GivenUp);
    EXPECT_EQ(ticks, 5);
}

TEST_F(HandshakeTest, ASecondCommandThatDoesNotStartLeavesTheFirstWaiting)
{
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    ExchangeEnd second = ExchangeEnd::Verdict;
    afterTick = [&](int count) {
        if (count == 1) {
            launcher.onStart = [](const Launch &) -> Expected<void, QString> {
                return Unexpected<QString>(u"no such tool"_s);
            };
            second = run();
        } else if (count == 3) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(second, ExchangeEnd::NotStarted);
    EXPECT_EQ(ticks, 4);
    EXPECT_EQ(handshake->CompilerElapsed(), 3000);
}

TEST_F(HandshakeTest, AModeRequestHasVariablesOfItsOwnAndNoWindow)
{
    writeMode(u"Status"_s, u"OKAY"_s);
    afterModeTick = [&](int count) {
        if (count == 4) {
            EXPECT_EQ(handshake->ModeElapsed(), 4000);
            writeMode(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(runMode(), ExchangeEnd::Verdict);
    EXPECT_EQ(modeTicks, 5);
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(handshake->ModeFinished(), 1);
    EXPECT_FALSE(handshake->StatusWindowShown());
    EXPECT_FALSE(modeTimer->isActive());
}

TEST_F(HandshakeTest, AModeRequestIsGivenUpAtTheSameLimit)
{
    EXPECT_EQ(runMode(), ExchangeEnd::GivenUp);
    EXPECT_EQ(modeTicks, 46);
    EXPECT_EQ(handshake->ModeFinished(), 2);
    EXPECT_EQ(handshake->ModeElapsed(), 0);
}

TEST_F(HandshakeTest, ACompileInsideAModeWaitDoesNotDisturbIt)
{
    ExchangeEnd compile = ExchangeEnd::GivenUp;
    afterModeTick = [&](int count) {
        if (count == 1) {
            compile = run();
        }
    };
    afterTick = [&](int count) {
        if (count == 2) {
            writeMode(u"Status"_s, u"OKAY"_s);
        }
        // Only after the mode's own wait has got its end, while this one goes on.
        if (handshake->ModeFinished() == 1) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    };
    EXPECT_EQ(runMode(), ExchangeEnd::Verdict);
    EXPECT_EQ(compile, ExchangeEnd::Verdict);
}

TEST_F(HandshakeTest, AToolThatCannotBeStartedIsToldAndNotWaitedFor)
{
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    launcher.onStart = [](const Launch &launch) -> Expected<void, QString> {
        return Unexpected<QString>(launch.program + u": no permission"_s);
    };
    EXPECT_EQ(run(), ExchangeEnd::NotStarted);
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text, paths.compiler() + u": no permission"_s);
    EXPECT_EQ(dialogs.boxes()[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(ticks, 0);
    EXPECT_FALSE(downloadTimer->isActive());
}

TEST_F(HandshakeTest, AHotasIniThatCannotBeWrittenIsToldAndNothingStarts)
{
    paths.hotasFolder = folder.file(u"gone/"_s);
    dialogs.answer(u"Unable to run the Thrustmaster software"_s, BoxButton::Ok);
    EXPECT_EQ(run(), ExchangeEnd::NotStarted);
    EXPECT_TRUE(launcher.launches.isEmpty());
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(paths.hotasIni()));
}

TEST_F(HandshakeTest, ItsDestructionEndsTheWait)
{
    afterTick = [&](int count) {
        if (count == 3) {
            QTimer::singleShot(0, &mainWindow, [this] { handshake.reset(); });
        }
    };
    EXPECT_EQ(run(), ExchangeEnd::Abandoned);
    EXPECT_EQ(handshake, nullptr);
}

TEST_F(HandshakeTest, ItsDestructionEndsAWaitInsideAWait)
{
    ExchangeEnd second = ExchangeEnd::Verdict;
    bool begun = false;
    // From outside of its own timers: a timer's handler may not be destroyed with it.
    QTimer::singleShot(0, &mainWindow, [&] {
        begun = true;
        QTimer::singleShot(5, &mainWindow, [this] { handshake.reset(); });
        second = run();
    });
    EXPECT_EQ(run(), ExchangeEnd::Abandoned);
    EXPECT_TRUE(begun);
    EXPECT_EQ(second, ExchangeEnd::Abandoned);
}

TEST_F(HandshakeTest, TheMainWindowMayGoDuringAWait)
{
    auto *window = new QWidget;
    handshake = std::make_unique<ToolchainHandshake>(context, window);
    downloadTimer = handshake->findChild<QTimer *>(u"DownloadTimer"_s);
    modeTimer = handshake->findChild<QTimer *>(u"StatusModeTimer"_s);
    QObject::connect(downloadTimer, &QTimer::timeout, downloadTimer, [&] {
        ++ticks;
        if (ticks == 2) {
            EXPECT_TRUE(handshake->StatusWindowShown());
            delete window;
            EXPECT_FALSE(handshake->StatusWindowShown());
        } else if (ticks == 4) {
            writeCompiler(u"Status"_s, u"OKAY"_s);
        }
    });
    EXPECT_EQ(run(), ExchangeEnd::Verdict);
    EXPECT_EQ(ticks, 5);
}

TEST_F(HandshakeTest, TheProgramsEndEndsTheWait)
{
    for (const int exitCode : { 0, 3 }) {
        ExchangeEnd end = ExchangeEnd::Verdict;
        QTimer::singleShot(0, &mainWindow, [&] {
            QTimer::singleShot(5, &mainWindow, [exitCode] { QCoreApplication::exit(exitCode); });
            end = run();
        });
        EXPECT_EQ(QApplication::exec(), exitCode);
        EXPECT_EQ(end, ExchangeEnd::Abandoned);
        EXPECT_FALSE(downloadTimer->isActive());
    }
}

TEST_F(HandshakeTest, ClosingTheLastWindowDuringAWaitEndsTheProgram)
{
    ExchangeEnd first = ExchangeEnd::Verdict;
    ExchangeEnd second = ExchangeEnd::Verdict;
    mainWindow.show();
    afterTick = [&](int count) {
        if (count == 2) {
            second = run();
        } else if (count == 5) {
            EXPECT_TRUE(handshake->StatusWindowShown());
            mainWindow.close();
        }
    };
    QTimer::singleShot(0, &mainWindow, [&] { first = run(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(first, ExchangeEnd::Abandoned);
    EXPECT_EQ(second, ExchangeEnd::Abandoned);
}
