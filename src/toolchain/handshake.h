// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/wait_state.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;

namespace zeph {

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
/// The waits are nested event loops, so that the interface stays alive, and a command may start
/// during another's wait. There is one set of variables for the compiler and one for mode requests:
/// a second exchange restarts the first one's wait, and both end together. A wait also ends when
/// this object is destroyed, or when the program ends.
class ToolchainHandshake : public QObject
{
    Q_OBJECT
public:
    /// The main window owns the status window; it may be null and may go before this object.
    ToolchainHandshake(const Context &context, QWidget *mainWindow, QObject *parent = nullptr);
    ~ToolchainHandshake() override;

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

    /// What the status window says when it appears.
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
    HotasIni hotasIni() const;

    Context m_context;
    QPointer<QWidget> m_mainWindow;
    QPointer<FormDownloadStatus> m_statusWindow;
    QString m_statusCaption;
    Channel m_compiler;
    Channel m_mode;
};

} // namespace zeph
