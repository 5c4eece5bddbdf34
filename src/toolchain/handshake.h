// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/base.h"
#include "toolchain/tool_queue.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;

namespace zeph {

// How long Zeph waits for a tool: what each tick of the poll's timer counts and decides.

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

class FormDownloadStatus;
class HotasIni;
struct Launch;

/// How an exchange with a tool ended.
enum class ExchangeEnd {
    Verdict, ///< the tool wrote its status
    GivenUp, ///< the wait took too long; the tool runs on
    NotStarted, ///< it could not be started, which was told
    Abandoned ///< Zeph is ending: the caller returns at once and touches nothing any more
};

/// The exchanges with the Cougar's tools: a tool is started, then its section of HOTAS.ini is
/// polled until the tool has written a status there.
///
/// The waits are nested event loops, so that the interface stays alive. What the user asks for
/// meanwhile goes through commands(), which lets one exchange end before the next begins. There is
/// one set of variables for the compiler and one for mode requests: a second exchange restarts the
/// first one's wait, and both end together. A wait also ends when this object is destroyed, or when
/// the program ends.
class ToolchainHandshake : public QObject
{
    Q_OBJECT
public:
    /// The main window owns the status window; it may be null and may go before this object.
    ToolchainHandshake(const Context &context, QWidget *mainWindow, QObject *parent = nullptr);
    ~ToolchainHandshake() override;

    /// Every command that waits for a tool runs through this.
    ToolQueue &commands() { return m_commands; }

    /// Empties the compiler's section, starts the compiler and waits for its verdict.
    ExchangeEnd runCompiler(const Launch &launch);
    /// Empties the mode status, starts the tool and waits for it.
    ExchangeEnd runModeRequest(const Launch &launch);

    /// As runModeRequest() for a request that the tool does not report: the status is marked as
    /// finished beforehand, and the wait ends at its first poll.
    ExchangeEnd runUnreportedRequest(const Launch &launch);

    qint16 CompilerFinished() const { return m_compiler.state.finished; }
    qint32 CompilerElapsed() const { return m_compiler.state.elapsed; }
    qint16 ModeFinished() const { return m_mode.state.finished; }
    qint32 ModeElapsed() const { return m_mode.state.elapsed; }

    /// What the status window says from the compiler's next start on.
    const QString &StatusCaption() const { return m_statusCaption; }
    void setStatusCaption(const QString &caption) { m_statusCaption = caption; }
    bool StatusWindowShown() const { return !m_statusWindow.isNull(); }
    /// Closes the status window if it is up. A download does so at its end; a compile leaves the
    /// window to the user.
    void closeStatusWindow();

Q_SIGNALS:
    /// The variables of a channel say that its wait is over; every wait looks at its own.
    void waitEnded();

private:
    struct Channel {
        QTimer timer;
        WaitState state;
    };
    using Clear = std::function<Expected<void, QString>()>;

    ExchangeEnd run(Channel &channel, const Clear &clear, const Launch &launch);
    ExchangeEnd wait(Channel &channel);
    bool succeeded(const Expected<void, QString> &result);
    void DownloadTimer_Timer();
    void StatusModeTimer_Timer();
    void finishTick(Channel &channel, const TickActions &actions);
    void showStatus(const TickActions &actions);
    void tellEnd();
    HotasIni hotasIni() const;

    Context m_context;
    ToolQueue m_commands;
    QPointer<QWidget> m_mainWindow;
    QPointer<FormDownloadStatus> m_statusWindow;
    QString m_statusCaption;
    Channel m_compiler;
    Channel m_mode;
};

} // namespace zeph
