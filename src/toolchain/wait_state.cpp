// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/wait_state.h"

#include "platform/core/units.h"
#include "toolchain/toolchain_settings.h"

#include <algorithm>
#include <limits>

namespace zeph {

namespace {

/// Milliseconds; a window that appeared sooner would only flash when the tool answers in time.
constexpr qint32 windowAfter = 2000;

} // namespace

qint32 checkForCompletionTimeMs(const ToolchainSettings &settings)
{
    return qint32(roundHalfEven(settings.CheckForCompletionTime));
}

WaitTimes waitTimes(const ToolchainSettings &settings)
{
    const qint32 interval = checkForCompletionTimeMs(settings);
    // With an interval of 0 the time would never reach the limit.
    return { interval > 0 ? interval : checkForCompletionTimeMs(ToolchainSettings()),
             qint32(roundHalfEven(settings.RegainControlAfter)) };
}

TickActions tick(WaitState &state, bool statusNonEmpty, const WaitTimes &times, bool hideWindow,
                 bool windowShown)
{
    TickActions actions;
    if (statusNonEmpty) {
        state.finished = WaitVerdict;
        actions.stopTimer = true;
        return actions;
    }
    const qint64 elapsed = qint64(state.elapsed) + times.checkForCompletion;
    state.elapsed = qint32(std::min<qint64>(elapsed, std::numeric_limits<qint32>::max()));
    if (state.elapsed >= windowAfter && !hideWindow) {
        actions.window = windowShown ? StatusWindowStep::Refresh : StatusWindowStep::Show;
        actions.bar = wholeSeconds(windowShown ? std::min(state.elapsed, times.regainControlAfter)
                                               : state.elapsed);
    }
    if (elapsed > times.regainControlAfter) {
        state = { WaitGivenUp, 0 };
        actions.stopTimer = true;
    }
    return actions;
}

int wholeSeconds(qint32 milliseconds)
{
    return int(roundHalfEven(milliseconds / 1000.0));
}

} // namespace zeph
