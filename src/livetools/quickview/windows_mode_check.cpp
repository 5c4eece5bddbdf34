// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/windows_mode_check.h"

#include "platform/core/file_io.h"
#include "settings/settings.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/toolchain_settings.h"

#include <QPointer>

namespace zeph {

namespace {

constexpr int windowsMode = 0;

} // namespace

WindowsModeCheck::WindowsModeCheck(const Context &context, QObject *parent)
    : QObject(parent), m_context(context)
{
    connect(&m_timer, &QTimer::timeout, this, &WindowsModeCheck::poll);
}

bool WindowsModeCheck::isWindowsMode() const
{
    const ModeReport report = HotasIni(m_context.paths.hotasIni()).readMode();
    return report.Status != u"ERROR" && report.Buttons == windowsMode;
}

void WindowsModeCheck::start()
{
    cancel();
    m_runs = true;
    if (isWindowsMode()) {
        finish(true);
        return;
    }
    if (!fileExists(m_context.paths.config())) {
        finish(false);
        return;
    }
    // An answer of an earlier request must not be taken for this one's. Where the file can't be
    // written, the tool's own answer still changes what it says.
    (void)HotasIni(m_context.paths.hotasIni()).clearModeStatus();
    const QPointer<WindowsModeCheck> alive(this);
    Q_EMIT requestWanted();
    if (!alive || !m_runs) {
        return;
    }
    m_since.start();
    m_timer.setInterval(waitTimes(m_context.settings.of<ToolchainSettings>()).checkForCompletion);
    m_timer.start();
    poll();
}

void WindowsModeCheck::cancel()
{
    m_timer.stop();
    m_runs = false;
}

void WindowsModeCheck::poll()
{
    const bool isAnswered = !HotasIni(m_context.paths.hotasIni()).pollModeStatus().isEmpty();
    const bool isLate = m_since.elapsed()
        > waitTimes(m_context.settings.of<ToolchainSettings>()).regainControlAfter;
    if (isAnswered || isLate) {
        finish(isAnswered && isWindowsMode());
    }
}

void WindowsModeCheck::finish(bool isWindowsMode)
{
    cancel();
    Q_EMIT finished(isWindowsMode);
}

} // namespace zeph
