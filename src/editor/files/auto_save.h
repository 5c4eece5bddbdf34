// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QTimer>

namespace zeph {

class EditorView;
class FileSaving;

/// Saves modified documents every few minutes, if the user wants that, and saves both when the
/// program is about to crash.
class AutoSave : public QObject
{
    Q_OBJECT
public:
    AutoSave(const Context &context, EditorView &view, FileSaving &saving);

    /// Sets the count to 0 and starts or stops the timer as the settings say. Called at the start,
    /// after a change of the settings, and for a fresh document.
    void restart();
    bool runs() const { return m_timer.isActive(); }
    /// Minutes since the last autosave.
    int counted() const { return m_counter; }

    /// Called once a minute; saves when the period of the settings is over.
    void Timer1_Timer();
    /// Saves each modified document to its own path, or under its fresh name when it has none.
    /// Skips a text recovered after a crash until the user has saved it: Recovery promised not to
    /// touch the disk before.
    void AutoSaveFile();
    /// Saves both documents as the user would. Called after a failure that nobody caught.
    void EmergencySaveFiles();

private:
    Context m_context;
    EditorView &m_view;
    FileSaving &m_saving;
    QTimer m_timer;
    int m_counter = 0;
    bool m_saves = false;
};

} // namespace zeph
