// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"
#include "platform/core/base.h"
#include "platform/core/file_io.h"

#include <QDateTime>

namespace zeph {

/// A backup's name for a tab's caption: the caption itself or, with a moment, the caption with
/// that moment before its extension, as in "Flight Mar 05 2024, 09-07am.tmj". English, whatever the
/// system speaks.
QString backupName(const QString &caption, const std::optional<QDateTime> &moment = {});

/// The copies that go into the backup folder.
class Backups
{
public:
    explicit Backups(const Context &context) : m_context(context) { }

    /// Writes the document's plain text, beside its save, if the user wants backups.
    Expected<void, FileError> SaveJoystickBackup(const Document &document) const;
    /// Puts bytes that would be lost otherwise into the folder under a dated name, whatever the
    /// user wants. The path that they stand at now; a name that is taken gets a number.
    Expected<QString, FileError> keepAside(const QString &caption, const QByteArray &bytes,
                                           const QDateTime &moment) const;

private:
    /// With its closing separator; an empty setting means the one beside the program.
    QString folder() const;

    Context m_context;
};

class Dialogs;
struct Paths;

/// The backup folder to use, with a closing separator: the wanted one, made with its parents when
/// it is absent, or the default one for an empty name. One that cannot be made is told, and the
/// default one takes its place.
QString checkedBackupFolder(const QString &wanted, const Paths &paths, Dialogs &dialogs);

} // namespace zeph
