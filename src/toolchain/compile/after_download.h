// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/process_launcher.h"

#include <QList>

namespace zeph {

/// What one line names: a program's path with its arguments, and how its window opens.
struct RunApp {
    QString command = {};
    WindowStyle style = WindowStyle::MinimisedNoFocus;

    friend bool operator==(const RunApp &, const RunApp &) = default;
};

/// The applications that the USE ZEPH RUN_APP lines of a text name, in their order. Lines end with
/// '\n'. Without a style from 0 to 4 the window opens minimised, without the focus.
QList<RunApp> runAppLines(QStringView joystickText);

/// Starts what follows a good download: the NumLock helper, and the applications that the joystick
/// file names.
class AfterDownload
{
public:
    explicit AfterDownload(const Context &context) : m_context(context) { }

    /// Runs the helper that turns NumLock on; a missing one is told.
    void TurnNumLockOn();
    /// Starts the applications that the text names, one after the other, unless the user has
    /// switched that off. One that cannot be started is told, and the rest is left out.
    void GetAppsToRun(const QString &joystickText);

    /// The first download of a run tells, in a box that can be switched off for good, that a
    /// stand-in has sent nothing to a stick.
    void tellStandIn();

private:
    bool started(const Launch &launch);

    Context m_context;
    bool m_toldStandIn = false;
};

} // namespace zeph
