// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The files of the Template Editor: what they hold, and what is asked before one is left.

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

/// What a file's bytes show, by its name. Characters of a plain text have the plain format. The
/// error is the reason in words.
Expected<RichText, QString> templateText(QStringView name, const QByteArray &bytes,
                                         const CharFormat &plain);
/// The bytes to save under a name: rich text whole, of plain text the characters alone.
QByteArray templateBytes(QStringView name, const RichText &text);
/// Position of the first character that a file of that name cannot hold, or -1.
qsizetype firstUnsavable(QStringView name, const QString &text);
/// Whether a save under that name would write something else: of plain text only the characters
/// count.
bool differs(QStringView name, const RichText &text, const RichText &saved);

/// Why the current file is about to be left.
enum class TemplateLeaving { Closing, New, Open, IniFile };

/// The question about unsaved changes, and what is told when the save did not take place.
struct TemplateQuestion {
    QString title;
    QString text;
    QString refusal;
};
TemplateQuestion templateQuestion(TemplateLeaving leaving, const QString &name);

/// The word that the character at a position (0-based) belongs to. "/" is no part of a word here.
QString templateWordOver(QString line, qsizetype position);

} // namespace zeph
