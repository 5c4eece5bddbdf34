// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How long a tool is waited for, as numbers: one tick of the poll at a time.

#include "platform/core/base.h"

namespace zeph {

struct GlobalSettings;

/// How a wait stands: the values that its finished variable takes.
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

/// The times of the settings, which are texts that a user edits by hand: what is no number, and an
/// interval below 1, give the default.
WaitTimes waitTimes(const GlobalSettings &settings);

/// What the status window has to do at a tick.
enum class StatusWindowStep { None, Show, Refresh };

struct TickActions {
    bool stopTimer = false;
    StatusWindowStep window = StatusWindowStep::None;
    int bar = 0; ///< whole seconds, for Show and Refresh

    friend bool operator==(const TickActions &, const TickActions &) = default;
};

/// One tick of a wait's timer. A verdict ends the wait before any time is counted; without one the
/// interval is added, the status window follows once two seconds are reached (unless it is hidden),
/// and above the limit the wait is given up.
TickActions tick(WaitState &state, bool statusNonEmpty, const WaitTimes &times, bool hideWindow,
                 bool windowShown);

/// Milliseconds as whole seconds, to nearest, halves to even.
int wholeSeconds(qint32 milliseconds);

} // namespace zeph
