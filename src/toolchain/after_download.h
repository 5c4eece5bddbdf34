// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

namespace zeph {

struct Launch;

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
