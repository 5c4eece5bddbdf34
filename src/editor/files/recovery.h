// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/files/backups.h"
#include "editor/files/recovery_files.h"
#include "platform/context.h"

#include <QTimer>

#include <array>

namespace zeph {

class EditorView;
class FileOpening;

/// Keeps the unsaved texts on the disk while they are unsaved, never more than a few seconds
/// behind, and offers what a run left that came to no good end. Overwrites no file of the user's.
class Recovery : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        FileOpening &opening;
    };
    Recovery(const Context &context, const Parts &parts);

    /// At the start: asks about each text that an earlier run left. One that the user does not
    /// want goes into the backup folder.
    void offerLeft();
    /// Brings the files in line with the documents at once: modified texts are there, others not.
    void update();
    /// A save is about to write: what is kept already has to be no older than what it writes, since
    /// a program that falls over right behind it would offer an older text than the file's.
    void catchUp();
    /// The run ends in good order.
    void finish();

    static constexpr int intervalMs = 5000;

private:
    void touched();
    void keep(DocumentKind kind);
    bool isInHand(const RecoveredText &recovered) const;
    bool offer(const RecoveredText &recovered, bool &taken);
    bool keepAside(const RecoveredText &recovered);

    Context m_context;
    Parts m_parts;
    RecoveryFolder m_folder;
    Backups m_backups;
    QTimer m_timer;
    /// The texts that stand in the files; null where there is none.
    std::array<QString, 2> m_kept;
    bool m_failureTold = false;
};

} // namespace zeph
