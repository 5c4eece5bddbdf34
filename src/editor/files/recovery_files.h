// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a run keeps of its unsaved texts on the disk, in case that it never comes to saving them.

#include "language/file_kinds.h"
#include "platform/core/file_io.h"
#include "platform/instance_lock.h"

#include <QDateTime>

#include <memory>
#include <vector>

namespace zeph {

/// An unsaved text, and which document it is.
struct RecoveredText {
    DocumentKind kind = DocumentKind::Joystick;
    QString path; ///< where the document would be saved
    QDateTime written; ///< to the second
    QString text;

    friend bool operator==(const RecoveredText &, const RecoveredText &) = default;
};

/// The bytes of a recovery file: a few lines that name the document, an empty line, and the text in
/// UTF-8, since it may hold what a document's own file cannot.
QByteArray recoveryBytes(const RecoveredText &recovered);
/// The way back; no value for bytes that are no whole recovery file.
std::optional<RecoveredText> readRecovery(const QByteArray &bytes);

/// The recovery files of this run, in a folder of its own below the given one, which it holds
/// locked while it lives.
class RecoveryFolder
{
public:
    /// Nothing is made before the first write.
    explicit RecoveryFolder(const QString &parent);

    Expected<void, FileError> write(const RecoveredText &recovered);
    void remove(DocumentKind kind);
    /// The run ends in good order: its folder goes, and what it still holds.
    void finish();

private:
    Expected<void, FileError> claim();

    QString m_parent;
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
};

/// A folder that a run left which did not end in good order. It is held locked meanwhile, so that
/// only one program offers it.
class LeftRecovery
{
public:
    LeftRecovery(QString folder, std::unique_ptr<InstanceLock> lock);
    LeftRecovery(LeftRecovery &&) = default;
    LeftRecovery &operator=(LeftRecovery &&) = default;

    struct File {
        QString path;
        RecoveredText recovered;
    };
    const QList<File> &files() const { return m_files; }
    void remove(const File &file);
    /// Takes the folder away if nothing is in it any more.
    void finish();

private:
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
    QList<File> m_files;
};

/// What runs that ended badly left below the folder, the latest first.
std::vector<LeftRecovery> leftRecoveries(const QString &parent);

} // namespace zeph
