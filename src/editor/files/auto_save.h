// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QTimer>

namespace zeph {

class EditorView;
class FileSaving;

/// Saves what is modified every few minutes, if the user wants that, and once more when the
/// program falls over.
class AutoSave : public QObject
{
    Q_OBJECT
public:
    AutoSave(const Context &context, EditorView &view, FileSaving &saving);

    /// Counts from nothing, and runs or stands still as the settings say: at the start, after a
    /// change of the settings, and for a fresh document.
    void restart();
    bool runs() const { return m_timer.isActive(); }
    /// Minutes since the last autosave.
    int counted() const { return m_counter; }

    /// A minute has gone.
    void Timer1_Timer();
    /// Saves each modified document where it belongs, or under its fresh name. A text that came
    /// back after a crash waits for the user's own save: the offer promised that nothing on the
    /// disk changes before.
    void AutoSaveFile();
    /// The last resort after a failure that nobody caught: saves both documents as the user would.
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
