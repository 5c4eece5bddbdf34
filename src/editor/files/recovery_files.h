// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The files in which a run keeps its unsaved texts, in case it crashes before they are saved.

#include "language/file_kinds.h"
#include "platform/core/file_io.h"
#include "platform/instance_lock.h"

#include <QDateTime>
#include <QObject>

#include <functional>
#include <future>
#include <memory>
#include <vector>

namespace zeph {

/// What an unsaved text is: one of the documents, or the Template Editor's.
enum class RecoveredKind { Joystick, Macro, Template };
constexpr RecoveredKind recoveredKind(DocumentKind kind)
{
    return kind == DocumentKind::Macro ? RecoveredKind::Macro : RecoveredKind::Joystick;
}
constexpr DocumentKind documentKind(RecoveredKind kind)
{
    return kind == RecoveredKind::Macro ? DocumentKind::Macro : DocumentKind::Joystick;
}

/// An unsaved text, and what it is.
struct RecoveredText {
    RecoveredKind kind = RecoveredKind::Joystick;
    QString path; ///< where it would be saved
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
class RecoveryFolder : public QObject
{
    Q_OBJECT
public:
    struct Written {
        RecoveredText recovered;
        Expected<void, FileError> result;
    };

    /// Creates nothing on the disk until the first write.
    explicit RecoveryFolder(const QString &parent);
    ~RecoveryFolder() override;

    Expected<void, FileError> write(const RecoveredText &recovered);
    /// Has another thread make these texts and write them; settle() must come before the next call
    /// of any other kind.
    void writeSoon(std::function<std::vector<RecoveredText>()> make);
    /// Waits for what writeSoon() began, and gives it once.
    std::vector<Written> settle();
    void remove(RecoveredKind kind);
    /// Removes the folder with its files. Called when the program ends normally.
    void finish();

Q_SIGNALS:
    /// From the other thread: settle() does not have to wait any more.
    void hasWritten();

private:
    Expected<void, FileError> claim();

    QString m_parent;
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
    std::future<std::vector<Written>> m_writing;
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
    /// The paths of those that are no whole recovery files, which stay.
    const QStringList &damaged() const { return m_damaged; }
    void remove(const File &file);
    /// Removes the folder if it is empty.
    void finish();

private:
    QString m_folder;
    std::unique_ptr<InstanceLock> m_lock;
    QList<File> m_files;
    QStringList m_damaged;
};

/// Returns what crashed runs left below the folder, the latest first. mayTakeOver is asked about a
/// run of which it cannot be known whether it has ended.
std::vector<LeftRecovery> leftRecoveries(const QString &parent,
                                         const MayTakeOver &mayTakeOver = {});

} // namespace zeph
