// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How long Zeph waits for a tool: what each tick of the poll's timer counts and decides.

#include "platform/core/base.h"

namespace zeph {

struct ToolchainSettings;

/// The values of a wait's finished variable.
enum WaitResult : qint16 { WaitRunning = 0, WaitVerdict = 1, WaitGivenUp = 2 };

/// The variables of one wait. There is one set for the compiler and one for mode requests, however
/// many commands wait.
struct WaitState {
    qint16 finished = WaitRunning;
    qint32 elapsed = 0; ///< milliseconds, counted in whole intervals

    friend bool operator==(const WaitState &, const WaitState &) = default;
};

/// How often a tool is asked, and when it is given up, in milliseconds.
struct WaitTimes {
    qint32 checkForCompletion = 0;
    qint32 regainControlAfter = 0;

    friend bool operator==(const WaitTimes &, const WaitTimes &) = default;
};

/// The times of the settings, as whole milliseconds, halves to even.
qint32 checkForCompletionTimeMs(const ToolchainSettings &settings);
/// The same for both times of a wait. An interval below 1 gives the default.
WaitTimes waitTimes(const ToolchainSettings &settings);

/// What the status window has to do at a tick.
enum class StatusWindowStep { None, Show, Refresh };

struct TickActions {
    bool stopTimer = false;
    StatusWindowStep window = StatusWindowStep::None;
    int bar = 0; ///< whole seconds, for Show and Refresh

    friend bool operator==(const TickActions &, const TickActions &) = default;
};

/// One tick of a wait's timer. If the tool has answered, the wait ends and no time is counted.
/// Otherwise the interval is added to the time elapsed; from two seconds on the status window is
/// shown, unless it is hidden; above the limit the wait is given up.
TickActions tick(WaitState &state, bool statusNonEmpty, const WaitTimes &times, bool hideWindow,
                 bool windowShown);

/// Milliseconds rounded to whole seconds, halves to the even one.
int wholeSeconds(qint32 milliseconds);

} // namespace zeph
