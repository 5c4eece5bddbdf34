// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"

namespace zeph {

/// What a good download may start: the NumLock helper and the applications that the joystick file
/// names.
class AfterDownload
{
public:
    explicit AfterDownload(const Context &context) : m_context(context) { }

    /// Runs the helper that turns NumLock on; a missing one is told.
    void TurnNumLockOn();
    /// Starts what the USE ZEPH RUN_APP lines of the text name, in their order, unless the user
    /// wants none of it.
    void GetAppsToRun(const QString &joystickText);

private:
    Context m_context;
};

} // namespace zeph
