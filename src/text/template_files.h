// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The files of the Template Editor: reading and writing them, and the questions about unsaved ones.

#include "platform/core/base.h"
#include "platform/core/rich_text.h"
#include "platform/core/rtf.h"

#include <QByteArray>

#include <functional>
#include <vector>

namespace zeph {

/// The name of a file that was never saved.
inline constexpr QStringView untitledTemplate = u"Untitled.rtf";

/// The open dialog's filter, and the save dialog's.
QString templateOpenFilter();
QString templateSaveFilter();

/// Whether a file of that name holds rich text; all others hold plain text.
bool holdsRichText(QStringView name);

enum class LineEnd : quint8 { CrLf, Lf, Cr };

/// How the lines of a plain text end.
struct LineEnds {
    LineEnd usual = LineEnd::CrLf; ///< of most of them, and of new ones
    std::vector<LineEnd> each = {}; ///< in their order; empty when all are as usual

    friend bool operator==(const LineEnds &, const LineEnds &) = default;
};

LineEnds lineEndsOf(const QByteArray &bytes);

/// A file as it was read.
struct TemplateFile {
    RichText text;
    RtfLosses losses = {}; ///< what of it a save would not write
    LineEnds lineEnds = {}; ///< of a plain text
};

/// Reads a file's bytes; its name tells whether they are rich text. Plain text gets the plain
/// format. The error is the reason in words. For goOn see readRtfWithLosses().
Expected<TemplateFile, QString> readTemplate(QStringView name, const QByteArray &bytes,
                                             const CharFormat &plain,
                                             const std::function<bool(qsizetype)> &goOn = {});
/// The bytes to save under a name: rich text, or only the characters for a plain text, whose lines
/// end as they did. Lines beyond those that are listed end as usual.
QByteArray templateBytes(QStringView name, const RichText &text, const LineEnds &ends = {});
/// In words what would be lost, such as "pictures and tables (their texts stay)".
QString lossesInWords(RtfLosses losses);
/// A name for a copy of a file: "A.rtf" gives "A (copy).rtf".
QString copyName(const QString &name);

/// Files of more bytes are opened after a question only.
constexpr qint64 largeTemplate = 5'000'000;

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
