// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/handshake.h"

#include "settings/settings.h"
#include "toolchain/toolchain_settings.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr bool answered = true;
constexpr bool silent = false;
constexpr bool hidden = true;
constexpr bool visible = false;
constexpr bool shown = true;
constexpr bool notShown = false;

const WaitTimes usual = waitTimes(ToolchainSettings());

/// The times after these texts were read from a file.
WaitTimes timesOf(const QString &interval, const QString &regain)
{
    const test::TempFolder folder;
    folder.write(
        u"Zeph.ini"_s,
        u"[Unsupported]\nCheckForCompletionTime=%1\nRegainControlAfter=%2\n"_s.arg(interval, regain)
            .toLatin1());
    const ProfileFile store(folder.file(u"Zeph.ini"_s));
    Settings settings;
    (void)readGroup(settings.group<ToolchainSettings>(), { store, store, store });
    return waitTimes(settings.of<ToolchainSettings>());
}

} // namespace

TEST(WaitTick, AVerdictEndsTheWaitBeforeAnyTimeIsCounted)
{
    WaitState state{ WaitRunning, 1000 };
    const TickActions actions = tick(state, answered, usual, visible, notShown);
    EXPECT_EQ(actions, (TickActions{ true, StatusWindowStep::None, 0 }));
    EXPECT_EQ(state, (WaitState{ WaitVerdict, 1000 }));
}

TEST(WaitTick, AToolThatFinishesInOneAndAHalfSecondsShowsNoWindow)
{
    WaitState state;
    EXPECT_EQ(tick(state, silent, usual, visible, notShown), TickActions());
    EXPECT_EQ(state.elapsed, 1000);
    EXPECT_EQ(tick(state, answered, usual, visible, notShown).window, StatusWindowStep::None);
}

TEST(WaitTick, TheWindowComesAtTwoSecondsAndFollowsAfterwards)
{
    WaitState state{ WaitRunning, 1000 };
    EXPECT_EQ(tick(state, silent, usual, visible, notShown),
              (TickActions{ false, StatusWindowStep::Show, 2 }));
    EXPECT_EQ(tick(state, silent, usual, visible, shown),
              (TickActions{ false, StatusWindowStep::Refresh, 3 }));
}

TEST(WaitTick, TheWindowDoesNotComeBelowTwoSeconds)
{
    WaitState state;
    EXPECT_EQ(tick(state, silent, { 1999, 45000 }, visible, notShown).window,
              StatusWindowStep::None);
    state = {};
    EXPECT_EQ(tick(state, silent, { 2000, 45000 }, visible, notShown).window,
              StatusWindowStep::Show);
}

TEST(WaitTick, AHiddenWindowNeverComes)
{
    WaitState state{ WaitRunning, 30000 };
    EXPECT_EQ(tick(state, silent, usual, hidden, notShown), TickActions());
    EXPECT_EQ(tick(state, silent, usual, hidden, shown), TickActions());
    EXPECT_EQ(state.elapsed, 32000);
}

TEST(WaitTick, AWindowThatIsUpFromAnEarlierWaitFollowsFromTwoSecondsOn)
{
    WaitState state;
    EXPECT_EQ(tick(state, silent, usual, visible, shown).window, StatusWindowStep::None);
    EXPECT_EQ(tick(state, silent, usual, visible, shown).window, StatusWindowStep::Refresh);
}

TEST(WaitTick, TheFirstBarIsRoundedToWholeSecondsHalvesToEven)
{
    for (const auto &[interval, seconds] :
         { std::pair(2499, 2), std::pair(2500, 2), std::pair(2501, 3), std::pair(3500, 4) }) {
        WaitState state;
        EXPECT_EQ(tick(state, silent, { interval, 45000 }, visible, notShown).bar, seconds)
            << interval;
    }
}

TEST(WaitTick, ALaterBarStopsAtTheLimit)
{
    WaitState state{ WaitRunning, 45000 };
    EXPECT_EQ(tick(state, silent, usual, visible, shown),
              (TickActions{ true, StatusWindowStep::Refresh, 45 }));
}

TEST(WaitTick, GivesUpAtTheTickThatReaches46Seconds)
{
    WaitState state;
    int count = 0;
    int lastElapsed = 0;
    while (state.finished == WaitRunning) {
        lastElapsed = state.elapsed;
        ++count;
        const bool stopped = tick(state, silent, usual, visible, count > 2).stopTimer;
        EXPECT_EQ(stopped, state.finished == WaitGivenUp);
    }
    EXPECT_EQ(count, 46);
    EXPECT_EQ(lastElapsed, 45000);
    EXPECT_EQ(state, (WaitState{ WaitGivenUp, 0 }));
}

TEST(WaitTick, AnExactLimitIsNotYetAboveIt)
{
    WaitState state{ WaitRunning, 44000 };
    EXPECT_FALSE(tick(state, silent, usual, visible, shown).stopTimer);
    EXPECT_EQ(state, (WaitState{ WaitRunning, 45000 }));
}

TEST(WaitTick, AVerdictAtTheLastTickStillCounts)
{
    WaitState state{ WaitRunning, 45000 };
    tick(state, answered, usual, visible, shown);
    EXPECT_EQ(state.finished, WaitVerdict);
}

TEST(WaitTick, ALimitOfNothingGivesUpAtTheFirstTick)
{
    WaitState state;
    EXPECT_TRUE(tick(state, silent, { 1000, 0 }, visible, notShown).stopTimer);
    EXPECT_EQ(state.finished, WaitGivenUp);
}

TEST(WaitTick, TheLargestNumbersDoNotOverflow)
{
    constexpr qint32 largest = 2147483647;
    WaitState state{ WaitRunning, largest - 10 };
    const TickActions actions = tick(state, silent, { largest, largest }, visible, shown);
    EXPECT_TRUE(actions.stopTimer);
    EXPECT_EQ(actions.bar, 2147484);
    EXPECT_EQ(state.finished, WaitGivenUp);
}

TEST(WaitTimes, AreTheNumbersOfTheSettings)
{
    EXPECT_EQ(timesOf(u"250"_s, u" 90000 "_s), (WaitTimes{ 250, 90000 }));
    EXPECT_EQ(timesOf(u"1e3"_s, u"2500.5"_s), (WaitTimes{ 1000, 2500 }));
    EXPECT_EQ(timesOf(u"1000"_s, u"-1"_s).regainControlAfter, -1);
}

TEST(WaitTimes, WhatIsNoNumberGivesTheDefault)
{
    for (const QString &text : { u""_s, u"soon"_s, u"1000 ms"_s, u"nan"_s, u"inf"_s,
                                 u"99999999999"_s, u"-99999999999"_s }) {
        EXPECT_EQ(timesOf(text, text), (WaitTimes{ 1000, 45000 })) << text.toStdString();
    }
}

TEST(WaitTimes, AnIntervalThatWouldNeverEndAWaitGivesTheDefault)
{
    EXPECT_EQ(timesOf(u"0"_s, u"45000"_s).checkForCompletion, 1000);
    EXPECT_EQ(timesOf(u"-5"_s, u"45000"_s).checkForCompletion, 1000);
}
