// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How long Zeph waits for a tool: what each tick of the poll's timer counts and decides.

#include "platform/core/base.h"

namespace zeph {

struct GlobalSettings;

/// The values of a wait's finished variable.
enum WaitResult : qint16 { WaitRunning = 0, WaitVerdict = 1, WaitGivenUp = 2 };

/// The variables of one wait. There is one set for the compiler and one for mode requests, however
/// many commands wait.
struct WaitState {
    qint16 finished = WaitRunning;
    qint32 elapsed = 0; ///< milliseconds, counted in whole intervals

    friend bool operator==(const WaitState &, const WaitState &) = default;
};

/// What the settings say of waits, in milliseconds.
struct WaitTimes {
    qint32 checkForCompletion = 1000;
    qint32 regainControlAfter = 45000;

    friend bool operator==(const WaitTimes &, const WaitTimes &) = default;
};

/// The times of the settings. A text that is no number, and an interval below 1, give the default,
/// since users edit these by hand.
WaitTimes waitTimes(const GlobalSettings &settings);

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
