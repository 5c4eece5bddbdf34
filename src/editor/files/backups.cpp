// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/backups.h"

#include "documents/document.h"
#include "editor/editor_settings.h"
#include "platform/clock.h"
#include "platform/core/paths.h"
#include "platform/core/portable_paths.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "text/text_lines.h"

#include <QDir>
#include <QLocale>
#include <filesystem>

namespace zeph {

QString backupName(const QString &caption, const std::optional<QDateTime> &moment)
{
    if (!moment) {
        return caption;
    }
    const QLocale english(QLocale::C);
    return caption.chopped(qMin<qsizetype>(4, caption.size())) + u' '
        + english.toString(*moment, u"MMM dd yyyy, hh-mmap") + u'.'
        + caption.last(qMin<qsizetype>(3, caption.size()));
}

QString Backups::folder() const
{
    if (!m_context.settings.of<EditorSettings>().BackUpFolder.isEmpty()) {
        return m_context.settings.of<EditorSettings>().BackUpFolder;
    }
    const QString standard = m_context.paths.defaultBackupFolder();
    QDir().mkpath(standard);
    return standard;
}

Expected<void, FileError> Backups::SaveJoystickBackup(const Document &document) const
{
    if (!m_context.settings.of<EditorSettings>().CreateBackup) {
        return {};
    }
    std::optional<QDateTime> moment;
    if (m_context.settings.of<EditorSettings>().BackUpDateInfo) {
        moment = m_context.clock.now();
    }
    return writeFileAtomically(folder() + backupName(document.caption(), moment),
                               documentBytes(document.text()));
}

Expected<QString, FileError> Backups::keepAside(const QString &caption, const QByteArray &bytes,
                                                const QDateTime &moment) const
{
    const QString into = folder();
    QDir().mkpath(into);
    const QString name = backupName(caption, moment);
    QString path = into + name;
    for (int number = 2; fileExists(path); ++number) {
        path = into + name.chopped(4) + u" ("_s + QString::number(number) + u')' + name.last(4);
    }
    if (auto written = writeFileAtomically(path, bytes); !written) {
        return Unexpected<FileError>(written.error());
    }
    return path;
}

namespace {

std::error_code makeFolder(const QString &folder)
{
    std::error_code error;
    if (!folderExists(folder)) {
        std::filesystem::create_directories(
            std::filesystem::path(withClosingSeparator(folder).chopped(1).toStdU16String()), error);
    }
    return error;
}

} // namespace

QString checkedBackupFolder(const QString &wanted, const Paths &paths, Dialogs &dialogs)
{
    const QString standard = paths.defaultBackupFolder();
    const QString folder = wanted.isEmpty()
        ? standard
        : withClosingSeparator(nativeSeparators(resolvedPath(wanted, paths.appFolder)));
    const std::error_code error = makeFolder(folder);
    if (!error) {
        return folder;
    }
    dialogs.tell(u"Backup folder location error"_s,
                 u"There's a problem with your backup folder. Either it doesn't exist or I can't "
                 "create it. Please edit your preferences. In the meantime I will change it to the "
                 "default location.\n\nError reported from Windows: Error number = "_s
                     + QString::number(error.value()) + u"\n Description = "_s
                     + QString::fromLocal8Bit(error.message()),
                 BoxIcon::Exclamation);
    makeFolder(standard);
    return standard;
}

} // namespace zeph
