// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/process_launcher.h"

#include <QList>

namespace zeph {

/// One line: a program's path with its arguments, and how its window comes up.
struct RunApp {
    QString command = {};
    WindowStyle style = WindowStyle::MinimisedNoFocus;

    friend bool operator==(const RunApp &, const RunApp &) = default;
};

/// The applications that the lines of a text name, in their order. Lines end with '\n'. A style
/// that is none of 0 to 4, and a line without one, mean a minimised window without the focus.
QList<RunApp> runAppLines(QStringView joystickText);

/// What a good download may start: the NumLock helper and the applications that the joystick file
/// names.
class AfterDownload
{
public:
    explicit AfterDownload(const Context &context) : m_context(context) { }

    /// Runs the helper that turns NumLock on; a missing one is told.
    void TurnNumLockOn();
    /// Starts what the USE ZEPH RUN_APP lines of the text name, in their order, unless the user
    /// wants none of it. One that cannot be started is told and ends the row.
    void GetAppsToRun(const QString &joystickText);

private:
    bool started(const Launch &launch);

    Context m_context;
};

} // namespace zeph
