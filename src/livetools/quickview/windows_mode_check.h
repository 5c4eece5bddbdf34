// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace zeph {

/// Sees to it that the Cougar's buttons are in Windows mode, in which the system tells them. The
/// tool that changes the mode is not waited for: its answer is polled for as long as other tools
/// get.
class WindowsModeCheck : public QObject
{
    Q_OBJECT
public:
    explicit WindowsModeCheck(const Context &context, QObject *parent = nullptr);

    /// Begins a check; one that runs ends without an answer.
    void start();
    void cancel();
    bool isRunning() const { return m_runs; }

Q_SIGNALS:
    /// The tool is to put the buttons into Windows mode.
    void requestWanted();
    /// Whether the buttons are in Windows mode.
    void finished(bool isWindowsMode);

private:
    bool isWindowsMode() const;
    void poll();
    void finish(bool isWindowsMode);

    Context m_context;
    bool m_runs = false;
    QTimer m_timer;
    QElapsedTimer m_since;
};

} // namespace zeph
