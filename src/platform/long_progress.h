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
    /// It comes into sight at the first step after the patience, in milliseconds.
    LongProgress(const QString &title, QWidget *parent, qint64 patience = 500);

    /// Shows where it is, and lets timers and the window live. Of an unknown number, all is 0.
    /// False when the user wants it to stop.
    bool step(const QString &text, int done, int all);
    /// Closes the window before its time, so that it does not cover a message.
    void finish() { m_window.hide(); }

private:
    QProgressDialog m_window;
    QElapsedTimer m_since;
    qint64 m_patience;
};

} // namespace zeph
