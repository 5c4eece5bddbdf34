// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The files in which a run keeps its unsaved texts, in case it crashes before they are saved.

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

/// Returns the contents of a recovery file: a few lines that name the document, an empty line, and
/// the text. The text is UTF-8, since it may hold characters that Windows-1252 lacks.
QByteArray recoveryBytes(const RecoveredText &recovered);
/// Parses such contents; no value when they are incomplete or something else.
std::optional<RecoveredText> readRecovery(const QByteArray &bytes);

/// The recovery files of this run, in a folder of its own below the given one. The object holds a
/// lock on that folder while it lives.
class RecoveryFolder
{
public:
    /// Creates nothing on the disk until the first write.
    explicit RecoveryFolder(const QString &parent);

    Expected<void, FileError> write(const RecoveredText &recovered);
    void remove(DocumentKind kind);
    /// Removes the folder with its files. Called when the program ends normally.
    void finish();

private:
    Expected<void, FileError> claim();

    QString m_parent;
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
};

/// The folder that a crashed run left. The object holds a lock on it, so that only one program
/// offers its texts.
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
    /// Removes the folder if it is empty.
    void finish();

private:
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
    QList<File> m_files;
};

/// Returns what crashed runs left below the folder, the latest first. mayTakeOver is asked about a
/// run of which it cannot be known whether it has ended.
std::vector<LeftRecovery> leftRecoveries(const QString &parent,
                                         const MayTakeOver &mayTakeOver = {});

} // namespace zeph
