// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QElapsedTimer>
#include <QProgressDialog>

namespace zeph {

/// A window that comes up when something takes long, with a button to stop it. Until it is up the
/// user can do nothing, and then nothing but stop.
class LongProgress
{
public:
    LongProgress(const QString &title, QWidget *parent);

    /// Shows where it is, and lets timers and the window live. Of an unknown number, all is 0.
    /// False when the user wants it to stop.
    bool step(const QString &text, int done, int all);

private:
    QProgressDialog m_window;
    QElapsedTimer m_since;
};

} // namespace zeph
