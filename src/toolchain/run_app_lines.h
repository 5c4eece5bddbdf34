// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The USE ZEPH RUN_APP lines of a joystick file: the applications that a download starts.

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

} // namespace zeph
