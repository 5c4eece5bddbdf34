// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"
#include "platform/core/base.h"
#include "platform/core/file_io.h"

#include <QDateTime>

namespace zeph {

/// The file name of a backup: the tab's caption, with the moment, if given, before its extension,
/// as in "Flight Mar 05 2024, 09-07am.tmj". The month is English in every locale.
QString backupName(const QString &caption, const std::optional<QDateTime> &moment = {});

/// Writes copies into the backup folder.
class Backups
{
public:
    explicit Backups(const Context &context) : m_context(context) { }

    /// Writes the document's plain text if the settings ask for backups. Called at each save.
    Expected<void, FileError> SaveJoystickBackup(const Document &document) const;
    /// Writes bytes that would be lost otherwise under a dated name, even when the settings ask for
    /// no backups. Returns the path; adds a number to a name that is taken.
    Expected<QString, FileError> keepAside(const QString &caption, const QByteArray &bytes,
                                           const QDateTime &moment) const;

private:
    /// Ends with a separator. An empty setting means the default folder beside the program.
    QString folder() const;

    Context m_context;
};

class Dialogs;
struct Paths;

/// Returns the backup folder to use, with a closing separator: the wanted one, created with its
/// parents if missing, or the default one for an empty name. If it cannot be created, tells the
/// user and returns the default one.
QString checkedBackupFolder(const QString &wanted, const Paths &paths, Dialogs &dialogs);

} // namespace zeph
