// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/files/backups.h"
#include "editor/files/recovery_files.h"
#include "platform/context.h"
#include "platform/core/rich_text.h"

#include <QPointer>
#include <QTimer>

namespace zeph {

class TemplateForm;
class ToolWindows;

/// Keeps the Template Editor's unsaved text on the disk while it is unsaved, and offers what a run
/// left that came to no good end, as Recovery does for the two documents. The text is kept as RTF.
class TemplateGuard : public QObject
{
    Q_OBJECT
public:
    TemplateGuard(const Context &context, ToolWindows &windows, QObject *parent);

    /// At the start: asks about each text that an earlier run left. One that the user does not want
    /// goes into the backup folder.
    void offerLeft();
    /// The run ends in good order, and the Template Editor is closed.
    void finish();

private:
    void watch(TemplateForm &form);
    /// Brings the file in line with the text: an unsaved one is there, another is not.
    void update(bool waitsForDisk);
    void settle();
    void note(const RecoveryFolder::Written &written);
    void forget();
    bool offer(const RecoveredText &recovered);
    bool keepAside(const RecoveredText &recovered);

    Context m_context;
    ToolWindows &m_windows;
    RecoveryFolder m_folder;
    Backups m_backups;
    QTimer m_timer{ this };
    QPointer<TemplateForm> m_form;
    QString m_kept; ///< the text in the file; null where there is none
    std::optional<RichText> m_writtenLast; ///< none where that failed, or is gone again
};

} // namespace zeph
