// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/files/backups.h"
#include "editor/files/recovery_files.h"
#include "platform/context.h"
#include "platform/dialogs.h"

#include <QTimer>

#include <array>

namespace zeph {

class EditorView;
class FileOpening;

/// Keeps copies of unsaved texts on the disk, at most a few seconds old, and offers those that a
/// crashed run left. Never overwrites a file of the user's.
class Recovery : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        FileOpening &opening;
    };
    Recovery(const Context &context, const Parts &parts);

    /// Called at the start. Offers each text that an earlier run left; moves the ones that the user
    /// declines into the backup folder. A damaged file is told and stays.
    void offerLeft();
    /// Makes the kept files match the documents: a file for each modified text, none for the
    /// others.
    void update();
    /// The same without waiting for the disk, which another thread writes to.
    void updateSoon();
    /// Called before a save writes. Updates the kept files first: if the program crashed right
    /// after the save, an outdated one would be offered in place of the newer saved file.
    void catchUp();
    /// Removes the kept files. Called when the program ends normally.
    void finish();

    /// From the first unkept key to the write. What the disk takes on top of it must not make it
    /// five seconds.
    static constexpr int intervalMs = 3000;

private:
    void touched();
    /// What is to be written of a document; nothing where the file holds it already.
    std::optional<RecoveredText> unkept(DocumentKind kind) const;
    void keep(DocumentKind kind);
    void removeUnmodified();
    /// Waits for what the other thread is writing, which nobody else may touch meanwhile.
    void settle();
    void note(const RecoveryFolder::Written &written);
    void tellDamaged(const LeftRecovery &left);
    bool isInHand(const RecoveredText &recovered) const;
    bool offer(const RecoveredText &recovered, bool &taken);
    bool keepAside(const RecoveredText &recovered);

    Context m_context;
    Parts m_parts;
    RecoveryFolder m_folder;
    Backups m_backups;
    QTimer m_timer;
    /// The texts in the kept files; null where there is no file.
    std::array<QString, 2> m_kept;
    bool m_failureTold = false;
};

/// The question whether a text that an earlier run left is wanted back.
Box recoveryOffer(const RecoveredText &recovered, const QString &callsign);

} // namespace zeph
