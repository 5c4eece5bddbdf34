// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/handshake.h"

#include "platform/clock.h"
#include "platform/core/units.h"
#include "platform/dialogs.h"
#include "platform/process_launcher.h"
#include "settings/settings.h"
#include "toolchain/formdownloadstatus.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/toolchain_settings.h"

#include <QEventLoop>
#include <QWidget>
#include <algorithm>
#include <limits>

namespace zeph {

namespace {

/// The exit code of an event loop whose handshake was destroyed; 0 is the ordinary end.
constexpr int abandoned = 1;

Expected<void, QString> inWords(const Expected<void, FileError> &result)
{
    if (!result) {
        return Unexpected<QString>(result.error().path + u"\n\n"_s + result.error().reason);
    }
    return {};
}

} // namespace

ToolchainHandshake::ToolchainHandshake(const Context &context, QWidget *mainWindow, QObject *parent)
    : QObject(parent), m_context(context), m_commands(context.status), m_mainWindow(mainWindow)
{
    m_compiler.timer.setObjectName(u"DownloadTimer"_s);
    m_compiler.timer.setParent(this);
    m_mode.timer.setObjectName(u"StatusModeTimer"_s);
    m_mode.timer.setParent(this);
    connect(&m_compiler.timer, &QTimer::timeout, this, &ToolchainHandshake::DownloadTimer_Timer);
    connect(&m_mode.timer, &QTimer::timeout, this, &ToolchainHandshake::StatusModeTimer_Timer);
}

ToolchainHandshake::~ToolchainHandshake()
{
    closeStatusWindow();
}

HotasIni ToolchainHandshake::hotasIni() const
{
    // Made anew each time, since the folder of the tools can be changed while Zeph runs.
    return HotasIni(m_context.paths.hotasIni());
}

ExchangeEnd ToolchainHandshake::runCompiler(const Launch &launch)
{
    return run(
        m_compiler, [this] { return inWords(hotasIni().clearCompiler()); }, launch);
}

ExchangeEnd ToolchainHandshake::runModeRequest(const Launch &launch)
{
    return run(
        m_mode, [this] { return inWords(hotasIni().clearModeStatus()); }, launch);
}

ExchangeEnd ToolchainHandshake::runUnreportedRequest(const Launch &launch)
{
    return run(
        m_mode, [this] { return inWords(hotasIni().markModeStatus()); }, launch);
}

ExchangeEnd ToolchainHandshake::run(Channel &channel, const Clear &clear, const Launch &launch)
{
    // Otherwise the first poll could take the status of an earlier request for this one's.
    if (!succeeded(clear())) {
        return ExchangeEnd::NotStarted;
    }
    if (!succeeded(m_context.launcher.start(launch))) {
        return ExchangeEnd::NotStarted;
    }
    channel.state = {};
    const WaitTimes times = waitTimes(m_context.settings.of<ToolchainSettings>());
    if (&channel == &m_compiler && m_statusWindow) {
        m_statusWindow->begin(m_statusCaption, wholeSeconds(times.regainControlAfter));
    }
    channel.timer.start(times.checkForCompletion);
    return wait(channel);
}

/// Tells a failure. True when there is none.
bool ToolchainHandshake::succeeded(const Expected<void, QString> &result)
{
    if (!result) {
        m_context.dialogs.tell(u"Unable to run the Thrustmaster software"_s, result.error(),
                               BoxIcon::Exclamation);
    }
    return result.has_value();
}

ExchangeEnd ToolchainHandshake::wait(Channel &channel)
{
    const QPointer<ToolchainHandshake> alive(this);
    QEventLoop loop;
    connect(this, &ToolchainHandshake::waitEnded, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, [&loop] { loop.exit(abandoned); });
    // An exchange that began inside this one may have restarted the wait before this loop got the
    // control back, so the variables are read after every wake-up. When the program ends, exec()
    // returns at once with an error code, which ends the wait.
    while (channel.state.finished == WaitRunning) {
        const int code = loop.exec();
        if (!alive) {
            return ExchangeEnd::Abandoned;
        }
        if (code != 0) {
            channel.timer.stop();
            m_commands.close();
            return ExchangeEnd::Abandoned;
        }
    }
    return channel.state.finished == WaitGivenUp ? ExchangeEnd::GivenUp : ExchangeEnd::Verdict;
}

void ToolchainHandshake::DownloadTimer_Timer()
{
    const bool answered = !hotasIni().pollCompiler().isEmpty();
    const TickActions actions = tick(
        m_compiler.state, answered, waitTimes(m_context.settings.of<ToolchainSettings>()),
        m_context.settings.of<ToolchainSettings>().HideDownloadStatusWindow, StatusWindowShown());
    showStatus(actions);
    if (actions.stopTimer) {
        tellEnd();
    }
    finishTick(m_compiler, actions);
}

/// Says on the status window, which may stay open, that its compile or download has ended.
void ToolchainHandshake::tellEnd()
{
    if (m_statusWindow) {
        const QString at = m_context.clock.now().toString(u"HH:mm:ss"_s);
        m_statusWindow->end(m_compiler.state.finished == WaitGivenUp
                                ? u": not over yet when I stopped waiting at "_s + at
                                : u": ended at "_s + at);
    }
}

void ToolchainHandshake::StatusModeTimer_Timer()
{
    const bool answered = !hotasIni().pollModeStatus().isEmpty();
    constexpr bool hideWindow = true;
    finishTick(m_mode,
               tick(m_mode.state, answered, waitTimes(m_context.settings.of<ToolchainSettings>()),
                    hideWindow, false));
}

void ToolchainHandshake::finishTick(Channel &channel, const TickActions &actions)
{
    if (actions.stopTimer) {
        channel.timer.stop();
        Q_EMIT waitEnded();
    }
}

void ToolchainHandshake::showStatus(const TickActions &actions)
{
    if (actions.window == StatusWindowStep::None) {
        return;
    }
    if (actions.window == StatusWindowStep::Refresh) {
        m_statusWindow->setSeconds(actions.bar);
        m_statusWindow->repaint();
        return;
    }
    const int longest =
        wholeSeconds(waitTimes(m_context.settings.of<ToolchainSettings>()).regainControlAfter);
    m_statusWindow = new FormDownloadStatus(m_statusCaption, longest, m_mainWindow);
    connect(m_statusWindow, &QDialog::finished, this, [this, window = m_statusWindow.data()] {
        // The window is deleted a little later; by then another may have taken its place.
        if (m_statusWindow == window) {
            m_statusWindow.clear();
        }
    });
    m_statusWindow->setSeconds(actions.bar);
    m_statusWindow->show();
}

void ToolchainHandshake::closeStatusWindow()
{
    if (auto *window = m_statusWindow.data()) {
        m_statusWindow.clear();
        window->disconnect(this);
        window->close();
        // Closing a window that was hidden with its owner does not delete it.
        window->deleteLater();
    }
}

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
