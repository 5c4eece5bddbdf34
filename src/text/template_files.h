// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The files of the Template Editor: reading and writing them, and the questions about unsaved ones.

#include "platform/core/base.h"
#include "platform/core/rich_text.h"

#include <QByteArray>

namespace zeph {

/// The name of a file that was never saved.
inline constexpr QStringView untitledTemplate = u"Untitled.rtf";

/// The open dialog's filter, and the save dialog's.
QString templateOpenFilter();
QString templateSaveFilter();

/// Whether a file of that name holds rich text; all others hold plain text.
bool holdsRichText(QStringView name);

/// Reads a file's bytes; its name tells whether they are rich text. Plain text gets the plain
/// format. The error is the reason in words.
Expected<RichText, QString> templateText(QStringView name, const QByteArray &bytes,
                                         const CharFormat &plain);
/// The bytes to save under a name: rich text, or only the characters for a plain text.
QByteArray templateBytes(QStringView name, const RichText &text);
/// Position of the first character that a file of that name cannot hold, or -1.
qsizetype firstUnsavable(QStringView name, const QString &text);
/// Whether a save under that name would change the saved file. For plain text only the characters
/// count.
bool differs(QStringView name, const RichText &text, const RichText &saved);

/// Why the current file would be closed.
enum class TemplateLeaving { Closing, New, Open, IniFile };

/// The question about unsaved changes, and the message when saving then failed.
struct TemplateQuestion {
    QString title;
    QString text;
    QString refusal;
};
TemplateQuestion templateQuestion(TemplateLeaving leaving, const QString &name);

/// The word that contains the 0-based position. Here "/" belongs to no word.
QString templateWordOver(QString line, qsizetype position);

} // namespace zeph
